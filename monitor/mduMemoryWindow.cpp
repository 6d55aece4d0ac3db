#include "kernel/windowRefresh.h"

namespace zelvs {

// The three memory windows have still to be built: there is none to paint.
void refreshMemoryWindows() {}

}  // namespace zelvs
