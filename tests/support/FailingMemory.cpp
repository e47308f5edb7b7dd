#include "FailingMemory.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace {

constexpr size_t NEVER = ~size_t{0};

thread_local size_t failing = NEVER;
thread_local size_t granted = 0; // how many more of those
thread_local size_t largest = 0;

void* Allocate(size_t size)
{
    largest = std::max(largest, size);
    if (size >= failing && granted == 0) {
        return nullptr;
    }
    granted -= size >= failing ? 1 : 0;
    return std::malloc(size);
}

} // namespace

FailingMemory::FailingMemory(size_t size, size_t passed)
{
    failing = size;
    granted = passed;
    largest = 0;
}

FailingMemory::~FailingMemory()
{
    failing = NEVER;
}

size_t FailingMemory::Largest() const
{
    return largest;
}

void* operator new(size_t size, const std::nothrow_t&) noexcept
{
    return Allocate(size);
}

void* operator new[](size_t size, const std::nothrow_t&) noexcept
{
    return Allocate(size);
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, size_t) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, size_t) noexcept
{
    std::free(memory);
}

void* operator new(size_t size)
{
    void* memory = std::malloc(size > 0 ? size : 1);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

void* operator new[](size_t size)
{
    return operator new(size);
}
