#include "ui/headless/scriptedPlatform.h"

#include "ui/waveFile.h"

namespace zelvs {

bool ScriptedPlatform::waitForEvent() {
  if (onWait) return onWait();
  if (onModal && desk().modal() != nullptr) onModal(*desk().modal());
  return false;
}

bool ScriptedPlatform::messageBox(const std::string& title, const std::string& text, MessageIcon /*icon*/,
                                  MessageButtons buttons) {
  return onMessageBox && onMessageBox(title, text, buttons);
}

bool ScriptedPlatform::openSound(const std::string& path) {
  return isWaveFile(path);
}

}  // namespace zelvs
