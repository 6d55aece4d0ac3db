// The lessons: their index, the list to choose from, and the strip that shows them page by page.

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "lessons/frmNaviList.h"
#include "lessons/frmNavigation.h"
#include "lessons/naviIndex.h"
#include "monitor/frmDumpSel.h"
#include "shell/frmMDI.h"
#include "shell/frmVersion.h"
#include "support/program.h"
#include "support/userFixture.h"
#include "text/codePage932.h"
#include "text/utf8.h"
#include "ui/inspect.h"

namespace zelvs {
namespace {

constexpr Colour kBlue = 0xFF0000;
const auto kErrorStatus = testing::ExitedWithCode(kRunTimeErrorStatus);

class NavigationTest : public ProgramTest {
 protected:
  NavigationTest() { naviDataPath = folder.path() + "/NaviData/"; }

  /// A file of the lessons' folder, as a Japanese system writes it.
  void write(const std::string& name, const std::vector<std::string>& lines) {
    std::filesystem::create_directories(std::filesystem::path(folder.file("NaviData/" + name)).parent_path());
    std::string text;
    for (const std::string& line : lines)
      text += line + "\r\n";
    std::size_t lackingAt = 0;
    const auto bytes = codePage932FromUtf8(text, lackingAt);
    ASSERT_TRUE(bytes) << text;
    folder.write("NaviData/" + name, *bytes);
  }
  /// Lessons of so many lines, each telling its number.
  void writeLesson(const std::string& name, int lines) {
    std::vector<std::string> texts;
    for (int line = 1; line <= lines; ++line)
      texts.push_back("line " + std::to_string(line));
    write(name, texts);
  }
  /// An index of two lessons and one that is missing.
  void startWithLessons() {
    write("NaviIndex.txt", {"; comment", "a.txt\tレッスンＡ\t", "none.txt\tなし\t", "b.txt\tレッスンＢ\tnote"});
    writeLesson("a.txt", 8);
    writeLesson("b.txt", 3);
    start();
  }

  static void openList() { doubleClick(frmMDI->lblNagigator); }
  /// Opens the list, starts one of its lessons and comes back from the list.
  void startLesson(int row) {
    platform.onModal = [row](Form&) {
      gesture::pick(frmNaviList->lstTitle, row);
      click(frmNaviList->cmdStart);
    };
    openList();
  }
  static std::string drawing(int strip) { return inspect(frmNavigation->picNav(strip), "Drawing", {})->text; }
  static std::vector<std::string> texts(int strip) {
    std::vector<std::string> texts;
    for (const DrawingOperation& operation : frmNavigation->picNav(strip).drawing())
      texts.push_back(operation.text);
    return texts;
  }
};

// ---- The index

TEST_F(NavigationTest, TheIndexIsReadInItsOrder) {
  write("NaviIndex.txt", {"; first field, second field", "a.txt\t表を見る\t備考", ";x", "sub\\b.txt\tｱ ; B\t1\t2\t3",
                          "missing.txt\t\t", "folder\tc\t", "\tno name\t", " ;d.txt\td\t"});
  write("a.txt", {});
  write("sub/b.txt", {});
  std::filesystem::create_directory(folder.file("NaviData/folder"));
  start();
  EXPECT_EQ(naviDataPath, folder.path() + "/NaviData/");
  struct Row {
    const char *fileName, *title, *note;
    Flag exists;
  };
  const Row rows[] = {{"a.txt", "表を見る", "備考", kTrue}, {"sub\\b.txt", "ｱ ; B", "1\t2\t3", kTrue},
                      {"missing.txt", "", "", kFalse},      {"folder", "c", "", kFalse},
                      {"", "no name", "", kFalse},          {" ;d.txt", "d", "", kFalse}};
  ASSERT_EQ(naviIndex.size(), std::size(rows));
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    EXPECT_EQ(naviIndex[i].fileName, rows[i].fileName);
    EXPECT_EQ(naviIndex[i].title, rows[i].title);
    EXPECT_EQ(naviIndex[i].note, rows[i].note);
    EXPECT_EQ(naviIndex[i].exists, rows[i].exists) << rows[i].fileName;
  }
  naviIndex.push_back({});
  readNaviIndex();
  EXPECT_EQ(naviIndex.size(), std::size(rows)) << "read anew, not added to";
}

TEST_F(NavigationTest, NoIndexIsAnEmptyOne) {
  start();
  EXPECT_EQ(processStep, 8);
  EXPECT_TRUE(naviIndex.empty());
  EXPECT_EQ(naviDataPath, folder.path() + "/NaviData/");
  std::filesystem::create_directories(folder.file("NaviData/NaviIndex.txt"));
  readNaviIndex();
  EXPECT_TRUE(naviIndex.empty()) << "a folder of that name";
}

TEST_F(NavigationTest, OnlyCommentsAreAnEmptyIndex) {
  write("NaviIndex.txt", {";", "; a.txt\ta\t"});
  start();
  EXPECT_TRUE(naviIndex.empty());
}

TEST_F(NavigationTest, TheLastLineNeedsNoEnd) {
  write("NaviIndex.txt", {});
  folder.write("NaviData/NaviIndex.txt", "a\tb\tc\nd\te\t");
  start();
  ASSERT_EQ(naviIndex.size(), 2u);
  EXPECT_EQ(naviIndex[0].note, "c");
  EXPECT_EQ(naviIndex[1].note, "");
}

TEST_F(NavigationTest, AMalformedLineIsNamed) {
  struct Row {
    const char* name;
    std::vector<std::string> lines;
    const char* message;
  };
  const Row table[] = {
      {"one TAB", {";", "a.txt\ta"}, "NaviIndex.txt, line 2: .*a.txt"},
      {"no TAB", {"a.txt\ta\t", "b.txt", "c.txt\tc\t"}, "NaviIndex.txt, line 2: .*b.txt"},
      {"an empty line", {"a.txt\ta\t", ";", ""}, "NaviIndex.txt, line 3: "},
      {"blanks before the comment", {" ; a"}, "NaviIndex.txt, line 1: "},
      {"a full-width semicolon", {"；コメント"}, "NaviIndex.txt, line 1: "},
  };
  frmVersion.load();
  for (const Row& row : table) {
    write("NaviIndex.txt", row.lines);
    EXPECT_EXIT(readNaviIndex(), kErrorStatus, row.message) << row.name;
  }
}

/// What a run-time error tells, in characters.
std::size_t lengthOfError(const std::function<void()>& fails, const std::string& end) {
  constexpr std::size_t kProgram = 9;  // "ZEL-VS: " and the line's end
  testing::internal::CaptureStderr();
  const pid_t child = fork();
  if (child == 0) {
    fails();
    _exit(0);
  }
  waitpid(child, nullptr, 0);
  const std::string told = testing::internal::GetCapturedStderr();
  EXPECT_TRUE(told.ends_with(end + "\n")) << told;
  return charactersOf(told).size() - kProgram;
}

TEST_F(NavigationTest, AnErrorOfTheIndexIsShortWhateverTheLineAndTheFolderAre) {
  constexpr std::size_t kMost = 200;
  const std::string longName(200, 'x');
  std::filesystem::create_directories(folder.file(longName + "/" + longName + "/NaviData"));
  const std::string list = longName + "/" + longName + "/NaviData/NaviIndex.txt";
  programFolder = folder.file(longName + "/" + longName);
  folder.write(list, std::string(60000, 'y') + "\r\n");
  EXPECT_LE(lengthOfError(readNaviIndex,
                          "/NaviData/NaviIndex.txt, line 1: no file name, title and note with a TAB "
                          "between: \"yyyyyyyyyyyyyyyyyyyy…yyyyyyyyyyyyyyyyyyy\""),
            kMost);
  folder.write(list, "a\tb\tc\r\n" + std::string(65537, 'y'));
  EXPECT_LE(lengthOfError(readNaviIndex, "/NaviIndex.txt cannot be read: line 2 is longer than 65536 bytes"), kMost);
  folder.write(list, "");
  ASSERT_EQ(truncate(folder.file(list).c_str(), off_t{1} << 40), 0);
  EXPECT_LE(lengthOfError(readNaviIndex, "/NaviIndex.txt cannot be read: larger than 16777216 bytes"), kMost);
  naviDataPath = programFolder + "/NaviData/";
  EXPECT_LE(lengthOfError([] { frmNavigation->setNavigation("NaviIndex.txt"); },
                          "/NaviIndex.txt cannot be read: larger than 16777216 bytes"),
            kMost);
}

TEST_F(NavigationTest, TheIndexHasAsManyEntriesAsSomebodyMayLookThrough) {
  constexpr std::size_t kMost = 10000;
  std::vector<std::string> lines(kMost, "a\tb\tc");
  lines.push_back("; no entry");
  write("NaviIndex.txt", lines);
  start();
  EXPECT_EQ(naviIndex.size(), kMost);
  lines.push_back("a\tb\tc");
  write("NaviIndex.txt", lines);
  EXPECT_EXIT(readNaviIndex(), kErrorStatus, "NaviIndex.txt has more than 10000 entries at line 10002");
}

// ---- The list

TEST_F(NavigationTest, TheListIsShownInTheCorner) {
  startWithLessons();
  bool shown = false;
  platform.onModal = [&](Form& form) {
    shown = true;
    EXPECT_EQ(&form, frmNaviList.form());
    EXPECT_TRUE(frmNaviList->modal());
    EXPECT_FALSE(frmDumpSel.visible());
    EXPECT_EQ(frmNaviList->Caption, "Navigator List");
    EXPECT_DOUBLE_EQ(frmNaviList->Top, 1080 * 15 - frmNaviList->Height - 500);
    EXPECT_DOUBLE_EQ(frmNaviList->Left, 1920 * 15 - frmNaviList->Width - 50);
    EXPECT_EQ(frmNaviList->Label2.Caption, "リストの項目を選択し、\"Navigation Start\"ボタンを押してください。");
    EXPECT_EQ(frmNaviList->Label1.Caption, "（※　ナビゲーションのスタート時に、メーカー推奨設定に強制されます）");
    EXPECT_EQ(frmNaviList->cmdStart.Caption, "Navigation Start");
    EXPECT_EQ(frmNaviList->cmdCancel.Caption, "Cancel");
    ASSERT_EQ(frmNaviList->lstTitle.ListCount(), 3);
    EXPECT_EQ(frmNaviList->lstTitle.List(0), "レッスンＡ");
    EXPECT_EQ(frmNaviList->lstTitle.List(1), "なし");
    EXPECT_EQ(frmNaviList->lstTitle.List(2), "レッスンＢ");
    EXPECT_EQ(frmNaviList->lstTitle.ListIndex, 0);
    EXPECT_TRUE(frmNaviList->lstTitle.Visible);
    EXPECT_FALSE(frmNaviList->lblNoFile.Visible);
    EXPECT_TRUE(frmNaviList->cmdStart.Enabled);
    click(frmNaviList->cmdCancel);
  };
  click(frmMDI->lblMemoryWindow);
  EXPECT_TRUE(frmDumpSel.visible());
  openList();
  EXPECT_TRUE(shown);
  EXPECT_FALSE(frmNaviList.visible());
  EXPECT_FALSE(frmNavigation.loaded());
}

TEST_F(NavigationTest, TheListIsFilledOnceAndKeepsItsChoice) {
  startWithLessons();
  platform.onModal = [](Form&) {
    gesture::pick(frmNaviList->lstTitle, 2);
    click(frmNaviList->cmdCancel);
  };
  openList();
  Form* form = frmNaviList.form();
  naviIndex.clear();
  platform.onModal = [](Form& list) { EXPECT_EQ(gesture::close(list), ""); };
  openList();
  EXPECT_EQ(frmNaviList.form(), form) << "the close box hides it too";
  EXPECT_FALSE(frmNaviList.visible());
  EXPECT_EQ(frmNaviList->lstTitle.ListCount(), 3);
  EXPECT_EQ(frmNaviList->lstTitle.ListIndex, 2);
}

TEST_F(NavigationTest, AnEmptyListSaysSo) {
  start();
  platform.onModal = [](Form& form) { form.hide(); };
  openList();
  EXPECT_EQ(frmNaviList->lstTitle.ListCount(), 0);
  EXPECT_EQ(frmNaviList->lstTitle.ListIndex, -1);
  EXPECT_FALSE(frmNaviList->lstTitle.Visible);
  EXPECT_TRUE(frmNaviList->lblNoFile.Visible);
  EXPECT_FALSE(frmNaviList->cmdStart.Enabled);
  EXPECT_TRUE(frmNaviList->cmdCancel.Enabled);
}

TEST_F(NavigationTest, WhenTheLabelDoesNothingAtAll) {
  startWithLessons();
  int opened = 0;
  platform.onModal = [&](Form& form) {
    ++opened;
    form.hide();
  };
  click(frmMDI->lblMemoryWindow);
  frmVersion->show();
  openList();
  EXPECT_EQ(opened, 0);
  EXPECT_TRUE(frmDumpSel.visible());
  frmVersion->unload();

  frmNavigation->setNavigation("a.txt");
  frmNavigation->show();
  openList();
  EXPECT_EQ(opened, 0);
  EXPECT_TRUE(frmDumpSel.visible());

  frmNavigation->hide();
  openList();
  EXPECT_EQ(opened, 1);
  EXPECT_FALSE(frmDumpSel.visible());
}

TEST_F(NavigationTest, AMissingLessonIsRefused) {
  startWithLessons();
  struct Box {
    std::string title, text;
    MessageButtons buttons;
  };
  std::vector<Box> boxes;
  cpuType = 3;
  bool stayed = false;
  platform.onMessageBox = [&](const std::string& title, const std::string& text, MessageButtons buttons) {
    boxes.push_back({title, text, buttons});
    return true;
  };
  platform.onModal = [&](Form& form) {
    gesture::pick(frmNaviList->lstTitle, 1);
    click(frmNaviList->cmdStart);
    stayed = form.visible() && desk().modal() == &form;
    form.hide();
  };
  openList();
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].title, "確認");
  EXPECT_EQ(boxes[0].text, "ファイルが見つかりません。");
  EXPECT_EQ(boxes[0].buttons, MessageButtons::Ok);
  EXPECT_TRUE(stayed);
  EXPECT_FALSE(frmNavigation.loaded());
  EXPECT_EQ(cpuType, 3) << "no settings were forced";
}

TEST_F(NavigationTest, TheIconOfTheBoxIsTheInformationKind) {
  class AskedPlatform final : public ScriptedPlatform {
   public:
    Screen screen() override { return {1920, 1080}; }
    bool messageBox(const std::string&, const std::string&, MessageIcon icon, MessageButtons) override {
      informed = icon == MessageIcon::Information;
      return true;
    }
    bool informed = false;
  };
  startWithLessons();
  AskedPlatform other;
  platform.onModal = [&](Form& form) {
    gesture::pick(frmNaviList->lstTitle, 1);
    setPlatform(&other);
    click(frmNaviList->cmdStart);
    setPlatform(&platform);
    form.hide();
  };
  openList();
  EXPECT_TRUE(other.informed);
}

// ---- The start of a lesson

TEST_F(NavigationTest, AStartForcesTheMakersSettings) {
  startWithLessons();
  const std::int16_t stationOfMaker = saSetting[0];
  cpuType = 3;
  memoryClear = 0;
  saSetting[0] = 40;
  openWindow[1] = openWindow[2] = openWindow[3] = 0;
  openWindow[4] = openWindow[5] = 1;
  click(frmMDI->lblRunMode(1));
  startLesson(2);
  EXPECT_EQ(cpuType, 0);
  EXPECT_EQ(memoryClear, 1);
  EXPECT_EQ(saSetting[0], stationOfMaker);
  const std::int16_t wanted[] = {1, 1, 1, 0, 0};
  for (int window = 1; window <= 5; ++window)
    EXPECT_EQ(openWindow[window], wanted[window - 1]) << window;
  EXPECT_EQ(runMode, kRun);
  EXPECT_TRUE(frmHard.visible());

  EXPECT_FALSE(frmNaviList.visible());
  EXPECT_EQ(desk().modal(), nullptr);
  EXPECT_TRUE(frmNavigation.visible());
  EXPECT_FALSE(frmNavigation->modal());
  EXPECT_EQ(desk().active(), frmNavigation.form());
  EXPECT_EQ(texts(0), std::vector<std::string>{"line 1"});
}

TEST_F(NavigationTest, FromLessonToLesson) {
  startWithLessons();
  startLesson(0);
  click(frmNavigation->cmdAction(1));
  EXPECT_EQ(frmNavigation->currentPage, 2);
  Form* form = frmNavigation.form();

  // The list and Cancel: no lesson is left on the screen, but it is not discarded.
  platform.onModal = [](Form& list) {
    EXPECT_EQ(&list, frmNaviList.form());
    EXPECT_FALSE(frmNavigation.visible());
    click(frmNaviList->cmdCancel);
  };
  click(frmNavigation->cmdAction(2));
  EXPECT_FALSE(frmNavigation.visible());
  EXPECT_EQ(frmNavigation.form(), form);

  // The same window takes the next one, from its first page.
  startLesson(2);
  EXPECT_EQ(frmNavigation.form(), form);
  EXPECT_TRUE(frmNavigation.visible());
  EXPECT_EQ(frmNavigation->currentPage, 1);
  EXPECT_EQ(frmNavigation->pageCount, 1);
  EXPECT_EQ(frmNavigation->naviLines.size(), 3u);

  // From the list behind "to Menu List".
  platform.onModal = [](Form&) {
    gesture::pick(frmNaviList->lstTitle, 0);
    click(frmNaviList->cmdStart);
  };
  click(frmNavigation->cmdAction(2));
  EXPECT_TRUE(frmNavigation.visible());
  EXPECT_EQ(frmNavigation->pageCount, 2);

  click(frmNavigation->cmdAction(3));
  EXPECT_FALSE(frmNavigation.loaded());
  startLesson(0);
  EXPECT_EQ(gesture::close(*frmNavigation), "");
  EXPECT_FALSE(frmNavigation.loaded()) << "the close box discards it";
}

TEST_F(NavigationTest, ALessonThatHasGoneIsNamed) {
  startWithLessons();
  std::filesystem::remove(folder.file("NaviData/a.txt"));
  EXPECT_EXIT(startLesson(0), kErrorStatus, "lesson file not found: .*/NaviData/a\\.txt");
}

// ---- Pages

TEST_F(NavigationTest, ThreeLinesAreAPage) {
  struct Row {
    int lines;
    std::int16_t pages;
    const char* index;
    bool next;
  };
  const Row table[] = {
      // Less than a page is shown all the same, and "Next", which leads nowhere, stays lit: page 1 is not page 0.
      {2, 0, "1/0", true}, {3, 1, "1/1", false}, {5, 1, "1/1", false},  {6, 2, "1/2", true},
      {8, 2, "1/2", true}, {9, 3, "1/3", true},  {36, 12, "1/12", true}};
  for (const Row& row : table) {
    SCOPED_TRACE(row.lines);
    writeLesson("a.txt", row.lines);
    frmNavigation->setNavigation("a.txt");
    EXPECT_EQ(frmNavigation->naviLines.size(), static_cast<std::size_t>(row.lines));
    EXPECT_EQ(frmNavigation->pageCount, row.pages);
    EXPECT_EQ(frmNavigation->currentPage, 1);
    EXPECT_EQ(frmNavigation->lblIndex.Caption, row.index);
    EXPECT_EQ(texts(0), std::vector<std::string>{"line 1"});
    EXPECT_EQ(texts(1), std::vector<std::string>{"line 2"});
    EXPECT_FALSE(frmNavigation->cmdAction(0).Enabled);
    EXPECT_EQ(frmNavigation->cmdAction(1).Enabled, row.next);
  }
  writeLesson("a.txt", 2);
  frmNavigation->setNavigation("a.txt");
  frmNavigation->show();
  click(frmNavigation->cmdAction(1));
  EXPECT_EQ(frmNavigation->currentPage, 1);
}

TEST_F(NavigationTest, BackAndNext) {
  writeLesson("a.txt", 11);
  frmNavigation->setNavigation("a.txt");
  frmNavigation->show();
  struct Row {
    int button;
    std::int16_t page;
    const char *index, *upper, *lower;
    bool back, next;
  };
  const Row steps[] = {
      {1, 2, "2/3", "line 4", "line 5", true, true},
      {1, 3, "3/3", "line 7", "line 8", true, false},
      {0, 2, "2/3", "line 4", "line 5", true, true},
      {0, 1, "1/3", "line 1", "line 2", false, true},
  };
  for (const Row& step : steps) {
    click(frmNavigation->cmdAction(step.button));
    EXPECT_EQ(frmNavigation->currentPage, step.page);
    EXPECT_EQ(frmNavigation->lblIndex.Caption, step.index);
    EXPECT_EQ(texts(0), std::vector<std::string>{step.upper});
    EXPECT_EQ(texts(1), std::vector<std::string>{step.lower});
    EXPECT_EQ(frmNavigation->cmdAction(0).Enabled, step.back);
    EXPECT_EQ(frmNavigation->cmdAction(1).Enabled, step.next);
  }
  EXPECT_NE(gesture::click(*frmNavigation, &frmNavigation->cmdAction(0)), "") << "disabled on page 1";
}

TEST_F(NavigationTest, ALineThatIsNotThereIsNamed) {
  for (const int lines : {0, 1}) {
    writeLesson("a.txt", lines);
    EXPECT_EXIT(frmNavigation->setNavigation("a.txt"), kErrorStatus,
                "NaviData/a.txt has no line " + std::to_string(lines + 1) + " for page 1: it has " +
                    std::to_string(lines) + " lines");
  }
  writeLesson("a.txt", 6);
  frmNavigation->setNavigation("a.txt");
  for (const int page : {0, 3, -1}) {
    EXPECT_EXIT(frmNavigation->showPage(page), kErrorStatus, "a.txt has no line ") << page;
  }
}

TEST_F(NavigationTest, ThePagesFitTheirCounter) {
  constexpr int kMostPages = 32767;
  write("a.txt", std::vector<std::string>(3 * kMostPages + 2));
  frmNavigation->setNavigation("a.txt");
  EXPECT_EQ(frmNavigation->pageCount, kMostPages);
  frmNavigation->showPage(kMostPages);
  EXPECT_EQ(frmNavigation->lblIndex.Caption, "32767/32767");
  write("a.txt", std::vector<std::string>(3 * kMostPages + 3));
  EXPECT_EXIT(frmNavigation->setNavigation("a.txt"), kErrorStatus, "a.txt has too many pages: 32768");
}

TEST_F(NavigationTest, ClearPageTakesTextAndCounterAway) {
  writeLesson("a.txt", 6);
  frmNavigation->setNavigation("a.txt");
  frmNavigation->clearPage();
  EXPECT_EQ(drawing(0), "");
  EXPECT_EQ(drawing(1), "");
  EXPECT_EQ(frmNavigation->lblIndex.Caption, "");
}

TEST_F(NavigationTest, LessonsInAFolderOfTheirOwn) {
  writeLesson("chapter1/a.txt", 3);
  frmNavigation->setNavigation("chapter1\\a.txt");
  EXPECT_EQ(frmNavigation->pageCount, 1);
  frmNavigation->setNavigation("\\chapter1/a.txt");
  EXPECT_EQ(frmNavigation->pageCount, 1);
}

// ---- Marks

TEST_F(NavigationTest, Marks) {
  struct Piece {
    std::string text;
    Colour colour;
  };
  struct Row {
    std::string line;
    std::vector<Piece> pieces;
    Colour after;  // the strip's ForeColor
  };
  const Row table[] = {
      {"", {}, kBlack},
      {"plain", {{"plain", kBlack}}, kBlack},
      {"Press #Next& now", {{"Press ", kBlack}, {"Next", kBlue}, {" now", kBlack}}, kBlack},
      {"&", {}, kBlack},
      {"#", {}, kBlue},
      {"\\", {}, kRed},
      {"abc#", {{"abc", kBlack}}, kBlue},
      {"a#\\b", {{"a", kBlack}, {"b", kRed}}, kRed},
      {"\\#&a", {{"a", kBlack}}, kBlack},
      {"#a#b", {{"a", kBlue}, {"b", kBlue}}, kBlue},
      {"\\red#blue&black", {{"red", kRed}, {"blue", kBlue}, {"black", kBlack}}, kBlack},
      {"表#ソ\\能&予", {{"表", kBlack}, {"ソ", kBlue}, {"能", kRed}, {"予", kBlack}}, kBlack},
      {"＃＆＼", {{"＃＆＼", kBlack}}, kBlack},
      {"##\\\\&&x", {{"x", kBlack}}, kBlack},
  };
  for (const Row& row : table) {
    SCOPED_TRACE(row.line);
    write("a.txt", {row.line, "second", ""});
    frmNavigation->setNavigation("a.txt");
    const PictureBox& strip = frmNavigation->picNav(0);
    ASSERT_EQ(strip.drawing().size(), row.pieces.size());
    double left = 0;
    for (std::size_t i = 0; i < row.pieces.size(); ++i) {
      const DrawingOperation& operation = strip.drawing()[i];
      EXPECT_EQ(operation.text, row.pieces[i].text);
      EXPECT_EQ(operation.colour, row.pieces[i].colour);
      EXPECT_EQ(operation.y1, 0);
      EXPECT_TRUE(i == 0 ? operation.x1 == 0 : operation.x1 > left) << "behind the piece before it";
      left = operation.x1;
    }
    EXPECT_EQ(strip.ForeColor, row.after);
    // Each line starts black, whatever the one above ended in.
    ASSERT_EQ(frmNavigation->picNav(1).drawing().size(), 1u);
    EXPECT_EQ(frmNavigation->picNav(1).drawing()[0].colour, kBlack);
  }
}

TEST_F(NavigationTest, AStripStartsBlackOnEachPage) {
  write("a.txt", {"a#", "b\\", "", "c", "d", ""});
  frmNavigation->setNavigation("a.txt");
  frmNavigation->showPage(2);
  EXPECT_EQ(drawing(0), "text 0 0 0 \"c\"");
  EXPECT_EQ(drawing(1), "text 0 0 0 \"d\"");
}

TEST_F(NavigationTest, FarBehindNoMarkIsLookedFor) {
  // The 29,999th character is the last that may be a mark; further on marks are only left out.
  struct Row {
    std::size_t before;
    std::vector<Colour> colours;
  };
  const Row table[] = {{29998, {kBlack, kBlue}}, {29999, {kBlack, kBlack}}};
  for (const Row& row : table) {
    SCOPED_TRACE(row.before);
    PictureBox& strip = frmNavigation->picNav(0);
    strip.cls();
    strip.ForeColor = kBlack;
    FrmNavigation::printMarked(strip, std::string(row.before, 'x') + "#y");
    ASSERT_EQ(strip.drawing().size(), 2u);
    EXPECT_EQ(strip.drawing()[0].text.size(), row.before);
    EXPECT_EQ(strip.drawing()[1].text, "y");
    for (std::size_t i = 0; i < 2; ++i)
      EXPECT_EQ(strip.drawing()[i].colour, row.colours[i]);
  }
  // A colour goes on over a piece without a mark.
  PictureBox& strip = frmNavigation->picNav(1);
  FrmNavigation::printMarked(strip, "#" + std::string(30001, 'x'));
  ASSERT_EQ(strip.drawing().size(), 2u);
  EXPECT_EQ(strip.drawing()[0].text.size(), 30000u);
  EXPECT_EQ(strip.drawing()[1].colour, kBlue);
  EXPECT_EQ(strip.ForeColor, kBlue);
}

// ---- The window

TEST_F(NavigationTest, TheStripStandsInTheCornerInFrontOfAll) {
  startWithLessons();
  startLesson(0);
  EXPECT_EQ(frmNavigation->Caption, "Navigation");
  EXPECT_EQ(frmNavigation->cmdAction(0).Caption, "Back");
  EXPECT_EQ(frmNavigation->cmdAction(1).Caption, "Next");
  EXPECT_EQ(frmNavigation->cmdAction(2).Caption, "to Menu List");
  EXPECT_EQ(frmNavigation->cmdAction(3).Caption, "Navi 終了");
  EXPECT_EQ(frmNavigation->border(), Border::Sizable);
  EXPECT_DOUBLE_EQ(frmNavigation->Width, 11205);
  EXPECT_DOUBLE_EQ(frmNavigation->Height, 1785);
  EXPECT_DOUBLE_EQ(frmNavigation->Left, 1920 * 15 - 11205 - 50);
  EXPECT_DOUBLE_EQ(frmNavigation->Top, 1080 * 15 - 1785 - 500);
  EXPECT_TRUE(frmNavigation->topmost());
  desk().activate(*frmHard);
  EXPECT_EQ(desk().forms().front(), frmNavigation.form());
}

TEST_F(NavigationTest, WhatAResizeMoves) {
  struct Row {
    double width, height;
  };
  for (const Row& row : {Row{11205, 1785}, Row{15000, 2000}, Row{8000, 1785}, Row{5000, 1500}, Row{300, 600}}) {
    SCOPED_TRACE(row.width);
    FrmNavigation& form = *frmNavigation;
    const double nextLeft = form.cmdAction(1).Left;
    form.Width = row.width;
    form.Height = row.height;
    EXPECT_DOUBLE_EQ(form.Left, 1920 * 15 - row.width - 50);
    EXPECT_DOUBLE_EQ(form.Top, 1080 * 15 - row.height - 500);
    for (const PictureBox& strip : form.picNav) {
      EXPECT_DOUBLE_EQ(strip.Left, 105);
      EXPECT_DOUBLE_EQ(strip.Width, row.width - 210);
    }
    EXPECT_DOUBLE_EQ(form.cmdAction(3).Left, row.width - form.cmdAction(3).Width - 210);
    EXPECT_DOUBLE_EQ(form.cmdAction(2).Left + form.cmdAction(2).Width, form.cmdAction(3).Left - 100);
    EXPECT_DOUBLE_EQ(form.lblIndex.Left + form.lblIndex.Width, form.cmdAction(2).Left - 100);
    EXPECT_DOUBLE_EQ(form.cmdAction(1).Left, nextLeft);
    const double room = form.lblIndex.Left - 200 - nextLeft;
    EXPECT_DOUBLE_EQ(form.cmdAction(1).Width, std::max(room, 0.0));
  }
  frmNavigation->Width = 100;
  EXPECT_DOUBLE_EQ(frmNavigation->picNav(0).Width, 0);
}

TEST_F(NavigationTest, AMovedWindowStaysUntilItIsSized) {
  frmNavigation->move(0, 0);
  frmNavigation->setNavigation((writeLesson("a.txt", 3), "a.txt"));
  frmNavigation->show();
  EXPECT_DOUBLE_EQ(frmNavigation->Left, 0);
  frmNavigation->Height = 1800;
  EXPECT_DOUBLE_EQ(frmNavigation->Left, 1920 * 15 - 11205 - 50);
}

}  // namespace
}  // namespace zelvs
