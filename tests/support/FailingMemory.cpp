#include "FailingMemory.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace {

constexpr size_t NEVER = ~size_t{0};

thread_local size_t failing = NEVER;
thread_local size_t granted = 0; // how many more such requests succeed
thread_local size_t largest = 0;
thread_local bool failsAll = false;
thread_local bool hasFailed = false;

void* Allocate(size_t size)
{
    largest = std::max(largest, size);
    if (size >= failing && granted == 0) {
        hasFailed = true;
        return nullptr;
    }
    granted -= size >= failing ? 1 : 0;
    return std::malloc(size > 0 ? size : 1);
}

} // namespace

FailingMemory::FailingMemory(size_t size, size_t passed, Requests requests)
{
    failsAll = requests == ALL;
    hasFailed = false;
    failing = size;
    granted = passed;
    largest = 0;
}

FailingMemory::~FailingMemory()
{
    failing = NEVER;
    failsAll = false;
}

size_t FailingMemory::Largest() const
{
    return largest;
}

bool FailingMemory::HasFailed() const
{
    return hasFailed;
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
    void* memory = failsAll ? Allocate(size) : std::malloc(size > 0 ? size : 1);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

void* operator new[](size_t size)
{
    return operator new(size);
}
