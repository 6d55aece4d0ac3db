// The generator of serial words: what it draws, how the drawing runs, and what reaches the board.

#include <algorithm>
#include <string>
#include <vector>

#include "bench/frmHard.h"
#include "panel/frmEditSerial.h"
#include "panel/resets.h"
#include "support/dialogFixture.h"
#include "ui/inspect.h"

namespace zelvs {
namespace {

constexpr int kRunTime = 3200;

struct Stroke {
  double x1, y1, x2, y2;
  friend bool operator==(const Stroke&, const Stroke&) = default;
};
void PrintTo(const Stroke& s, std::ostream* out) {
  *out << s.x1 << ' ' << s.y1 << ' ' << s.x2 << ' ' << s.y2;
}
using Strokes = std::vector<Stroke>;

class SerialEditorTest : public DialogTest {
 protected:
  void SetUp() override { startIdle(); }

  static FrmEditSerial& dialog() { return *frmEditSerial; }
  static CommandButton& setButton() { return dialog().cmdAction(0); }
  static CommandButton& cancelButton() { return dialog().cmdAction(1); }
  static CommandButton& startButton() { return dialog().cmdAction(2); }
  static void enter() { EXPECT_EQ(gesture::keyDown(dialog().txtWriteData, key::kEnter), ""); }

  /// Double clicks on a board's socket; what the user then does in the dialog is the action.
  void open(int i, std::function<void()> action) {
    const int before = opened;
    inside = std::move(action);
    doubleClick(frmHard->picSDI(i));
    inside = nullptr;
    EXPECT_EQ(opened, before + 1);
  }
  void send(int i, const std::string& word) {
    open(i, [&] {
      type(dialog().txtWriteData, word);
      click(setButton());
      click(startButton());
      platform.advance(kRunTime);
    });
  }
  static std::string led(int i) {
    const Picture& picture = frmHard->picSE(i).Picture;
    return picture.list->name() + " " + std::to_string(picture.image);
  }
  static std::string enabled() {
    std::string text;
    for (const CommandButton& button : dialog().cmdAction)
      text += button.Enabled ? button.Caption.get()[0] : '-';
    return text;  // "SC-" when it opens, "SCS" when there is a drawing, "---" while it runs
  }
  /// The index of the button that answers Enter.
  static int defaultButton() {
    int found = -1;
    for (const CommandButton& button : dialog().cmdAction) {
      if (!button.Default) continue;
      EXPECT_EQ(found, -1);
      found = button.index();
    }
    return found;
  }
  static int word(int i) { return serialData[2 * i + 1] << 8 | serialData[2 * i]; }

  void draw(const std::string& text) {
    open(0, [&] {
      dialog().txtWriteData.Text = text;
      click(setButton());
    });
  }
  /// The lines that lie between two heights, in the order drawn.
  static Strokes strokes(double top, double bottom) {
    Strokes found;
    for (const DrawingOperation& operation : dialog().picDREQ_Data.drawing()) {
      if (operation.isText || std::min(operation.y1, operation.y2) < top) continue;
      if (std::max(operation.y1, operation.y2) > bottom) continue;
      EXPECT_EQ(operation.colour, kBlack);
      found.push_back({operation.x1, operation.y1, operation.x2, operation.y2});
    }
    return found;
  }
};

// ---- The window

TEST_F(SerialEditorTest, ItOpensBesideTheBoardForTheBoard) {
  const double places[][2] = {{2800, 7500}, {2800, 12600}, {5900, 7500}, {5900, 12600}};
  frmHard->move(300, 150);
  for (int i = 0; i < 4; ++i) {
    open(i, [&] {
      EXPECT_TRUE(dialog().modal());
      EXPECT_EQ(dialog().owner(), frmMDI.form());
      EXPECT_EQ(serialEditBoard, i);
      EXPECT_EQ(dialog().lblAdr.Caption.get(), std::to_string(i + 1));
      EXPECT_EQ(dialog().Top, 150 + places[i][0]);
      EXPECT_EQ(dialog().Left, 300 + places[i][1]);
      EXPECT_FALSE(frmHard->picSerialInt(i).Visible);
    });
  }
}

TEST_F(SerialEditorTest, AtTheEdgeOfTheScreenItStaysWhole) {
  frmHard->move(15000, 9000);
  open(3, [] {
    EXPECT_EQ(dialog().Left, 1920 * 15 - dialog().Width);
    EXPECT_EQ(dialog().Top, 1080 * 15 - dialog().Height);
  });
}

TEST_F(SerialEditorTest, ItsTextsAndSizes) {
  FrmEditSerial& form = dialog();
  EXPECT_EQ(form.Caption.get(), "Serial Data Generator");
  EXPECT_EQ(form.Label1.Caption.get(), "Sattelite No");
  EXPECT_EQ(form.lblSECaution.Caption.get(), "☆ボードが接続されていません☆ 入力されたデータは格納されません。");
  EXPECT_EQ(form.txtWriteData.Text.get(), "0000");
  EXPECT_EQ(form.txtWriteData.MaxLength, 4);
  const char* buttons[] = {"Set", "Cancel", "Start"};
  const char* traces[] = {"SDI", "SCK", "SLD"};
  const double low[] = {45, 75, 105};
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(form.cmdAction(i).Caption.get(), buttons[i]);
    const Label& label = form.Label2(i);
    EXPECT_EQ(label.Caption.get(), traces[i]);
    EXPECT_EQ(label.Top + label.Height / 2, form.picDREQ_Cover.Top + low[i] * 15);
    EXPECT_LE(label.Left + label.Width, form.picDREQ_Cover.Left);
  }
  for (const PictureBox* picture : {&form.picDREQ_Cover, &form.picDREQ_Data}) {
    EXPECT_EQ(picture->Width, 461 * 15.0);
    EXPECT_EQ(picture->Height, 115 * 15.0);
  }
  EXPECT_EQ(form.Width, 461 * 15 + 900.0);
  EXPECT_EQ(form.Height, 115 * 15 + 1800.0);
  EXPECT_EQ(form.picDREQ_Data.container(), &form.picDREQ_Cover);
  EXPECT_EQ(form.picDREQ_Data.unit(), 15);
  EXPECT_FALSE(form.timEnter.Enabled);
}

TEST_F(SerialEditorTest, NothingLiesOverAnythingElseOrOutside) {
  const auto& controls = dialog().topControls();
  const Area form{0, 0, dialog().clientWidth(), dialog().clientHeight()};
  std::vector<const Control*> seen;
  for (const Control* control : controls) {
    if (control->kind() == ControlKind::Timer || control->kind() == ControlKind::Shape) continue;
    const Area area = control->area();
    const Area inForm = area.intersected(form);
    EXPECT_EQ(inForm.width, area.width) << control->fullName();
    EXPECT_EQ(inForm.height, area.height) << control->fullName();
    for (const Control* other : seen)
      EXPECT_TRUE(area.intersected(other->area()).empty()) << control->fullName() << " on " << other->fullName();
    seen.push_back(control);
  }
  EXPECT_EQ(seen.size(), 11u);
}

TEST_F(SerialEditorTest, EachOpeningBeginsAtRest) {
  for (int opening = 0; opening < 3; ++opening) {
    open(opening, [&] {
      EXPECT_EQ(dialog().cancelled, kFalse);
      EXPECT_EQ(desk().focused(), &dialog().txtWriteData);
      EXPECT_EQ(dialog().txtWriteData.SelStart, 0);
      EXPECT_EQ(dialog().txtWriteData.SelLength, 1);
      EXPECT_EQ(dialog().picDREQ_Data.Left, 120.0);
      EXPECT_EQ(enabled(), "SC-");
      EXPECT_FALSE(dialog().lblSECaution.Visible);
      dialog().lblSECaution.Visible = true;
      dialog().picDREQ_Data.Left = -3000;
      click(setButton());
      EXPECT_EQ(enabled(), "SCS");
      EXPECT_FALSE(frmHard->picSerialInt(opening).Visible);
      click(cancelButton());
    });
  }
}

TEST_F(SerialEditorTest, AStandingMessageGoesBeforeTheDialog) {
  serialPending[1] = kTrue;
  doubleClick(frmHard->picSDI(1));
  ASSERT_TRUE(frmMessage.visible());
  open(0, [] { EXPECT_FALSE(frmMessage.visible()); });
}

// ---- The field

TEST_F(SerialEditorTest, TheFieldIsOvertypedAndKeepsTheLettersCase) {
  open(0, [] {
    TextBox& field = dialog().txtWriteData;
    type(field, "aGxB漢 c-D");
    EXPECT_EQ(field.Text.get(), "aBcD");
    EXPECT_EQ(field.SelStart, 3);
    type(field, "7");
    EXPECT_EQ(field.Text.get(), "aBc7");
    const std::pair<int, int> keys[] = {{key::kRight, 3}, {key::kLeft, 2}, {key::kBackspace, 1}, {key::kDelete, 1},
                                        {key::kUp, 1},    {key::kDown, 1}, {key::kPageUp, 1},    {key::kPageDown, 1},
                                        {key::kLeft, 0},  {key::kLeft, 0}, {key::kBackspace, 0}, {key::kRight, 1}};
    for (const auto& [code, place] : keys) {
      EXPECT_EQ(gesture::keyDown(field, code), "");
      EXPECT_EQ(field.SelStart, place) << code;
      EXPECT_EQ(field.SelLength, 1) << code;
    }
    EXPECT_EQ(field.Text.get(), "aBc7") << "no key takes a digit away";
  });
}

TEST_F(SerialEditorTest, BothCasesOfALetterAreOneDigit) {
  const std::pair<const char*, int> rows[] = {
      {"abcd", 0xABCD}, {"ABCD", 0xABCD}, {"eFfE", 0xEFFE}, {"0009", 9}, {"9000", 0x9000}};
  for (const auto& [text, value] : rows) {
    send(0, text);
    EXPECT_EQ(dialog().enteredValue, text) << "as it was typed";
    EXPECT_EQ(word(0), value) << text;
    serialPending[0] = kFalse;
  }
}

TEST_F(SerialEditorTest, AShortTextStillHasItsHighByteFirst) {
  const struct {
    const char* text;
    int high;
    int low;
  } rows[] = {{"12", 0x12, 0}, {"1", 1, 0}, {"", 0, 0}, {"ABC", 0xAB, 0xC}, {"1234", 0x12, 0x34}};
  for (const auto& row : rows) {
    serialData[4] = serialData[5] = 0xEE;
    open(2, [&] {
      dialog().txtWriteData.Text = row.text;
      click(setButton());
      click(startButton());
      platform.advance(kRunTime);
    });
    EXPECT_EQ(serialData[5], row.high) << row.text;
    EXPECT_EQ(serialData[4], row.low) << row.text;
    serialPending[2] = kFalse;
  }
}

TEST_F(SerialEditorTest, AShortTextCanBeTypedOnAtItsEnd) {
  open(0, [] {
    TextBox& field = dialog().txtWriteData;
    field.Text = "1";
    for (int i = 0; i < 5; ++i)
      gesture::keyDown(field, key::kRight);
    EXPECT_EQ(field.SelStart, 1) << "no further than the text";
    type(field, "2345");
    EXPECT_EQ(field.Text.get(), "1235");
  });
}

// ---- The drawing

TEST_F(SerialEditorTest, EachBitHasItsNameOverItsCell) {
  draw("0000");
  std::string names;
  int count = 0;
  for (const DrawingOperation& operation : dialog().picDREQ_Data.drawing()) {
    if (!operation.isText) continue;
    EXPECT_EQ(operation.x1, 18 + 25 * count);
    EXPECT_EQ(operation.y1, 2);
    EXPECT_EQ(operation.fontSize, 8);
    EXPECT_EQ(operation.colour, kBlack);
    names += operation.text + " ";
    ++count;
  }
  EXPECT_EQ(names, "D15 D14 D13 D12 D11 D10 D9 D8 D7 D6 D5 D4 D3 D2 D1 D0 ");
}

TEST_F(SerialEditorTest, TheClockAndTheLoadPulseAreTheSameForEveryWord) {
  Strokes clock = {{0, 75, 18, 75}};
  for (double x = 18; x < 418; x += 25) {
    clock.push_back({x, 75, x + 12.5, 75});
    clock.push_back({x + 12.5, 75, x + 12.5, 50});
    clock.push_back({x + 12.5, 50, x + 25, 50});
    clock.push_back({x + 25, 50, x + 25, 75});
  }
  clock.push_back({418, 75, 461, 75});
  ASSERT_EQ(clock.size(), 66u);
  const Strokes load = {{0, 105, 430.5, 105},
                        {430.5, 105, 430.5, 80},
                        {430.5, 80, 455.5, 80},
                        {455.5, 80, 455.5, 105},
                        {455.5, 105, 461, 105}};
  for (const char* text : {"0000", "FFFF", "8001", "A5A5"}) {
    draw(text);
    EXPECT_EQ(strokes(50, 75), clock) << text;
    EXPECT_EQ(strokes(80, 105), load) << text;
  }
}

TEST_F(SerialEditorTest, AWordThatBeginsLowIsLedInFromTheEdge) {
  draw("0000");
  Strokes flat = {{0, 45, 43, 45}};
  for (double x = 43; x < 418; x += 25)
    flat.push_back({x, 45, x + 25, 45});
  flat.push_back({418, 45, 461, 45});
  EXPECT_EQ(strokes(20, 45), flat);
}

TEST_F(SerialEditorTest, AWordThatBeginsHighStartsWithItsFirstEdge) {
  draw("FFFF");
  Strokes high = {{18, 45, 18, 20}};
  for (double x = 18; x < 418; x += 25)
    high.push_back({x, 20, x + 25, 20});
  high.push_back({418, 20, 418, 45});
  high.push_back({418, 45, 461, 45});
  EXPECT_EQ(strokes(20, 45), high);
}

TEST_F(SerialEditorTest, TheDataLineChangesAtTheCellsLeftEdgesOnly) {
  struct Row {
    const char* text;
    std::vector<double> edges;  // up, down, up, ...
  };
  const Row rows[] = {
      {"0000", {}},
      {"FFFF", {18, 418}},
      {"8001", {18, 43, 393, 418}},
      {"7FFE", {43, 393}},
      {"0001", {393, 418}},
      {"8000", {18, 43}},
      {"A5A5", {18, 43, 68, 93, 143, 168, 193, 243, 268, 293, 343, 368, 393, 418}},
      {"a5a5", {18, 43, 68, 93, 143, 168, 193, 243, 268, 293, 343, 368, 393, 418}},
      {"12", {293, 318, 368, 393}},  // 0x0012
      {"", {}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.text);
    draw(row.text);
    std::vector<double> edges;
    std::vector<double> levels(16, 0);
    bool high = false;
    for (const Stroke& stroke : strokes(20, 45)) {
      if (stroke.x1 == stroke.x2) {
        EXPECT_EQ(stroke.y1, high ? 20 : 45);
        EXPECT_EQ(stroke.y2, high ? 45 : 20);
        high = !high;
        edges.push_back(stroke.x1);
        continue;
      }
      EXPECT_EQ(stroke.y1, high ? 20 : 45);
      EXPECT_EQ(stroke.y2, stroke.y1);
      if (stroke.x2 <= 418) levels[static_cast<std::size_t>((stroke.x2 - 43) / 25)] = stroke.y2;
    }
    EXPECT_EQ(edges, row.edges);
    EXPECT_FALSE(high) << "it ends low";
    for (int bit = 15; bit >= 0; --bit) {
      const bool one = (std::strtol(row.text, nullptr, 16) >> bit & 1) != 0;
      EXPECT_EQ(levels[static_cast<std::size_t>(15 - bit)], one ? 20 : 45) << "D" << bit;
    }
  }
}

TEST_F(SerialEditorTest, ANewDrawingTakesTheOldOnesPlace) {
  draw("A5A5");
  const std::size_t operations = dialog().picDREQ_Data.drawing().size();
  draw("A5A5");
  EXPECT_EQ(dialog().picDREQ_Data.drawing().size(), operations);
  EXPECT_EQ(operations, 16u + 66 + 5 + 16 + 14 + 1);
}

// ---- The run

TEST_F(SerialEditorTest, TheRunLasts32Steps) {
  open(1, [&] {
    click(setButton());
    click(startButton());
    EXPECT_EQ(enabled(), "---");
    EXPECT_EQ(dialog().timEnter.Interval, 100);
    for (int step = 1; step <= 31; ++step) {
      platform.advance(99);
      EXPECT_EQ(dialog().picDREQ_Data.Left, 120.0 - 225 * (step - 1));
      platform.advance(1);
      EXPECT_EQ(dialog().picDREQ_Data.Left, 120.0 - 225 * step);
      EXPECT_TRUE(dialog().visible()) << step;
      EXPECT_TRUE(frmHard->picSerialInt(1).Visible);
    }
    EXPECT_EQ(serialPending[1], kFalse) << "the word comes in one piece at the end";
    platform.advance(100);
    EXPECT_FALSE(dialog().visible());
    EXPECT_FALSE(dialog().timEnter.Enabled);
    EXPECT_EQ(dialog().timEnter.Interval, 0);
  });
  EXPECT_EQ(serialPending[1], kTrue);
  EXPECT_FALSE(frmHard->picSerialInt(1).Visible);
}

TEST_F(SerialEditorTest, OnlyTheEditedBoardGetsTheWord) {
  for (int i = 0; i < 4; ++i) {
    resetSimulationState();
    for (int board = 0; board < 4; ++board)
      frmHard->picSE(board).Picture = frmHard->ilsLED_G.image(1);
    open(i, [&] {
      type(dialog().txtWriteData, "8001");
      click(setButton());
      click(startButton());
      platform.advance(1600);
      for (int board = 0; board < 4; ++board)
        EXPECT_EQ(frmHard->picSerialInt(board).Visible.get(), board == i);
      platform.advance(1600);
    });
    for (int byte = 0; byte < 8; ++byte)
      EXPECT_EQ(serialData[byte], byte == 2 * i ? 0x01 : byte == 2 * i + 1 ? 0x80 : 0) << i;
    for (int board = 0; board < 4; ++board) {
      EXPECT_EQ(serialPending[board], board == i ? kTrue : kFalse);
      EXPECT_EQ(led(board), board == i ? "ilsLED_G 2" : "ilsLED_G 1");
      EXPECT_FALSE(frmHard->picSerialInt(board).Visible);
    }
  }
}

TEST_F(SerialEditorTest, TextChangedAfterTheDrawingGoesOutUnderTheOldDrawing) {
  std::string drawn;
  open(0, [&] {
    type(dialog().txtWriteData, "FFFF");
    click(setButton());
    drawn = inspect(dialog().picDREQ_Data, "Drawing", std::nullopt)->text;
    desk().focus(&dialog().txtWriteData);
    type(dialog().txtWriteData, "1234");
    click(startButton());
    EXPECT_EQ(inspect(dialog().picDREQ_Data, "Drawing", std::nullopt)->text, drawn);
    type(dialog().txtWriteData, "9");
    platform.advance(kRunTime);
  });
  EXPECT_EQ(dialog().enteredValue, "1234") << "what is typed during the run comes too late";
  EXPECT_EQ(word(0), 0x1234);
}

TEST_F(SerialEditorTest, TheTickRunsOnBehindTheDialog) {
  frmMDI->lblRunMode_Click(kRun);
  chipMemory[kScrLow] = 5;
  open(0, [&] {
    click(setButton());
    click(startButton());
    boardDi[0] = 0x5A;
    platform.advance(100);
    EXPECT_EQ(chipMemory[0x102], 0x5A) << "the center scans while the drawing moves";
    EXPECT_TRUE(dialog().visible());
  });
}

// ---- Cancelling and closing

TEST_F(SerialEditorTest, CancelSendsNothing) {
  serialData[2] = 0x34;
  serialData[3] = 0x12;
  for (const bool drawn : {false, true}) {
    open(1, [&] {
      type(dialog().txtWriteData, "FFFF");
      if (drawn) click(setButton());
      click(cancelButton());
      EXPECT_FALSE(dialog().visible());
    });
    EXPECT_EQ(dialog().cancelled, kTrue);
    EXPECT_EQ(serialPending[1], kFalse);
    EXPECT_EQ(word(1), 0x1234);
    EXPECT_EQ(led(1), "ilsLED_G 1");
    EXPECT_FALSE(frmHard->picSerialInt(1).Visible);
  }
}

TEST_F(SerialEditorTest, ClosingDuringTheRunSendsNothingAndStopsTheRun) {
  for (const int moment : {0, 100, 1650, 3199}) {
    SCOPED_TRACE(moment);
    open(0, [&] {
      type(dialog().txtWriteData, "8001");
      click(setButton());
      click(startButton());
      platform.advance(moment);
      EXPECT_EQ(gesture::close(dialog()), "");
      EXPECT_FALSE(dialog().visible());
    });
    EXPECT_EQ(dialog().cancelled, kTrue);
    EXPECT_EQ(serialPending[0], kFalse);
    EXPECT_EQ(word(0), 0);
    EXPECT_FALSE(frmHard->picSerialInt(0).Visible);
    EXPECT_EQ(defaultButton(), 0);
    const double left = dialog().picDREQ_Data.Left;
    platform.advance(10000);
    EXPECT_EQ(dialog().picDREQ_Data.Left, left) << "the drawing stands";

    open(0, [&] {
      EXPECT_EQ(dialog().picDREQ_Data.Left, 120.0);
      EXPECT_EQ(enabled(), "SC-");
      platform.advance(10000);
      EXPECT_TRUE(dialog().visible()) << "the old run does not end this opening";
      EXPECT_EQ(dialog().picDREQ_Data.Left, 120.0);
      click(setButton());
      click(startButton());
      platform.advance(kRunTime - 1);
      EXPECT_TRUE(dialog().visible()) << "a whole run";
      platform.advance(1);
    });
    EXPECT_EQ(word(0), 0x8001);
    resetSimulationState();
  }
}

TEST_F(SerialEditorTest, UnloadedByTheProgramItSendsNothingEither) {
  platform.onModal = [this](Form&) {
    click(setButton());
    click(startButton());
    platform.advance(500);
    frmEditSerial->unload();
  };
  doubleClick(frmHard->picSDI(0));
  EXPECT_FALSE(frmEditSerial.loaded());
  EXPECT_EQ(serialPending[0], kFalse);
  EXPECT_FALSE(frmHard->picSerialInt(0).Visible);
  platform.advance(10000);
  EXPECT_EQ(dialog().txtWriteData.Text.get(), "0000");
  EXPECT_EQ(defaultButton(), 0);
}

TEST_F(SerialEditorTest, ANewPanelServesTheSameDialog) {
  send(0, "8001");
  // As a restart does.
  frmHard->unload();
  resetSimulationState();
  start();
  EXPECT_EQ(serialPending[0], kFalse);
  EXPECT_EQ(led(0), "ilsLED_G 1");
  send(0, "1234");
  EXPECT_EQ(word(0), 0x1234);
  EXPECT_EQ(led(0), "ilsLED_G 2");
}

TEST_F(SerialEditorTest, APanelThatIsMadeAnewDuringTheRunGetsTheWord) {
  open(2, [&] {
    type(dialog().txtWriteData, "00FF");
    click(setButton());
    click(startButton());
    platform.advance(1000);
    frmHard->unload();
    platform.advance(2200);
    EXPECT_FALSE(dialog().visible());
  });
  EXPECT_EQ(word(2), 0x00FF);
  EXPECT_EQ(led(2), "ilsLED_G 2");
  EXPECT_FALSE(frmHard->picSerialInt(2).Visible);
}

// ---- Enter

TEST_F(SerialEditorTest, EnterSetsAndThenStarts) {
  EXPECT_EQ(defaultButton(), 0);
  open(0, [&] {
    type(dialog().txtWriteData, "00F0");
    enter();
    EXPECT_EQ(enabled(), "SCS");
    EXPECT_EQ(defaultButton(), 2);
    enter();
    EXPECT_EQ(enabled(), "---");
    EXPECT_EQ(defaultButton(), 0);
    enter();
    EXPECT_EQ(dialog().picDREQ_Data.Left, 120.0) << "no button answers during the run";
    EXPECT_EQ(enabled(), "---");
    platform.advance(kRunTime);
    EXPECT_FALSE(dialog().visible());
  });
  EXPECT_EQ(word(0), 0x00F0);
  serialPending[0] = kFalse;
  open(0, [] {
    EXPECT_EQ(defaultButton(), 0);
    enter();
    EXPECT_EQ(enabled(), "SCS");
  });
}

TEST_F(SerialEditorTest, AfterACancelledDrawingEnterRestsUntilSet) {
  open(0, [] {
    enter();
    click(cancelButton());
  });
  open(0, [&] {
    EXPECT_EQ(defaultButton(), 2) << "Cancel leaves it where it was";
    EXPECT_EQ(enabled(), "SC-");
    enter();
    EXPECT_TRUE(dialog().visible());
    EXPECT_EQ(enabled(), "SC-");
    EXPECT_FALSE(dialog().timEnter.Enabled);
    click(setButton());
    EXPECT_EQ(gesture::keyDown(dialog().txtWriteData, key::kEnter), "");
    EXPECT_EQ(enabled(), "---");
  });
  open(0, [] {
    EXPECT_EQ(defaultButton(), 0) << "the close box ended the last opening";
    enter();
    EXPECT_EQ(enabled(), "SCS");
    EXPECT_EQ(gesture::close(dialog()), "");
  });
  open(0, [] {
    EXPECT_EQ(defaultButton(), 0);
    enter();
    EXPECT_EQ(enabled(), "SCS");
  });
}

// ---- The refusal

TEST_F(SerialEditorTest, ALitLampRefusesInEveryRunMode) {
  for (const int mode : {kRun, kStop, kSlow, kOneTime}) {
    for (int i = 0; i < 4; ++i) {
      frmMDI->lblRunMode_Click(mode);
      chipMemory[kScrLow] = 0;
      const int before = opened;
      serialPending[i] = kTrue;
      serialEditBoard = 9;
      doubleClick(frmHard->picSDI(i));
      EXPECT_EQ(takeMessage(), "SEがローレベル(LED点灯)中は入力できません。") << mode;
      EXPECT_EQ(opened, before);
      EXPECT_EQ(serialEditBoard, 9) << "nothing more happens";
      EXPECT_EQ(serialPending[i], kTrue);
      serialPending[i] = kFalse;
      open(i, [] {});
    }
  }
}

TEST_F(SerialEditorTest, OnlyTheFlagsOwnTruthRefuses) {
  serialPending[0] = 1;
  open(0, [] {});
  EXPECT_EQ(takeMessage(), "");
}

// ---- To the center and back

TEST_F(SerialEditorTest, TheCenterFetchesTheWordAndTheLampGoesDark) {
  for (int i = 0; i < 4; ++i) {
    SCOPED_TRACE(i);
    frmMDI->lblRunMode_Click(kRun);
    chipMemory[kScrLow] = 5;
    send(i, "8001");
    const int station = i + 1;
    platform.advance(100);
    EXPECT_EQ(chipMemory[2 * station + 1] & 1, 1) << "the report says that there is a word";
    EXPECT_EQ(led(i), "ilsLED_G 2");
    doubleClick(frmHard->picSDI(i));
    EXPECT_EQ(takeMessage(), "SEがローレベル(LED点灯)中は入力できません。");
    chipMemory[2 * station] = 7;
    platform.advance(100);
    EXPECT_EQ(chipMemory[0x480 + 2 * station], 0x01);
    EXPECT_EQ(chipMemory[0x481 + 2 * station], 0x80);
    EXPECT_EQ(chipMemory[2 * station], 0) << "the order is done";
    EXPECT_EQ(chipMemory[2 * station + 1], 0);
    EXPECT_EQ(serialPending[i], kFalse);
    EXPECT_EQ(led(i), "ilsLED_G 1");
    EXPECT_EQ(word(i), 0x8001) << "the board keeps it";
    open(i, [] {});
  }
}

}  // namespace
}  // namespace zelvs
