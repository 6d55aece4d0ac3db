#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/controls.h"
#include "ui/form.h"
#include "ui/picture.h"

namespace zelvs {

/// An entry of the list of hints.
struct HintRecord {
  std::string fileName;  ///< of the picture, in hintsFolder()
  std::optional<std::string> caption;
};

/// The hints' folder, with its last separator, below programFolder.
std::string hintsFolder();
inline constexpr std::string_view kListOfHints = "RegsterHint.TXT";
/// The list of hints without its comments; nothing when it cannot be read.
std::optional<std::vector<HintRecord>> readHintList();

/// The tab, from 0, that must hold the hint on the control words: the memory window turns to it by number.
inline constexpr int kControlWordTab = 6;

/// Pictures that explain the chip's registers, one tab each, from the files in hintDir. Tabs count from 0, images from
/// 1. It is loaded once and lives on hidden: its close box only hides it.
class FrmHint final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Child;
  FrmHint();

  TabStrip tabHint{this, "tabHint"};
  PictureBox picHint{this, "picHint"};
  ImageList ilsHint{"ilsHint", 0};

  std::string hintDir;  ///< with its last separator

  /// Reads the list of hints: one tab and one image an entry, in its order. It never reports anything: a line without
  /// a caption gives a tab with none of its own, and a picture that cannot be loaded is left out, which moves the
  /// images of all later tabs forward by one.
  void initHint();

 protected:
  void load() override;
};

inline FormRef<FrmHint> frmHint{"frmHint"};

/// Turns to the first tab whose caption contains name; nothing while frmHint is not visible or when none does.
void selectHintTab(std::string_view name);
/// Turns to the hint on the control words; nothing while frmHint is not visible or has not that many hints.
void selectControlWordHint();

}  // namespace zelvs
