#include "ui/runTimeError.h"

#include <cstdio>
#include <cstdlib>

namespace zelvs {

namespace {

void tellOnStandardError(const std::string& text) {
  std::fprintf(stderr, "ZEL-VS: %s\n", text.c_str());
}

RunTimeErrorTeller theTeller = tellOnStandardError;

}  // namespace

void setRunTimeErrorTeller(RunTimeErrorTeller teller) {
  theTeller = teller;
}

void runTimeError(const std::string& text) {
  // A teller that fails in its turn (a message box that cannot open) falls back to plain text.
  const RunTimeErrorTeller teller = theTeller;
  theTeller = tellOnStandardError;
  teller(text);
  std::fflush(nullptr);
  // The windows may be half built: nothing is torn down, the system takes the memory back.
  std::_Exit(kRunTimeErrorStatus);
}

}  // namespace zelvs
