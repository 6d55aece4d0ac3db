#pragma once

#include <memory>

#include "ui/hands.h"
#include "ui/headless/scriptedPlatform.h"

namespace zelvs {

class Windows;

/// Real windows under a script: what the script does is sent as mouse and key events to the control's place on its
/// window. Where there is no display the toolkit's off-screen platform stands in, with a screen of 1920 by 1080.
class DesktopScript {
 public:
  DesktopScript(int& argc, char** argv);
  ~DesktopScript();
  DesktopScript(const DesktopScript&) = delete;
  DesktopScript& operator=(const DesktopScript&) = delete;

  ScriptedPlatform& platform();
  Hands& hands();
  const Windows& windows() const;

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace zelvs
