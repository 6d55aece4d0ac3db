#include "shell/writeSignals.h"

#include <csignal>

namespace zelvs {

void ignoreWriteSignals() {
#ifdef SIGPIPE
  std::signal(SIGPIPE, SIG_IGN);
#endif
#ifdef SIGXFSZ
  std::signal(SIGXFSZ, SIG_IGN);
#endif
}

}  // namespace zelvs
