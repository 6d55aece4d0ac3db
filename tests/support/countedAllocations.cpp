// Counts every allocation of the test program. In a file of its own: where both sides are seen at once, the compiler
// takes the pair new and free for a mistake.

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {
std::size_t theAllocations = 0;
}

// A stable sort asks for its room this way. Left to the sanitizers it would not go with our delete.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  ++theAllocations;
  return std::malloc(size == 0 ? 1 : size);
}
void* operator new(std::size_t size) {
  if (void* memory = operator new(size, std::nothrow)) return memory;
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}

namespace zelvs {

std::size_t allocationsSoFar();
std::size_t allocationsSoFar() {
  return theAllocations;
}

}  // namespace zelvs
