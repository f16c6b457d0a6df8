// Replaces every operator new of the executable by a counting one.
#include "tests/support/AllocationCounter.hpp"

#include <atomic>
#include <cstdlib>
#include <new>

// NOLINTBEGIN(cppcoreguidelines-no-malloc, cppcoreguidelines-owning-memory): it is the allocator.
namespace {

std::atomic<std::size_t> allocations{0};

void* counted(std::size_t size) noexcept {
  ++allocations;
  return std::malloc(size == 0 ? 1 : size);
}

void* countedAligned(std::size_t size, std::align_val_t alignment) noexcept {
  ++allocations;
  const auto bytes = static_cast<std::size_t>(alignment);
  return std::aligned_alloc(bytes, (size + bytes - 1) / bytes * bytes);
}

void* orThrow(void* memory) {
  if (memory == nullptr) {
    throw std::bad_alloc();
  }
  return memory;
}

}  // namespace

namespace orvane {

std::size_t AllocationCounter::total() {
  return allocations;
}

}  // namespace orvane

void* operator new(std::size_t size) {
  return orThrow(counted(size));
}
void* operator new[](std::size_t size) {
  return orThrow(counted(size));
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return counted(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  return counted(size);
}
void* operator new(std::size_t size, std::align_val_t alignment) {
  return orThrow(countedAligned(size, alignment));
}
void* operator new[](std::size_t size, std::align_val_t alignment) {
  return orThrow(countedAligned(size, alignment));
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete[](void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::align_val_t) noexcept {
  std::free(memory);
}
void operator delete[](void* memory, std::align_val_t) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept {
  std::free(memory);
}
void operator delete[](void* memory, std::size_t, std::align_val_t) noexcept {
  std::free(memory);
}
// NOLINTEND(cppcoreguidelines-no-malloc, cppcoreguidelines-owning-memory)
