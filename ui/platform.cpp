#include "ui/platform.h"

#include "ui/desk.h"
#include "ui/view.h"

namespace zelvs {

namespace {

Platform* thePlatform = nullptr;
View theNoView;
View* theView = &theNoView;

}  // namespace

Platform& platform() {
  return *thePlatform;
}

void setPlatform(Platform* platform) {
  thePlatform = platform;
}

bool messageBox(const std::string& title, const std::string& text, MessageIcon icon, MessageButtons buttons) {
  desk().hand.lose();
  return platform().messageBox(title, text, icon, buttons);
}

View& view() {
  return *theView;
}

void setView(View* view) {
  theView = view != nullptr ? view : &theNoView;
}

}  // namespace zelvs
