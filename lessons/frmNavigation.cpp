#include "lessons/frmNavigation.h"

#include <algorithm>
#include <array>
#include <limits>

#include "lessons/frmNaviList.h"
#include "lessons/naviIndex.h"
#include "text/shortText.h"
#include "text/textFile.h"
#include "text/utf8.h"
#include "ui/desk.h"
#include "ui/runTimeError.h"

namespace zelvs {

namespace {

constexpr double kEdge = 105;  // between the form's edge and the strips
constexpr double kPaperEdge = 60;
constexpr double kStripTop = 120;
constexpr double kStripHeight = 300;
constexpr double kStripStep = 345;
constexpr double kButtonTop = 930;
constexpr double kButtonHeight = 360;
constexpr Colour kPaper = 0xF0FFFF;
constexpr Colour kPaperRim = 0xA0B0B0;

struct Mark {
  char32_t sign;
  Colour colour;
};
constexpr std::array<Mark, 3> kMarks = {{{U'&', kBlack}, {U'#', 0xFF0000}, {U'\\', kRed}}};
constexpr std::u32string_view kSigns = U"&#\\";

void toMenuList() {
  frmNavigation->hide();
  frmNaviList->show(ShowMode::Modal, desk().frame());
}

}  // namespace

FrmNavigation::FrmNavigation() : Form("frmNavigation", kKind, Border::Sizable) {
  Caption = "Navigation";
  addMember("currentPage", &currentPage);
  addMember("pageCount", &pageCount);
  setTopmost();  // from the start: an activation then brings it to the front of its like
  shpPaper.BackColor = kPaper;
  shpPaper.ForeColor = kPaperRim;
  shpPaper.move(kEdge - kPaperEdge, kStripTop - kPaperEdge, 0, kStripStep + kStripHeight + 2 * kPaperEdge);
  for (PictureBox& strip : picNav) {
    strip.BackColor = kPaper;
    strip.FontSize = 11;
    strip.move(kEdge, kStripTop + strip.index() * kStripStep, 0, kStripHeight);
  }
  lblIndex.FontSize = 10;
  lblIndex.Align = Alignment::Center;
  lblIndex.move(0, kButtonTop, 900, kButtonHeight);
  const auto place = [](CommandButton& button, std::string_view caption, double left, double width) {
    button.Caption = caption;
    button.move(left, kButtonTop, width, kButtonHeight);
  };
  place(cmdAction(0), "Back", kEdge, 2100);
  place(cmdAction(1), "Next", kEdge + 2100 + 100, 0);
  place(cmdAction(2), "to Menu List", 0, 1365);
  place(cmdAction(3), "Navi 終了", 0, 1215);

  cmdAction(0).onClick = [this] {
    if (currentPage > 1) turnTo(currentPage - 1);
  };
  cmdAction(1).onClick = [this] {
    if (currentPage < pageCount) turnTo(currentPage + 1);
  };
  cmdAction(2).onClick = toMenuList;
  cmdAction(3).onClick = [this] { unload(); };
}

void FrmNavigation::load() {
  constexpr double kLeastWidth = 11205;
  constexpr double kHeight = 1785;
  if (Width < kLeastWidth) Width = kLeastWidth;
  Height = kHeight;
}

void FrmNavigation::activated() {
  if (activeControl() == nullptr) desk().focus(&cmdAction(1));
}

void FrmNavigation::resized() {
  constexpr double kGap = 100;
  const auto room = [](double width) { return std::max(width, 0.0); };
  for (PictureBox& strip : picNav)
    strip.Width = room(Width - 2 * kEdge);
  shpPaper.Width = room(Width - 2 * kEdge + 2 * kPaperEdge);
  moveToCorner(kLessonFromRight, kLessonFromBottom);
  cmdAction(3).Left = Width - cmdAction(3).Width - 2 * kEdge;
  cmdAction(2).Left = cmdAction(3).Left - cmdAction(2).Width - kGap;
  lblIndex.Left = cmdAction(2).Left - lblIndex.Width - kGap;
  cmdAction(1).Width = room(lblIndex.Left - 2 * kGap - cmdAction(1).Left);
}

void FrmNavigation::setNavigation(const std::string& fileName) {
  naviLines.clear();
  clearPage();
  path_ = naviPath(fileName);
  const Deed deed("opening the lesson", path_);
  std::string refusal;
  const auto lines = readTextFile(path_, &refusal);
  if (!refusal.empty()) runTimeError(shortPath(path_) + " cannot be read: " + refusal);
  if (!lines) runTimeError("lesson file not found: " + shortPath(path_));
  naviLines = *lines;
  const std::size_t pages = naviLines.size() / kLinesOfPage;
  if (pages > std::numeric_limits<std::int16_t>::max()) {
    runTimeError(shortPath(path_) + " has too many pages: " + std::to_string(pages));
  }
  pageCount = static_cast<std::int16_t>(pages);
  turnTo(1);
}

void FrmNavigation::turnTo(int page) {
  currentPage = static_cast<std::int16_t>(page);
  showPage(page);
  updateButtons();
}

void FrmNavigation::showPage(int page) {
  const Deed deed("showing a page of the lesson", path_);
  lblIndex.Caption = std::to_string(page) + "/" + std::to_string(pageCount);
  for (PictureBox& strip : picNav) {
    const int number = (page - 1) * kLinesOfPage + strip.index() + 1;
    if (number < 1 || static_cast<std::size_t>(number) > naviLines.size()) {
      runTimeError(shortPath(path_) + " has no line " + std::to_string(number) + " for page " + std::to_string(page) +
                   ": it has " + std::to_string(naviLines.size()) + " lines");
    }
    strip.cls();
    strip.ForeColor = kBlack;
    printMarked(strip, naviLines[static_cast<std::size_t>(number) - 1]);
  }
}

void FrmNavigation::updateButtons() {
  cmdAction(0).Enabled = currentPage != 1;
  cmdAction(1).Enabled = currentPage != pageCount;
}

void FrmNavigation::clearPage() {
  for (PictureBox& strip : picNav)
    strip.cls();
  lblIndex.Caption = "";
}

void FrmNavigation::printMarked(PictureBox& picture, std::string_view text) {
  // Further on no mark is looked for: such a piece is printed in the colour of the one before it.
  constexpr std::size_t kLongestPiece = 30000;
  const std::u32string characters = charactersOf(text);
  Colour colour = kBlack;
  for (std::u32string_view rest = characters; !rest.empty();) {
    std::size_t length = std::min(kLongestPiece, rest.size());
    const std::size_t sign = rest.substr(0, kLongestPiece - 1).find_first_of(kSigns);
    if (sign != std::u32string_view::npos) {
      length = sign + 1;
      colour =
          std::find_if(kMarks.begin(), kMarks.end(), [&](const Mark& mark) { return mark.sign == rest[sign]; })->colour;
    }
    std::u32string piece(rest.substr(0, length));
    std::erase_if(piece, [](char32_t c) { return kSigns.find(c) != std::u32string_view::npos; });
    picture.print(textOf(piece));
    picture.ForeColor = colour;
    rest.remove_prefix(length);
  }
}

}  // namespace zelvs
