#pragma once

#include <string>
#include <vector>

#include "dialogs/frmDialog.h"
#include "dialogs/frmMessage.h"
#include "link/simulation.h"
#include "panel/resets.h"
#include "shell/frmMDI.h"
#include "support/program.h"
#include "ui/gesture.h"

namespace zelvs {

/// A box that asked the user something.
struct Asked {
  std::string title;
  std::string message;
  bool twoButtons = false;
};

/// The started program with a user in front of the panel. Boxes are answered at once and remembered.
class PanelTest : public ProgramTest {
 protected:
  void SetUp() override {
    platform.onModal = [this](Form&) {
      std::string message = frmDialog->lblMessage.Caption;
      // The box puts a line break behind its message.
      if (message.ends_with("\r\n")) message.resize(message.size() - 2);
      asked.push_back({frmDialog->lblDialogTitle.Caption, message, frmDialog->cmdAction(1).Visible});
      const bool refuse = asked.back().twoButtons && !agree;
      EXPECT_EQ(gesture::click(*frmDialog, &frmDialog->cmdAction(refuse ? 1 : 0)), "");
    };
  }

  static void click(Control& control) { EXPECT_EQ(gesture::click(control.form(), &control), ""); }
  static void doubleClick(Control& control) { EXPECT_EQ(gesture::doubleClick(control.form(), &control), ""); }
  /// A double click whose button is still down.
  static void hold(Control& control) { EXPECT_EQ(gesture::doubleClick(control.form(), &control, false), ""); }
  static void press(Control& control) { EXPECT_EQ(gesture::press(control.form(), &control), ""); }
  static void release(Control& control) { EXPECT_EQ(gesture::release(control.form(), &control), ""); }

  /// Opens a list at its picture and picks a row.
  static void choose(Control& picture, ComboBox& list, int row) {
    doubleClick(picture);
    EXPECT_EQ(gesture::pick(list, row), "");
  }
  static void chooseAddress(int list, int station) {
    choose(frmHard->picSA(2 * list), frmHard->cmbSA(list), station - 1);
  }

  /// The text of the yellow pop-up, which then is clicked away; empty when there is none.
  static std::string refusal() {
    if (!frmMessage.visible()) return {};
    const std::string text = frmMessage->lblMessage.Caption;
    frmMessage->hide();
    return text;
  }

  /// The one box since the last call, empty when there was none.
  Asked theBox() {
    EXPECT_LE(asked.size(), 1u);
    const Asked box = asked.empty() ? Asked{} : asked.front();
    asked.clear();
    return box;
  }

  std::vector<Asked> asked;
  bool agree = true;
};

/// How a picture prints: list and number.
inline std::string shown(const Picture& picture) {
  return picture.list == nullptr ? "none" : picture.list->name() + " " + std::to_string(picture.image);
}

inline constexpr const char* kWarning = "   警 告";

}  // namespace zelvs
