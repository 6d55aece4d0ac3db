#pragma once

#include <malloc.h>

#include <cstddef>

#if defined(__SANITIZE_ADDRESS__)
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();  // not every compiler ships its header
#endif

namespace zelvs {

/// Bytes that the program holds. Under the sanitizers it is exact; the plain heap counts what it keeps for the next
/// call as held.
inline std::size_t heapBytes() {
#if defined(__SANITIZE_ADDRESS__)
  return __sanitizer_get_current_allocated_bytes();
#else
  return mallinfo2().uordblks;
#endif
}

}  // namespace zelvs
