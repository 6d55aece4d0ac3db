// Counts every allocation of the test program. In a file of its own: where both sides are seen at once, the compiler
// takes the pair new and free for a mistake.

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {
std::size_t theAllocations = 0;
}

void* operator new(std::size_t size) {
  ++theAllocations;
  if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
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
