// Optional output arguments.
#pragma once

#include <type_traits>

template <class T>
void Put(T* pOutput, std::type_identity_t<T> value)
{
    if (pOutput != nullptr) {
        *pOutput = value;
    }
}
