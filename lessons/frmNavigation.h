#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "ui/controls.h"
#include "ui/form.h"

namespace zelvs {

/// Where the lesson and the list of lessons stand: twips from the right and the bottom of the screen.
inline constexpr double kLessonFromRight = 50;
inline constexpr double kLessonFromBottom = 500;

/// Lines of a lesson's file that are a page.
inline constexpr int kLinesOfPage = 3;

/// A lesson, page by page, in the right bottom corner of the screen. It only tells: what is done is up to the user.
/// Three lines of its file are a page, of which the third is never shown; lines behind the last whole page neither.
class FrmNavigation final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmNavigation();

  Shape shpPaper{this, "shpPaper"};  // the sheet that both strips lie on
  ControlArray<PictureBox> picNav{this, "picNav", 0, 1};
  ControlArray<CommandButton> cmdAction{this, "cmdAction", 0, 3};  // back, next, to the list, end
  Label lblIndex{this, "lblIndex"};

  std::vector<std::string> naviLines;  ///< all lines of the lesson's file, the first at 0
  std::int16_t currentPage = 0;        ///< from 1
  std::int16_t pageCount = 0;

  /// Loads a lesson, by its name in the index, and shows page 1. A file that has gone is a run-time error.
  void setNavigation(const std::string& fileName);
  /// Shows a page, from 1. A line of it that the file does not have is a run-time error.
  void showPage(int page);
  /// "Back" is for every page but the first, "Next" for every page but pageCount.
  void updateButtons();
  /// Empties both strips and the page's number.
  void clearPage();
  /// Prints a text behind what the picture holds. "&", "#" and "\" are not printed: they turn what follows black,
  /// blue and red, and the picture's ForeColor with it.
  static void printMarked(PictureBox& picture, std::string_view text);

 protected:
  void load() override;
  void activated() override;
  void resized() override;

 private:
  void turnTo(int page);

  std::string path_;
};

inline FormRef<FrmNavigation> frmNavigation{"frmNavigation"};

}  // namespace zelvs
