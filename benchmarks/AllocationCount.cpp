#include "AllocationCount.h"

#include <cstdlib>

namespace {

thread_local std::size_t count = 0;

}

// The C library lets a program put its own functions in the place of these; operator new calls
// malloc.
extern "C" {

void* __libc_malloc(std::size_t);
void* __libc_calloc(std::size_t, std::size_t);
void* __libc_realloc(void*, std::size_t);

void* malloc(std::size_t size)
{
    ++count;
    return __libc_malloc(size);
}

void* calloc(std::size_t items, std::size_t size)
{
    ++count;
    return __libc_calloc(items, size);
}

void* realloc(void* memory, std::size_t size)
{
    ++count;
    return __libc_realloc(memory, size);
}
}

std::size_t allocationCount()
{
    return count;
}
