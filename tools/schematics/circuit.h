#pragma once

#include <array>
#include <span>
#include <string>
#include <vector>

// A schematic without a toolkit: tables of parts, pins and nets become a circuit that can be checked and drawn.
// Pixels from the sheet's upper left corner, y downwards.

namespace schematics {

struct Point {
  int x = -1, y = -1;
  bool operator==(const Point&) const = default;
};

/// Left, top, width, height.
struct Rect {
  int x = 0, y = 0, w = 0, h = 0;
};

/// A table entry is on the sheet when the board has all that it asks for.
using Has = unsigned;
constexpr Has kAlways = 0;

enum class Kind {
  kBox,            // a body with pins; w x h, the name over it
  kArray,          // the same with the name inside: a resistor array
  kFrame,          // a dashed outline; the name over it
  kResistor,       // lying, from x over w; name above, value below
  kStanding,       // a standing resistor, from y over h; name and value to the right
  kCapacitor,      // standing, from y over h; name to the right
  kLed,            // from x over w; current flows rightwards, with h = 1 leftwards; name above, value is the colour
  kGround,         // x, y is the lead
  kSupply,         // x, y is the lead; another name than VCC if given
  kButton,         // to be pushed, from x over w
  kSwitch,         // open, from x over w
  kClosed,         // closed, from x over w
  kJumper,         // two posts, from x over w, or from y over h when w is 0
  kJumperPlugged,  // the same with its plug on
  kChangeover,     // three posts, the common one at x, y, the others h above and below; w: 0 plugged upwards, 1
                   // downwards, 2 left to the user
  kTransformer,    // pairs of leads at y and y + h, from x over w; name above, value below
  kMotor,          // a circle of diameter w in the middle of leads at y and y + h, leads to the left
  kDial,           // a rotary switch's face in the middle of w x h
  kOpen,           // a pin that is left open
  kTest,           // a test point; the name above
  kFlag,           // goes on at the flag of the same name; w < 0: the flag stands to the left
  kShaft,          // turns one part with another, from x over w
  kBus,            // the stroke that says how many wires one line stands for
  kRibbonCable,    // a flat cable over w x h
  kNote,           // text, left at x, middle at y
  kName,           // the same as a designator
  kHead,           // the same, bold
};

/// '@' in the name becomes the running number, '%' the block's number.
struct Part {
  Has when;
  Kind kind;
  int x, y, w = 0, h = 0;
  const char* name = "";
  const char* value = "";
  int count = 1;
  int dx = 0, dy = 0;
  int first = 0;
};

/// Which side of its body a pin stands on.
enum class Side { kLeft, kRight, kTop, kBottom };

/// Pins on the edge of a body, the name inside. Number 0: not printed.
struct Pin {
  Has when;
  Side side;
  int x, y;
  const char* name;
  int number = 0;
  int count = 1;
  int pitch = 0;  // along the side
  int first = 0;  // what '@' in the name begins with
  int numberStep = 1;
};

/// A wire through up to six points. Copies are shifted by (dx, dy), their last point by `stretch` more.
struct Net {
  Has when;
  std::array<Point, 6> points;
  int count = 1;
  int dx = 0, dy = 0;
  Point stretch = {0, 0};
};

struct Tables {
  std::span<const Part> parts;
  std::span<const Pin> pins;
  std::span<const Net> nets;
};

enum class Ink { kNone, kPaper, kWire, kPart, kBody, kName, kValue, kPin, kNumber, kRed, kGreen };

enum class Shape { kLine, kDashes, kBox, kDashedBox, kOval, kTriangleLeft, kTriangleRight, kArcLeft, kArcRight };

/// A line goes from x, y over w and h; the other shapes fill that rectangle.
struct Stroke {
  Shape shape;
  Rect at;
  Ink ink;
  Ink fill = Ink::kNone;
};

enum class Align { kLeft, kCentre, kRight };

struct Text {
  int x, y;  // y is the middle
  Align align;
  std::string words;
  Ink ink;
  int size;
  bool bold = false;
  /// Where ASCII takes half its height in width and all else the whole.
  Rect extent() const;
};

/// A place where a part can be wired.
struct Lead {
  Point at;
  std::string name;
  Kind kind;
};

class Circuit {
 public:
  /// `has`: what the board has.
  explicit Circuit(Has has) : has_(has) {}

  /// Everything in the tables that the board has, moved by (dx, dy). `block`: the number that '%' stands for.
  void add(const Tables& tables, int dx = 0, int dy = 0, int block = 1);
  void add(const Part& part, int dx = 0, int dy = 0, int block = 1);
  void add(const Pin& pin, int dx = 0, int dy = 0);
  void add(const Net& net, int dx = 0, int dy = 0);
  /// A picture's frame and the block at its lower right.
  void addTitle(const std::string& board, const std::string& variant, const std::string& number);

  const std::vector<Stroke>& wires() const { return wires_; }
  const std::vector<Stroke>& strokes() const { return strokes_; }
  const std::vector<Text>& texts() const { return texts_; }
  /// Where three ways meet.
  std::vector<Point> dots() const;

  /// What is wrong with the circuit, each with its place: a net's end or a lead in the air, nets that run over each
  /// other or through a part, parts in each other, a pin beside its part or with a number taken, supply on ground, a
  /// flag without a second, a text over a text or a line or off the sheet.
  std::vector<std::string> faults() const;

 private:
  struct Wire {
    std::vector<Point> points;
  };
  struct Body {
    Rect at;
    std::string name;
  };
  /// Which strokes a part made; frames and what goes through them are none.
  struct Outline {
    std::size_t first, end;
    std::string name;
  };
  struct Numbered {
    Point at;
    std::string name;
    int number;
  };

  void text(int x, int y, Align align, const std::string& words, Ink ink, int size = 12, bool bold = false);
  bool touches(const Wire& wire, Point point) const;
  int ways(Point point) const;

  void findLooseEnds(std::vector<std::string>& faults) const;
  void findOverlaps(std::vector<std::string>& faults) const;
  void findCrossedParts(std::vector<std::string>& faults) const;
  void findShorts(std::vector<std::string>& faults) const;
  void findPinFaults(std::vector<std::string>& faults) const;
  void findTextFaults(std::vector<std::string>& faults) const;

  Has has_;
  std::vector<Wire> nets_;
  std::vector<Stroke> wires_;
  std::vector<Stroke> strokes_;
  std::vector<Text> texts_;
  std::vector<Lead> leads_;
  std::vector<Body> bodies_;
  std::vector<Outline> outlines_;
  std::vector<Numbered> pins_;
};

constexpr int kWidth = 1100;
constexpr int kHeight = 800;
constexpr int kMargin = 8;

}  // namespace schematics
