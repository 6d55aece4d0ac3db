#pragma once

#include <string>
#include <vector>

#include "dialogs/frmDialog.h"
#include "link/simulation.h"
#include "panel/resets.h"
#include "shell/frmMDI.h"
#include "support/program.h"
#include "support/userFixture.h"

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

  /// Opens a list at its picture and picks a row.
  static void choose(Control& picture, ComboBox& list, int row) {
    doubleClick(picture);
    EXPECT_EQ(gesture::pick(list, row), "");
  }
  static void chooseAddress(int list, int station) {
    choose(frmHard->picSA(2 * list), frmHard->cmbSA(list), station - 1);
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

inline constexpr const char* kWarning = "   警 告";

}  // namespace zelvs
