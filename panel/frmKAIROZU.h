#pragma once

#include <string>
#include <vector>

#include "ui/controls.h"
#include "ui/form.h"

namespace zelvs {

/// The schematics' folder, with its last separator, below programFolder.
std::string schematicsFolder();
/// The names of all pictures there that some board with some settings shows.
std::vector<std::string> schematicFiles();

/// The schematic of a board, chosen by the board's present settings. Boards by index of picBoard, 0 to 6.
class FrmKAIROZU final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Child;
  FrmKAIROZU();

  PictureBox picKAIROZU{this, "picKAIROZU"};  // takes the size of its picture, and the form takes its
  PictureBox picHalf{this, "picHalf"};        // what half duplex changes, over the main picture

  /// Shows a board's schematic. A picture file that is missing ends the program with its name.
  void setKAIROZU(int index);

 protected:
  void activated() override;
};

inline FormRef<FrmKAIROZU> frmKAIROZU{"frmKAIROZU"};

/// A setting of a board has changed: its schematic follows when it is the one that is shown.
void changeKAIROZU(int index);

}  // namespace zelvs
