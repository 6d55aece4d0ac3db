#include "ui/platform.h"

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

View& view() {
  return *theView;
}

void setView(View* view) {
  theView = view != nullptr ? view : &theNoView;
}

}  // namespace zelvs
