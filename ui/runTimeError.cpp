#include "ui/runTimeError.h"

#include <cstdio>
#include <cstdlib>

#include "text/shortText.h"
#include "ui/control.h"
#include "ui/form.h"

namespace zelvs {

namespace {

void tellOnStandardError(const std::string& text) {
  std::fprintf(stderr, "ZEL-VS: %s\n", text.c_str());
}

RunTimeErrorTeller theTeller = tellOnStandardError;
const Deed* theInnermost = nullptr;

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

Deed::Deed(std::string_view what, std::string_view name) : what_(what), name_(name), around_(theInnermost) {
  theInnermost = this;
}

Deed::Deed(std::string_view what, const Form& form, const Control* control) : Deed(what) {
  form_ = &form;
  control_ = control;
}

Deed::Deed(std::string_view what, const Control& control) : Deed(what, control.form(), &control) {}

Deed::~Deed() {
  theInnermost = around_;
}

std::string Deed::name() const {
  if (control_ != nullptr) return control_->fullName();
  return form_ != nullptr ? form_->name() : std::string(name_);
}

std::vector<std::string> deedWords() {
  constexpr std::size_t kMost = 6;
  std::vector<std::string> words;
  for (const Deed* deed = theInnermost; deed != nullptr && words.size() < kMost; deed = deed->around_) {
    const std::string name = deed->name();
    words.push_back(shortened("while " + std::string(deed->what_) + (name.empty() ? "" : " ") + name, kLongestTold));
  }
  return words;
}

}  // namespace zelvs
