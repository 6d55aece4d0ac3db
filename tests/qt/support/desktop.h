#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

#include "support/program.h"
#include "ui/qt/canvas.h"
#include "ui/qt/desktopScript.h"
#include "ui/qt/qtPlatform.h"

namespace zelvs {

/// Real windows, off-screen, in a program folder of their own. None of the program runs until start() is called.
class DesktopTest : public testing::Test {
 protected:
  DesktopTest() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    desktop_ = std::make_unique<DesktopScript>(argc_, argv_);
    clearState();
    programFolder = folder.path();
  }
  ~DesktopTest() override {
    desk().clear();
    settle();
  }

  /// From here on time is real and modal windows run loops of their own, as before a person.
  void takePersonsPlatform() {
    persons_ = std::make_unique<QtPlatform>(desktop_->windows());
    setPlatform(persons_.get());
  }
  /// Starts with the maker's values, some of them replaced.
  void start(const std::map<std::string, std::string>& changes = {}) {
    folder.write("ZELVS.INI", makerIni(changes));
    startUp();
    settle();
  }

  Hands& hands() { return desktop_->hands(); }
  ScriptedPlatform& scripted() { return desktop_->platform(); }

  static void settle() {
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    for (int i = 0; i < 3; ++i)
      QApplication::processEvents();
  }
  /// Null when the form has no window.
  static Canvas* canvasOf(const Form* form) {
    for (QWidget* widget : QApplication::allWidgets()) {
      auto* canvas = qobject_cast<Canvas*>(widget);
      if (canvas != nullptr && canvas->form() == form) return canvas;
    }
    return nullptr;
  }

  TemporaryFolder folder;

 private:
  int argc_ = 1;
  char name_[5] = "test";
  char* argv_[2] = {name_, nullptr};
  std::unique_ptr<DesktopScript> desktop_;
  std::unique_ptr<QtPlatform> persons_;
};

}  // namespace zelvs
