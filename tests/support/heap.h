#pragma once

#include <malloc.h>

#include <cstddef>

// One compiler says it by a macro, another by a feature.
#if defined(__SANITIZE_ADDRESS__)
#define ZELVS_HEAP_IS_EXACT 1
#elif defined(__has_feature)
#define ZELVS_HEAP_IS_EXACT __has_feature(address_sanitizer)
#else
#define ZELVS_HEAP_IS_EXACT 0
#endif

#if ZELVS_HEAP_IS_EXACT
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();  // not every compiler ships its header
#endif

namespace zelvs {

/// Bytes that the program holds. Under the sanitizers it is exact; the plain heap counts what it keeps for the next
/// call as held.
inline std::size_t heapBytes() {
#if ZELVS_HEAP_IS_EXACT
  return __sanitizer_get_current_allocated_bytes();
#else
  return mallinfo2().uordblks;
#endif
}

}  // namespace zelvs
