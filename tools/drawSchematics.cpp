// Draws the schematic pictures of the boards, each from tables of its parts, pins and nets.

#include <QDir>
#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QString>
#include <array>
#include <cstdio>
#include <initializer_list>
#include <span>
#include <string_view>

namespace {

constexpr int kWidth = 760;
constexpr int kHeight = 600;
/// The line part of the slower boards fills the picture down to here, so that an overlay can replace it.
constexpr int kLineStrip = 150;

// What a picture's hardware has; a table entry is drawn when all that it asks for is there.
enum : unsigned {
  kAlways = 0,
  kFull = 1,     // two pairs a port
  kHalf = 2,     // one pair a port
  kWide = 4,     // sixteen data lines
  kNarrow = 8,   // eight data lines
  kLine = 16,    // the board has its own line part
  kRibbon = 32,  // a slave board hangs on it
  kSlave = 64,   // it hangs on a master
  kAlone = 128,  // neither of the two
};

enum class Kind {
  kBox,          // w x h from x, y; the name over it
  kResistor,     // lying, from x over w; leads included
  kStanding,     // a standing resistor, from y over h
  kLed,          // from x over w; the anode at the right, with h at the left
  kGround,       // x, y is the lead
  kSupply,       // x, y is the lead
  kButton,       // from x over w
  kSwitch,       // open contact, from x over w
  kClosed,       // closed contact, from x over w
  kTransformer,  // pairs of leads at y and y + h, from x over w
  kRotary,       // a dial in a box
  kOpen,         // a pin that is left open
  kTest,         // a test point
  kNote,         // plain text, left at x, middle at y
  kName,         // blue text, left at x, middle at y
};

struct Part {
  unsigned when;
  Kind kind;
  int x, y, w, h;
  const char* name = "";
  int count = 1;
  int step = 0;
};

enum class Side { kLeft, kRight, kTop };

/// Pins of a box: the name stands inside, numbered downwards from count - 1 when there are more.
struct Pin {
  unsigned when;
  Side side;
  int x, y;
  const char* name;
  int count = 1;
  int step = 0;
};

struct Point {
  int x = -1, y = -1;
};

struct Net {
  unsigned when;
  std::array<Point, 5> points;
  unsigned dots = 0;  // bit n: a junction at point n
  int count = 1;
  int step = 0;
};

struct Tables {
  std::span<const Part> parts;
  std::span<const Pin> pins;
  std::span<const Net> nets;
};

// One port with its line part, as seen from the port's own corner: it takes 140 rows and its right edge is x = 340.
constexpr Part kLineParts[] = {
    {kFull, Kind::kBox, 24, 38, 56, 98},
    {kHalf, Kind::kBox, 24, 38, 56, 48},
    {kAlways, Kind::kStanding, 118, 50, 0, 24, "100Ω"},
    {kFull, Kind::kStanding, 118, 100, 0, 24, "100Ω"},
    {kAlways, Kind::kTransformer, 180, 50, 44, 24, "QPT900-X"},
    {kFull, Kind::kTransformer, 180, 100, 44, 24, "QPT900-X"},
    {kAlways, Kind::kBox, 276, 38, 64, 98, "TRX"},
    {kFull, Kind::kGround, 358, 82, 0, 0},
    {kFull, Kind::kNote, 98, 24, 0, 0, "全2重 (2対)"},
    {kHalf, Kind::kNote, 98, 24, 0, 0, "半2重 (1対)"},
};
constexpr Pin kLinePins[] = {
    {kFull, Side::kRight, 80, 50, "RX+"},    {kFull, Side::kRight, 80, 74, "RX-"},
    {kFull, Side::kRight, 80, 100, "TX+"},   {kFull, Side::kRight, 80, 124, "TX-"},
    {kHalf, Side::kRight, 80, 50, "TR+"},    {kHalf, Side::kRight, 80, 74, "TR-"},
    {kAlways, Side::kLeft, 276, 50, "A"},    {kAlways, Side::kLeft, 276, 74, "B"},
    {kFull, Side::kLeft, 276, 100, "Y"},     {kFull, Side::kLeft, 276, 124, "Z"},
    {kAlways, Side::kRight, 340, 50, "RO"},  {kAlways, Side::kRight, 340, 74, "#RE"},
    {kAlways, Side::kRight, 340, 100, "DE"}, {kAlways, Side::kRight, 340, 124, "DI"},
};
constexpr Net kLineNets[] = {
    {kAlways, {{{80, 50}, {118, 50}, {180, 50}}}, 2},
    {kAlways, {{{80, 74}, {118, 74}, {180, 74}}}, 2},
    {kAlways, {{{224, 50}, {276, 50}}}},
    {kAlways, {{{224, 74}, {276, 74}}}},
    {kFull, {{{80, 100}, {118, 100}, {180, 100}}}, 2},
    {kFull, {{{80, 124}, {118, 124}, {180, 124}}}, 2},
    {kFull, {{{224, 100}, {276, 100}}}},
    {kFull, {{{224, 124}, {276, 124}}}},
    {kFull, {{{340, 74}, {358, 74}, {358, 82}}}},
    {kHalf, {{{340, 74}, {358, 74}, {358, 100}}}, 4},
};

// The rest of the line strip: from the line part down to the chip, and the clock.
constexpr Part kStripParts[] = {
    {kLine, Kind::kBox, 520, 90, 90, 26, "OSC"},
    {kLine, Kind::kNote, 551, 103, 0, 0, "48MHz"},
};
constexpr Net kStripNets[] = {
    {kLine, {{{340, 50}, {398, 50}, {398, 160}}}},
    {kLine, {{{340, 100}, {372, 100}, {372, 160}}}},
    {kLine, {{{340, 124}, {348, 124}, {348, 160}}}},
    {kLine, {{{520, 103}, {426, 103}, {426, 160}}}},
};
constexpr Pin kStripPins[] = {
    {kAlways, Side::kTop, 348, 160, "TXD"},
    {kAlways, Side::kTop, 372, 160, "TXE"},
    {kAlways, Side::kTop, 398, 160, "RXD"},
    {kAlways, Side::kTop, 426, 160, "CLK"},
};

// The center board.
constexpr Part kCenterParts[] = {
    {kAlways, Kind::kBox, 430, 40, 130, 514},
    {kAlways, Kind::kBox, 660, 40, 70, 486, "CPU BUS"},
    {kNarrow, Kind::kOpen, 572, 56, 0, 0, "", 8, 14},
    {kAlways, Kind::kBox, 250, 330, 90, 26, "OSC"},
    {kAlways, Kind::kNote, 281, 343, 0, 0, "48MHz"},
    {kAlways, Kind::kButton, 250, 398, 60, 0, "RESET"},
    {kAlways, Kind::kGround, 240, 406, 0, 0},
    {kAlways, Kind::kStanding, 370, 376, 0, 22, "10kΩ"},
    {kAlways, Kind::kSupply, 370, 376, 0, 0},
    {kAlways, Kind::kLed, 330, 436, 40, 1, "SCAN"},
    {kAlways, Kind::kLed, 330, 466, 40, 1, "CHK1"},
    {kAlways, Kind::kLed, 330, 496, 40, 1, "CHK2"},
    {kAlways, Kind::kResistor, 230, 436, 60, 0, "330Ω", 3, 30},
    {kAlways, Kind::kSupply, 210, 424, 0, 0},
    {kWide, Kind::kSupply, 400, 532, 0, 0},
    {kNarrow, Kind::kGround, 400, 544, 0, 0},
};
constexpr Pin kCenterPins[] = {
    {kAlways, Side::kLeft, 430, 60, "RXD1"},        {kAlways, Side::kLeft, 430, 110, "TXE1"},
    {kAlways, Side::kLeft, 430, 134, "TXD1"},       {kAlways, Side::kLeft, 430, 210, "RXD2"},
    {kAlways, Side::kLeft, 430, 260, "TXE2"},       {kAlways, Side::kLeft, 430, 284, "TXD2"},
    {kAlways, Side::kLeft, 430, 343, "CLK"},        {kAlways, Side::kLeft, 430, 398, "#RESET"},
    {kAlways, Side::kLeft, 430, 436, "#SCAN"},      {kAlways, Side::kLeft, 430, 466, "#CHK1"},
    {kAlways, Side::kLeft, 430, 496, "#CHK2"},      {kAlways, Side::kLeft, 430, 538, "BUS16"},
    {kWide, Side::kRight, 560, 56, "D", 16, 14},    {kWide, Side::kLeft, 660, 56, "D", 16, 14},
    {kNarrow, Side::kRight, 560, 56, "D", 16, 14},  {kNarrow, Side::kLeft, 660, 168, "D", 8, 14},
    {kAlways, Side::kRight, 560, 284, "A", 11, 14}, {kAlways, Side::kLeft, 660, 284, "A", 11, 14},
    {kAlways, Side::kRight, 560, 446, "#CS"},       {kAlways, Side::kRight, 560, 460, "#RD"},
    {kAlways, Side::kRight, 560, 474, "#WR"},       {kAlways, Side::kRight, 560, 496, "#INT0"},
    {kAlways, Side::kRight, 560, 510, "#INT1"},     {kAlways, Side::kLeft, 660, 446, "#CS"},
    {kAlways, Side::kLeft, 660, 460, "#RD"},        {kAlways, Side::kLeft, 660, 474, "#WR"},
    {kAlways, Side::kLeft, 660, 496, "#INT0"},      {kAlways, Side::kLeft, 660, 510, "#INT1"},
};
constexpr Net kCenterNets[] = {
    {kAlways, {{{340, 60}, {430, 60}}}},
    {kAlways, {{{340, 110}, {430, 110}}}},
    {kAlways, {{{340, 134}, {430, 134}}}},
    {kAlways, {{{340, 210}, {430, 210}}}},
    {kAlways, {{{340, 260}, {430, 260}}}},
    {kAlways, {{{340, 284}, {430, 284}}}},
    {kAlways, {{{340, 343}, {430, 343}}}},
    {kAlways, {{{310, 398}, {370, 398}, {430, 398}}}, 2},
    {kAlways, {{{250, 398}, {240, 398}, {240, 406}}}},
    {kAlways, {{{370, 436}, {430, 436}}}, 0, 3, 30},
    {kAlways, {{{290, 436}, {330, 436}}}, 0, 3, 30},
    {kAlways, {{{210, 424}, {210, 436}, {210, 466}, {210, 496}, {230, 496}}}, 6},
    {kAlways, {{{210, 436}, {230, 436}}}, 0, 2, 30},
    {kWide, {{{430, 538}, {400, 538}, {400, 532}}}},
    {kNarrow, {{{430, 538}, {400, 538}, {400, 544}}}},
    {kWide, {{{560, 56}, {660, 56}}}, 0, 16, 14},
    {kNarrow, {{{560, 56}, {572, 56}}}, 0, 8, 14},
    {kNarrow, {{{560, 168}, {660, 168}}}, 0, 8, 14},
    {kAlways, {{{560, 284}, {660, 284}}}, 0, 11, 14},
    {kAlways, {{{560, 446}, {660, 446}}}, 0, 3, 14},
    {kAlways, {{{560, 496}, {660, 496}}}, 0, 2, 14},
};

// The board of sixteen inputs and sixteen outputs.
constexpr Part kFortyParts[] = {
    {kAlways, Kind::kBox, 310, 160, 160, 412},
    // Inputs.
    {kAlways, Kind::kBox, 60, 228, 50, 204, "DIP SW"},
    {kAlways, Kind::kSwitch, 60, 240, 50, 0, "", 16, 12},
    {kAlways, Kind::kGround, 40, 440, 0, 0},
    {kAlways, Kind::kBox, 128, 196, 144, 16, "10kΩ×16"},
    {kAlways, Kind::kSupply, 120, 198, 0, 0},
    // The counters' buttons and the clear and reset buttons.
    {kAlways, Kind::kButton, 190, 446, 60, 0, "", 8, 13},
    {kAlways, Kind::kGround, 180, 545, 0, 0},
    {kAlways, Kind::kName, 106, 478, 0, 0, "COUNTER 0-5"},
    {kAlways, Kind::kNote, 88, 492, 0, 0, "内蔵プルアップ"},
    {kAlways, Kind::kName, 152, 524, 0, 0, "CLR"},
    {kAlways, Kind::kName, 141, 537, 0, 0, "RESET"},
    // Outputs.
    {kAlways, Kind::kResistor, 480, 236, 50, 0, "", 16, 12},
    {kAlways, Kind::kLed, 550, 236, 40, 0, "", 16, 12},
    {kAlways, Kind::kName, 488, 223, 0, 0, "330Ω×16"},
    {kAlways, Kind::kName, 554, 223, 0, 0, "LED×16"},
    {kAlways, Kind::kSupply, 610, 228, 0, 0},
    // Address, sub-address and the serial inputs.
    {kAlways, Kind::kRotary, 530, 428, 110, 66, "SA ×10  ×1"},
    {kAlways, Kind::kSwitch, 530, 505, 50, 0, "", 2, 14},
    {kAlways, Kind::kGround, 612, 525, 0, 0},
    {kAlways, Kind::kBox, 640, 528, 96, 40, "SHIFT REG ×2"},
    {kAlways, Kind::kNote, 674, 548, 0, 0, "SI0-15"},
    {kAlways, Kind::kName, 222, 552, 0, 0, "TP1"},
    {kAlways, Kind::kName, 222, 564, 0, 0, "TP2"},
    {kAlways, Kind::kTest, 250, 552, 0, 0, "", 2, 12},
    // The ribbon to the next board, or from the one before.
    {kAlone, Kind::kOpen, 490, 170, 0, 0, "", 4, 11},
    {kRibbon, Kind::kBox, 664, 160, 72, 53, "CN2 子機へ"},
    {kRibbon, Kind::kNote, 550, 160, 0, 0, "リボン"},
    {kSlave, Kind::kBox, 24, 38, 72, 104, "CN1 親機より"},
    {kSlave, Kind::kSupply, 120, 48, 0, 0},
    {kSlave, Kind::kGround, 120, 136, 0, 0},
    {kSlave, Kind::kNote, 180, 40, 0, 0, "リボンケーブル (回線部なし)"},
    {kSlave, Kind::kOpen, 348, 150, 0, 0},
    {kSlave, Kind::kOpen, 372, 150, 0, 0},
    {kSlave, Kind::kGround, 452, 142, 0, 0},
};
constexpr Pin kFortyPins[] = {
    {kAlways, Side::kLeft, 310, 240, "DI", 16, 12},  {kAlways, Side::kLeft, 310, 446, "#CT", 6, 13},
    {kAlways, Side::kLeft, 310, 524, "#CLR"},        {kAlways, Side::kLeft, 310, 537, "#RESET"},
    {kAlways, Side::kLeft, 310, 552, "STB1"},        {kAlways, Side::kLeft, 310, 564, "STB2"},
    {kAlways, Side::kRight, 470, 170, "NTX"},        {kAlways, Side::kRight, 470, 181, "NRX"},
    {kAlways, Side::kRight, 470, 192, "NCK"},        {kAlways, Side::kRight, 470, 203, "NST"},
    {kRibbon, Side::kLeft, 664, 170, "NTX"},         {kRibbon, Side::kLeft, 664, 181, "NRX"},
    {kRibbon, Side::kLeft, 664, 192, "NCK"},         {kRibbon, Side::kLeft, 664, 203, "NST"},
    {kSlave, Side::kRight, 96, 54, "+5V"},           {kSlave, Side::kRight, 96, 70, "NTX"},
    {kSlave, Side::kRight, 96, 84, "NRX"},           {kSlave, Side::kRight, 96, 98, "NCK"},
    {kSlave, Side::kRight, 96, 112, "NST"},          {kSlave, Side::kRight, 96, 128, "GND"},
    {kAlways, Side::kRight, 470, 236, "DO", 16, 12}, {kAlways, Side::kRight, 470, 434, "SA", 6, 11},
    {kAlways, Side::kRight, 470, 505, "SSA"},        {kAlways, Side::kRight, 470, 519, "SSB"},
    {kAlways, Side::kRight, 470, 536, "SI"},         {kAlways, Side::kRight, 470, 548, "SCK"},
    {kAlways, Side::kRight, 470, 560, "SLD"},        {kAlways, Side::kLeft, 640, 536, "Q"},
    {kAlways, Side::kLeft, 640, 548, "CK"},          {kAlways, Side::kLeft, 640, 560, "LD"},
};
constexpr Net kFortyNets[] = {
    {kAlways, {{{110, 240}, {310, 240}}}, 0, 16, 12},
    {kAlways, {{{60, 420}, {40, 420}, {40, 440}}}},
    {kAlways, {{{60, 240}, {40, 240}, {40, 420}}}},
    {kAlways, {{{60, 252}, {40, 252}}}, 2, 15, 12},
    {kAlways, {{{120, 198}, {120, 204}, {128, 204}}}},
    {kAlways, {{{250, 446}, {310, 446}}}, 0, 8, 13},
    {kAlways, {{{190, 446}, {180, 446}, {180, 545}}}},
    {kAlways, {{{190, 459}, {180, 459}}}, 2, 7, 13},
    {kAlways, {{{250, 552}, {310, 552}}}, 0, 2, 12},
    {kAlways, {{{470, 236}, {480, 236}}}, 0, 16, 12},
    {kAlways, {{{530, 236}, {550, 236}}}, 0, 16, 12},
    {kAlways, {{{590, 416}, {610, 416}, {610, 228}}}},
    {kAlways, {{{590, 236}, {610, 236}}}, 2, 15, 12},
    {kAlways, {{{470, 434}, {530, 434}}}, 0, 6, 11},
    {kAlways, {{{470, 505}, {530, 505}}}, 0, 2, 14},
    {kAlways, {{{580, 505}, {612, 505}, {612, 525}}}},
    {kAlways, {{{580, 519}, {612, 519}}}, 2},
    {kAlways, {{{470, 536}, {640, 536}}}, 0, 3, 12},
    {kRibbon, {{{470, 170}, {664, 170}}}, 0, 4, 11},
    {kAlone, {{{470, 170}, {490, 170}}}, 0, 4, 11},
    {kSlave, {{{96, 70}, {526, 70}, {526, 170}, {470, 170}}}},
    {kSlave, {{{96, 84}, {514, 84}, {514, 181}, {470, 181}}}},
    {kSlave, {{{96, 98}, {502, 98}, {502, 192}, {470, 192}}}},
    {kSlave, {{{96, 112}, {490, 112}, {490, 203}, {470, 203}}}},
    {kSlave, {{{96, 54}, {120, 54}, {120, 48}}}},
    {kSlave, {{{96, 128}, {120, 128}, {120, 136}}}},
    {kSlave, {{{348, 150}, {348, 160}}}},
    {kSlave, {{{372, 150}, {372, 160}}}},
    {kSlave, {{{398, 160}, {398, 136}, {426, 136}, {452, 136}, {452, 142}}}, 4},
    {kSlave, {{{426, 160}, {426, 136}}}},
};

// The board of sixteen pins whose direction a switch chooses; the sixteen pins themselves follow from the mode.
constexpr Part kFiftyParts[] = {
    {kAlways, Kind::kBox, 310, 160, 160, 412},
    {kAlways, Kind::kBox, 60, 238, 50, 104, "DIP SW"},
    {kAlways, Kind::kSwitch, 60, 298, 50, 0, "", 3, 16},
    {kAlways, Kind::kGround, 40, 350, 0, 0},
    {kAlways, Kind::kBox, 128, 196, 64, 16, "10kΩ×6"},
    {kAlways, Kind::kSupply, 120, 198, 0, 0},
    {kAlways, Kind::kRotary, 60, 390, 130, 84, "SA ×10  ×1"},
    {kAlways, Kind::kButton, 190, 504, 60, 0, "RESET"},
    {kAlways, Kind::kGround, 180, 512, 0, 0},
    {kAlways, Kind::kNote, 200, 518, 0, 0, "内蔵プルアップ"},
    {kAlways, Kind::kLed, 240, 550, 40, 1, "MON"},
    {kAlways, Kind::kResistor, 160, 550, 60, 0, "330Ω"},
    {kAlways, Kind::kSupply, 140, 540, 0, 0},
};
constexpr Pin kFiftyPins[] = {
    {kAlways, Side::kLeft, 310, 250, "IOS", 3, 16}, {kAlways, Side::kLeft, 310, 298, "CM", 2, 16},
    {kAlways, Side::kLeft, 310, 330, "BPSS"},       {kAlways, Side::kLeft, 310, 397, "SA", 6, 14},
    {kAlways, Side::kLeft, 310, 504, "#RESET"},     {kAlways, Side::kLeft, 310, 550, "#MON"},
};
constexpr Net kFiftyNets[] = {
    {kAlways, {{{110, 250}, {310, 250}}}, 0, 6, 16},
    {kAlways, {{{60, 250}, {40, 250}, {40, 350}}}},
    {kAlways, {{{60, 266}, {40, 266}}}, 2, 5, 16},
    {kAlways, {{{120, 198}, {120, 204}, {128, 204}}}},
    {kAlways, {{{190, 397}, {310, 397}}}, 0, 6, 14},
    {kAlways, {{{250, 504}, {310, 504}}}},
    {kAlways, {{{190, 504}, {180, 504}, {180, 512}}}},
    {kAlways, {{{280, 550}, {310, 550}}}},
    {kAlways, {{{220, 550}, {240, 550}}}},
    {kAlways, {{{160, 550}, {140, 550}, {140, 540}}}},
};

/// The sixteen pins by mode, bit 15 first: input, output, or special.
constexpr std::array<std::string_view, 8> kDirections = {
    "IIIIIIIIIIIIIIII", "OOOOIIIIIIIIIIII", "OOOOOOOOIIIIIIII", "OOOOOOOOOOOOIIII",
    "OOOOOOOOOOOOOOII", "OOOOOOOOOOOOOOOO", "****OOOOIIIIIIII", "****OOOO****IIII",
};
constexpr std::array<const char*, 4> kPulsePins = {"CWON", "CCWON", "CW-Pulse", "CCW-Pulse"};
constexpr std::array<const char*, 4> kCounterPins = {"COUNT1", "CLEAR1", "COUNT0", "CLEAR0"};

/// A picture being drawn.
class Sheet {
 public:
  Sheet(int height, unsigned has) : image_(kWidth, height, QImage::Format_RGB32), has_(has) {
    image_.fill(Qt::white);
    painter_.begin(&image_);
    black();
  }

  void at(int x, int y) { painter_.setWindow(-x, -y, image_.width(), image_.height()); }

  void draw(const Tables& tables) {
    for (const Net& net : tables.nets) {
      if (!has(net.when)) continue;
      for (int i = 0; i < net.count; ++i)
        drawNet(net, i * net.step);
    }
    for (const Part& part : tables.parts) {
      if (!has(part.when)) continue;
      for (int i = 0; i < part.count; ++i)
        drawPart(part, part.y + i * part.step);
    }
    for (const Pin& pin : tables.pins) {
      if (!has(pin.when)) continue;
      for (int i = 0; i < pin.count; ++i) {
        QString name = QString::fromUtf8(pin.name);
        if (pin.count > 1) name += QString::number(pin.count - 1 - i);
        drawPin(pin.side, pin.x, pin.y + i * pin.step, name);
      }
    }
  }

  void wire(std::initializer_list<Point> points) {
    const Point* before = nullptr;
    for (const Point& point : points) {
      if (before) painter_.drawLine(before->x, before->y, point.x, point.y);
      before = &point;
    }
  }
  void dot(int x, int y) { painter_.fillRect(x - 2, y - 2, 5, 5, Qt::black); }
  void part(const Part& part) { drawPart(part, part.y); }
  void pin(Side side, int x, int y, const QString& name) { drawPin(side, x, y, name); }

  void text(int x, int y, int flags, const QString& words, QColor colour, int size = 11, bool bold = false) {
    painter_.setFont(fontOf(size, bold));
    painter_.setPen(colour);
    const int left = flags & Qt::AlignRight ? x - 400 : flags & Qt::AlignHCenter ? x - 200 : x;
    painter_.drawText(QRect(left, y - 15, 400, 30), flags | Qt::AlignVCenter, words);
    black();
  }

  void chip(int x, int y, const char* name) { text(x, y, Qt::AlignHCenter, name, Qt::blue, 18, true); }

  void title(const QString& words) {
    painter_.drawRect(4, 4, kWidth - 9, kHeight - 9);
    painter_.drawRect(476, 576, 279, 19);
    text(616, 586, Qt::AlignHCenter, words, Qt::black, 12, true);
  }

  /// The legs of a resistor array: each comes down to its own line.
  void legs(int x, int top, int line, int step, int count) {
    for (int i = 0; i < count; ++i) {
      wire({{x + 8 * i, top}, {x + 8 * i, line + step * i}});
      dot(x + 8 * i, line + step * i);
    }
  }

  bool save(const QDir& folder, const QString& name) {
    painter_.end();
    const QString path = folder.filePath(name);
    if (image_.convertToFormat(QImage::Format_Indexed8, Qt::ThresholdDither).save(path, "BMP")) return true;
    std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
    return false;
  }

 private:
  static QFont fontOf(int size, bool bold) {
    QFont font;
    font.setFamilies({"Noto Sans Mono CJK JP", "VL Gothic", "IPAGothic", "MS Gothic", "Monospace"});
    font.setPixelSize(size);
    font.setBold(bold);
    return font;
  }

  bool has(unsigned when) const { return (when & ~has_) == 0; }
  void black() {
    painter_.setPen(Qt::black);
    painter_.setBrush(Qt::NoBrush);
  }

  void drawNet(const Net& net, int down) {
    for (unsigned i = 0; i < net.points.size() && net.points[i].x >= 0; ++i) {
      const Point& to = net.points[i];
      if (i > 0) painter_.drawLine(net.points[i - 1].x, net.points[i - 1].y + down, to.x, to.y + down);
      if (net.dots >> i & 1) dot(to.x, to.y + down);
    }
  }

  void drawPin(Side side, int x, int y, const QString& name) {
    switch (side) {
      case Side::kLeft:
        return text(x + 4, y, Qt::AlignLeft, name, Qt::black);
      case Side::kRight:
        return text(x - 4, y, Qt::AlignRight, name, Qt::black);
      case Side::kTop:
        return text(x, y + 10, Qt::AlignHCenter, name, Qt::black);
    }
  }

  /// Leads at both sides and a body of the given width between them.
  int leads(const Part& part, int y, int body) {
    const int gap = (part.w - body) / 2;
    painter_.drawLine(part.x, y, part.x + gap, y);
    painter_.drawLine(part.x + gap + body, y, part.x + part.w, y);
    return part.x + gap;
  }

  void drawPart(const Part& part, int y) {
    const QString name = QString::fromUtf8(part.name);
    const int middle = part.x + part.w / 2;
    switch (part.kind) {
      case Kind::kBox:
        painter_.fillRect(part.x, y, part.w, part.h, Qt::white);
        painter_.drawRect(part.x, y, part.w, part.h);
        text(middle, y - 8, Qt::AlignHCenter, name, Qt::blue);
        break;
      case Kind::kResistor: {
        const int left = leads(part, y, 26);
        painter_.drawRect(left, y - 3, 26, 6);
        text(middle, y - 11, Qt::AlignHCenter, name, Qt::blue, 10);
        break;
      }
      case Kind::kStanding:
        painter_.drawLine(part.x, y, part.x, y + 4);
        painter_.drawRect(part.x - 3, y + 4, 6, part.h - 8);
        painter_.drawLine(part.x, y + part.h - 4, part.x, y + part.h);
        text(part.x + 7, y + part.h / 2, Qt::AlignLeft, name, Qt::blue, 10);
        break;
      case Kind::kLed: {
        const int left = leads(part, y, 8);
        painter_.setBrush(QColor(220, 0, 0));
        const int anode = part.h == 0 ? left + 8 : left;
        const int cathode = part.h == 0 ? left : left + 8;
        const QPoint corners[] = {{anode, y - 4}, {anode, y + 4}, {cathode, y}};
        painter_.drawPolygon(corners, 3);
        black();
        painter_.drawLine(cathode, y - 4, cathode, y + 4);
        text(middle, y - 11, Qt::AlignHCenter, name, Qt::blue);
        break;
      }
      case Kind::kGround:
        painter_.drawLine(part.x - 8, y, part.x + 8, y);
        painter_.drawLine(part.x - 5, y + 3, part.x + 5, y + 3);
        painter_.drawLine(part.x - 2, y + 6, part.x + 2, y + 6);
        break;
      case Kind::kSupply:
        painter_.drawLine(part.x, y, part.x, y - 4);
        painter_.drawLine(part.x - 6, y - 4, part.x + 6, y - 4);
        text(part.x, y - 11, Qt::AlignHCenter, "+5V", Qt::black, 10);
        break;
      case Kind::kButton: {
        const int left = leads(part, y, 20);
        painter_.drawLine(left, y - 4, left + 20, y - 4);
        painter_.drawLine(left + 10, y - 4, left + 10, y - 7);
        text(middle, y - 15, Qt::AlignHCenter, name, Qt::blue);
        break;
      }
      case Kind::kSwitch:
      case Kind::kClosed: {
        const int left = leads(part, y, 20);
        painter_.drawLine(left, y, left + 20, part.kind == Kind::kClosed ? y : y - 5);
        painter_.fillRect(left - 1, y - 1, 3, 3, Qt::black);
        painter_.fillRect(left + 19, y - 1, 3, 3, Qt::black);
        break;
      }
      case Kind::kTransformer:
        for (const int side : {0, 1}) {
          const int x = side == 0 ? middle - 8 : middle + 8;
          const int end = side == 0 ? part.x : part.x + part.w;
          painter_.drawLine(end, y, x, y);
          painter_.drawLine(end, y + part.h, x, y + part.h);
          for (int i = 0; i < 3; ++i) {
            painter_.drawArc(x - 4, y + i * part.h / 3, 8, part.h / 3, (side == 0 ? -90 : 90) * 16, 180 * 16);
          }
        }
        painter_.drawLine(middle - 1, y, middle - 1, y + part.h);
        painter_.drawLine(middle + 1, y, middle + 1, y + part.h);
        text(middle, y - 8, Qt::AlignHCenter, name, Qt::blue, 10);
        break;
      case Kind::kRotary:
        painter_.fillRect(part.x, y, part.w, part.h, Qt::white);
        painter_.drawRect(part.x, y, part.w, part.h);
        for (const int side : {1, 3}) {
          const int x = part.x + part.w * side / 4;
          painter_.drawEllipse(QPoint(x, y + part.h / 2 + 8), 18, 18);
          painter_.drawLine(x, y + part.h / 2 + 8, x + 8, y + part.h / 2 - 4);
        }
        text(middle, y + 9, Qt::AlignHCenter, name, Qt::blue);
        break;
      case Kind::kOpen:
        painter_.drawLine(part.x - 3, y - 3, part.x + 3, y + 3);
        painter_.drawLine(part.x - 3, y + 3, part.x + 3, y - 3);
        break;
      case Kind::kTest:
        painter_.setBrush(Qt::white);
        painter_.drawEllipse(QPoint(part.x, y), 3, 3);
        black();
        break;
      case Kind::kNote:
        text(part.x, y, Qt::AlignLeft, name, Qt::black);
        break;
      case Kind::kName:
        text(part.x, y, Qt::AlignLeft, name, Qt::blue);
        break;
    }
  }

  QImage image_;
  QPainter painter_;
  unsigned has_;
};

constexpr Tables kLinePart = {kLineParts, kLinePins, kLineNets};
constexpr Tables kStrip = {kStripParts, kStripPins, kStripNets};
constexpr Tables kCenter = {kCenterParts, kCenterPins, kCenterNets};
constexpr Tables kForty = {kFortyParts, kFortyPins, kFortyNets};
constexpr Tables kFifty = {kFiftyParts, kFiftyPins, kFiftyNets};

QString duplexOf(unsigned has) {
  return has & kFull ? "全2重" : "半2重";
}

bool drawCenter(const QDir& folder, const QString& name, unsigned has) {
  Sheet sheet(kHeight, has);
  sheet.draw(kCenter);
  sheet.at(0, 10);
  sheet.draw(kLinePart);
  sheet.at(0, 160);
  sheet.draw(kLinePart);
  sheet.at(0, 0);
  sheet.text(52, 38, Qt::AlignHCenter, "1RXD", Qt::blue);
  sheet.text(52, 188, Qt::AlignHCenter, "2RXD", Qt::blue);
  sheet.chip(495, 310, "QVT60");
  sheet.title("QVT60 センター " + duplexOf(has) + (has & kWide ? " 16ビット" : " 8ビット"));
  return sheet.save(folder, name);
}

/// The strip with the line part, at the same place in every picture that has one.
void drawStrip(Sheet& sheet, unsigned has) {
  sheet.draw(kStrip);
  if (!(has & kLine)) return;
  sheet.draw(kLinePart);
  sheet.text(52, 28, Qt::AlignHCenter, "PORT", Qt::blue);
}

bool drawForty(const QDir& folder, const QString& name, unsigned has, const QString& title) {
  Sheet sheet(kHeight, has);
  sheet.draw(kForty);
  sheet.legs(136, 212, 240, 12, 16);
  drawStrip(sheet, has);
  sheet.chip(390, 380, "QVT40");
  sheet.title(title);
  return sheet.save(folder, name);
}

constexpr int kRowTop = 226;
constexpr int kRowStep = 20;
constexpr int kSupplyRail = 586;
constexpr int kGroundRail = 672;
/// The pulse outputs stand apart from the other rows.
constexpr int kPulseLift = 16;

int rowOf(int bit) {
  return kRowTop + kRowStep * (15 - bit);
}

/// A pull-up over the line, and the line on through the supply rail to the switch or button at ground.
void drawInput(Sheet& sheet, int y, bool button) {
  sheet.wire({{470, y}, {616, y}});
  sheet.dot(520, y);
  sheet.wire({{520, y}, {520, y - 9}, {530, y - 9}});
  sheet.part({kAlways, Kind::kResistor, 530, y - 9, 44, 0});
  sheet.wire({{574, y - 9}, {kSupplyRail, y - 9}});
  sheet.dot(kSupplyRail, y - 9);
  sheet.part({kAlways, button ? Kind::kButton : Kind::kSwitch, 616, y, 40, 0});
  sheet.wire({{656, y}, {kGroundRail, y}});
  sheet.dot(kGroundRail, y);
}

void drawOutput(Sheet& sheet, int y) {
  sheet.part({kAlways, Kind::kResistor, 470, y, 60, 0});
  sheet.part({kAlways, Kind::kLed, 530, y, kSupplyRail - 530, 0});
  sheet.dot(kSupplyRail, y);
}

void drawDirections(Sheet& sheet, std::string_view pattern) {
  int highest = -1;  // the rows that the rails pass
  int lowestInput = 16;
  int highestInput = -1;
  int lowest = 16;
  for (int bit = 15; bit >= 0; --bit) {
    const char kind = pattern[static_cast<std::size_t>(15 - bit)];
    const int y = rowOf(bit);
    const bool counter = kind == '*' && bit < 8;
    const std::size_t special = static_cast<std::size_t>(3 - bit % 4);
    if (kind == '*' && !counter) {
      sheet.wire({{470, y - kPulseLift}, {620, y - kPulseLift}});
      sheet.pin(Side::kRight, 470, y - kPulseLift, kPulsePins[special]);
      continue;
    }
    if (highest < 0) highest = bit;
    lowest = bit;
    if (kind == 'O') {
      drawOutput(sheet, y);
      sheet.pin(Side::kRight, 470, y, QString("DO%1").arg(bit));
      sheet.text(596, y, Qt::AlignLeft, QString("LED%1").arg(bit), Qt::blue);
      continue;
    }
    drawInput(sheet, y, counter);
    if (highestInput < 0) highestInput = bit;
    lowestInput = bit;
    sheet.pin(Side::kRight, 470, y, counter ? QString(kCounterPins[special]) : QString("DI%1").arg(bit));
    sheet.text(682, y, Qt::AlignLeft, counter ? QString(kCounterPins[special]) : QString("SW%1").arg(bit), Qt::blue);
  }
  QString values;
  if (pattern.find('O') != std::string_view::npos) values += "LED 330Ω  ";
  if (highestInput >= 0) values += "プルアップ 10kΩ";
  sheet.text(484, 560, Qt::AlignLeft, values, Qt::black);
  const bool pulled = pattern[static_cast<std::size_t>(15 - lowest)] != 'O';
  sheet.wire({{kSupplyRail, rowOf(highest) - 14}, {kSupplyRail, rowOf(lowest) - (pulled ? 9 : 0)}});
  sheet.part({kAlways, Kind::kSupply, kSupplyRail, rowOf(highest) - 14, 0, 0});
  if (highestInput >= 0) {
    sheet.wire({{kGroundRail, rowOf(highestInput)}, {kGroundRail, rowOf(lowestInput) + 12}});
    sheet.part({kAlways, Kind::kGround, kGroundRail, rowOf(lowestInput) + 12, 0, 0});
  }
  if (pattern[0] == '*') {
    sheet.part({kAlways, Kind::kBox, 620, rowOf(15) - kPulseLift - 12, 64, rowOf(12) - rowOf(15) + 24, "MOTOR DRIVE"});
    for (int i = 0; i < 4; ++i) {
      constexpr std::array<const char*, 4> kDrivePins = {"CWON", "CCWON", "CWP", "CCWP"};
      sheet.pin(Side::kLeft, 620, rowOf(15 - i) - kPulseLift, kDrivePins[static_cast<std::size_t>(i)]);
    }
    sheet.wire({{684, rowOf(14) - kPulseLift}, {702, rowOf(14) - kPulseLift}});
    sheet.wire({{684, rowOf(13) - kPulseLift}, {702, rowOf(13) - kPulseLift}});
    sheet.part({kAlways, Kind::kBox, 702, rowOf(14) - kPulseLift - 10, 34, kRowStep + 20});
    sheet.text(719, rowOf(14) - kPulseLift + 10, Qt::AlignHCenter, "M", Qt::blue, 16, true);
  }
}

bool drawFifty(const QDir& folder, int mode) {
  const unsigned has = kFull | kLine;
  Sheet sheet(kHeight, has);
  sheet.draw(kFifty);
  sheet.legs(136, 212, 250, 16, 6);
  for (int i = 0; i < 3; ++i) {
    // A closed contact is low.
    sheet.part({kAlways, mode >> (2 - i) & 1 ? Kind::kSwitch : Kind::kClosed, 60, 250 + 16 * i, 50, 0});
  }
  drawStrip(sheet, has);
  drawDirections(sheet, kDirections[static_cast<std::size_t>(mode)]);
  sheet.chip(372, 364, "QVT50");
  sheet.title(QString("QVT50 入出力モード IOS=%1").arg(mode));
  return sheet.save(folder, QString("QVT50_IOS_%1.BMP").arg(mode));
}

/// What replaces the line part's strip when the line is half duplex.
bool drawOverlay(const QDir& folder, const QString& name) {
  const unsigned has = kHalf | kLine;
  Sheet sheet(kLineStrip, has);
  drawStrip(sheet, has);
  // The frame of the picture underneath goes on.
  sheet.wire({{4, kLineStrip}, {4, 4}, {kWidth - 5, 4}, {kWidth - 5, kLineStrip}});
  return sheet.save(folder, name);
}

}  // namespace

int main(int count, char** arguments) {
  const QGuiApplication application(count, arguments);
  if (count != 2) {
    std::fprintf(stderr, "usage: drawSchematics FOLDER\n");
    return 2;
  }
  const QDir folder(QString::fromLocal8Bit(arguments[1]));
  if (!folder.mkpath(".")) return 1;
  bool good = drawCenter(folder, "QVT60_FULL_16BIT.BMP", kFull | kWide) &&
              drawCenter(folder, "QVT60_FULL_8BIT.BMP", kFull | kNarrow) &&
              drawCenter(folder, "QVT60_HALF_16BIT.BMP", kHalf | kWide) &&
              drawCenter(folder, "QVT60_HALF_8BIT.BMP", kHalf | kNarrow) &&
              drawForty(folder, "QVT40_FULL.BMP", kFull | kLine | kAlone, "QVT40 入力16 出力16") &&
              drawForty(folder, "QVT40_FULL_NEST.BMP", kFull | kLine | kRibbon, "QVT40 親機 (子機あり)") &&
              drawForty(folder, "QVT40_NEST.BMP", kSlave, "QVT40 子機") && drawOverlay(folder, "Qvt40_add_half.bmp") &&
              drawOverlay(folder, "Qvt50_add_half.bmp");
  for (int mode = 0; good && mode < 8; ++mode)
    good = drawFifty(folder, mode);
  return good ? 0 : 1;
}
