// Replaces the global allocation functions by ones that count; a program that links this file has
// every allocation counted.

#include "benchmarks/allocation_counter.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {
std::atomic<std::size_t> count = 0;
}  // namespace

namespace benchmarks {
std::size_t allocationCount() noexcept {
  return count;
}
}  // namespace benchmarks

void* operator new(std::size_t size) {
  ++count;
  if (void* memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}
