#include "tools/schematics/symbols.h"

namespace schematics {

namespace {

constexpr int kSmall = 10, kNormal = 12, kLarge = 14, kLetter = 16;  // text sizes
constexpr int kContacts = 20;                                        // between the contacts of a switch
constexpr int kPosts = 12;                                           // between the posts of a jumper
constexpr int kPlug = 4;                                             // from a post to its plug's edge

class Pen {
 public:
  Pen(const Part& part, int x, int y, const std::string& name)
      : kind_(part.kind), x_(x), y_(y), w_(part.w), h_(part.h), name_(name), value_(part.value) {}

  Symbol draw() {
    switch (kind_) {
      case Kind::kBox:
        box();
        text(x_, y_ - 9, Align::kLeft, name_, Ink::kName);
        text(middle(), y_ + h_ / 2, Align::kCentre, value_, Ink::kValue);
        break;
      case Kind::kArray:
        box();
        text(middle(), y_ + h_ / 2, Align::kCentre, name_, Ink::kName);
        break;
      case Kind::kFrame:
        stroke(Shape::kDashedBox, x_, y_, w_, h_);
        text(x_, y_ - 8, Align::kLeft, name_, Ink::kName);
        break;
      case Kind::kResistor:
        stroke(Shape::kBox, lying(26), y_ - 3, 26, 6, Ink::kBody);
        above(10);
        below(11);
        break;
      case Kind::kStanding:
        stroke(Shape::kBox, x_ - 3, upright(h_ - 8), 6, h_ - 8, Ink::kBody);
        text(x_ + 9, y_ + h_ / 2 - 4, Align::kLeft, name_, Ink::kName);
        text(x_ + 9, y_ + h_ / 2 + 8, Align::kLeft, value_, Ink::kValue);
        break;
      case Kind::kCapacitor:
        capacitor();
        break;
      case Kind::kLed:
        led();
        break;
      case Kind::kGround:
        ground();
        break;
      case Kind::kSupply:
        lead(x_, y_, "VCC");
        line(x_, y_, 0, -12);
        line(x_ - 6, y_ - 12, 12, 0);
        text(x_, y_ - 19, Align::kCentre, name_.empty() ? "VCC" : name_, Ink::kPin);
        break;
      case Kind::kButton:
      case Kind::kSwitch:
      case Kind::kClosed:
        contacts();
        break;
      case Kind::kJumper:
      case Kind::kJumperPlugged:
        jumper();
        break;
      case Kind::kChangeover:
        changeover();
        break;
      case Kind::kTransformer:
        transformer();
        break;
      case Kind::kMotor:
        motor();
        break;
      case Kind::kDial:
        stroke(Shape::kOval, x_, y_, w_, h_, Ink::kPaper);
        line(middle(), y_ + h_ / 2, w_ / 4, -h_ / 3);
        break;
      case Kind::kOpen:
        lead(x_, y_, "open");
        line(x_ - 3, y_ - 3, 6, 6);
        line(x_ - 3, y_ + 3, 6, -6);
        break;
      case Kind::kTest:
        lead(x_, y_, name_);
        post(x_, y_);
        above(17);
        break;
      case Kind::kFlag:
        flag();
        break;
      case Kind::kShaft:
        stroke(Shape::kDashes, x_, y_, w_, 0);
        break;
      case Kind::kBus:
        line(x_ - 3, y_ + 5, 6, -10);
        text(x_, y_ - 11, Align::kCentre, name_, Ink::kNumber, kSmall);
        break;
      case Kind::kRibbonCable:
        stroke(Shape::kBox, x_, y_, w_, h_, Ink::kBody);
        for (int down = 6; down < h_; down += 6)
          line(x_, y_ + down, w_, 0, Ink::kNumber);
        break;
      case Kind::kNote:
        text(x_, y_, Align::kLeft, name_, Ink::kPin);
        break;
      case Kind::kName:
        text(x_, y_, Align::kLeft, name_, Ink::kName);
        break;
      case Kind::kHead:
        text(x_, y_, Align::kLeft, name_, Ink::kPin, kLarge, true);
        break;
    }
    return symbol_;
  }

 private:
  int middle() const { return x_ + w_ / 2; }

  void stroke(Shape shape, int x, int y, int w, int h, Ink fill = Ink::kNone) {
    symbol_.strokes.push_back({shape, {x, y, w, h}, Ink::kPart, fill});
  }
  void line(int x, int y, int w, int h, Ink ink = Ink::kPart) {
    symbol_.strokes.push_back({Shape::kLine, {x, y, w, h}, ink});
  }
  void lead(int x, int y, const std::string& name) { symbol_.leads.push_back({{x, y}, name, kind_}); }
  void text(int x, int y, Align align, const std::string& words, Ink ink, int size = kNormal, bool bold = false) {
    if (!words.empty()) symbol_.texts.push_back({x, y, align, words, ink, size, bold});
  }
  void above(int up) { text(middle(), y_ - up, Align::kCentre, name_, Ink::kName); }
  void below(int down) { text(middle(), y_ + down, Align::kCentre, value_, Ink::kValue); }

  /// Leads at both sides of a body that lies in their middle; gives the body's left edge.
  int lying(int body) {
    const int gap = (w_ - body) / 2;
    line(x_, y_, gap, 0);
    line(x_ + gap + body, y_, w_ - gap - body, 0);
    lead(x_, y_, name_);
    lead(x_ + w_, y_, name_);
    return x_ + gap;
  }
  /// The same above and below; gives the body's top.
  int upright(int body) {
    const int gap = (h_ - body) / 2;
    line(x_, y_, 0, gap);
    line(x_, y_ + gap + body, 0, h_ - gap - body);
    lead(x_, y_, name_);
    lead(x_, y_ + h_, name_);
    return y_ + gap;
  }

  void post(int x, int y) { stroke(Shape::kOval, x - 3, y - 3, 6, 6, Ink::kPaper); }
  /// Around the posts from x, y over w and h.
  void plug(int x, int y, int w, int h) {
    stroke(Shape::kBox, x - kPlug, y - kPlug, w + 2 * kPlug, h + 2 * kPlug, Ink::kName);
  }

  void box() {
    symbol_.body = true;
    stroke(Shape::kBox, x_, y_, w_, h_, Ink::kBody);
  }

  void capacitor() {
    const int top = upright(4);
    line(x_ - 6, top, 12, 0);
    line(x_ - 6, top + 4, 12, 0);
    text(x_ + 9, y_ + h_ / 2, Align::kLeft, name_, Ink::kName);
  }

  void led() {
    const int left = lying(8);
    const bool right = h_ == 0;
    stroke(right ? Shape::kTriangleRight : Shape::kTriangleLeft, left, y_ - 4, 8, 8,
           value_ == "red" ? Ink::kRed : Ink::kGreen);
    line(right ? left + 8 : left, y_ - 4, 0, 8);
    above(11);
  }

  void ground() {
    lead(x_, y_, "GND");
    line(x_, y_, 0, 10);
    line(x_ - 8, y_ + 10, 16, 0);
    line(x_ - 5, y_ + 13, 10, 0);
    line(x_ - 2, y_ + 16, 4, 0);
  }

  void contacts() {
    const int left = lying(kContacts);
    if (kind_ == Kind::kButton) {
      line(left, y_ - 4, kContacts, 0);
      line(left + kContacts / 2, y_ - 4, 0, -3);
    } else {
      line(left, y_, kContacts, kind_ == Kind::kClosed ? 0 : -6);
    }
    for (const int contact : {left, left + kContacts})
      stroke(Shape::kOval, contact - 2, y_ - 2, 4, 4, Ink::kPaper);
  }

  void jumper() {
    const bool level = w_ > 0;
    const int x = level ? lying(kPosts) : x_;
    const int y = level ? y_ : upright(kPosts);
    const int w = level ? kPosts : 0;
    const int h = level ? 0 : kPosts;
    if (kind_ == Kind::kJumperPlugged) plug(x, y, w, h);
    post(x, y);
    post(x + w, y + h);
  }

  void changeover() {
    if (w_ < 2) plug(x_, w_ == 0 ? y_ - h_ : y_, 0, h_);
    for (const int y : {y_ - h_, y_, y_ + h_}) {
      lead(x_, y, name_);
      post(x_, y);
    }
  }

  void transformer() {
    for (const bool right : {false, true}) {
      const int end = right ? x_ + w_ : x_;
      const int coil = right ? middle() + 8 : middle() - 8;
      for (const int y : {y_, y_ + h_}) {
        line(end, y, coil - end, 0);
        lead(end, y, name_);
      }
      for (int i = 0; i < 4; ++i)
        stroke(right ? Shape::kArcLeft : Shape::kArcRight, coil - 4, y_ + i * h_ / 4, 8, h_ / 4);
    }
    line(middle() - 1, y_, 0, h_);
    line(middle() + 1, y_, 0, h_);
    above(9);
    below(h_ + 11);
  }

  void motor() {
    const int top = y_ + h_ / 2 - w_ / 2;
    for (const int y : {y_, y_ + h_}) {
      line(x_, y, middle() - x_, 0);
      lead(x_, y, name_);
    }
    line(middle(), y_, 0, top - y_);
    line(middle(), y_ + h_, 0, top + w_ - y_ - h_);
    stroke(Shape::kOval, x_, top, w_, w_, Ink::kBody);
    text(middle(), y_ + h_ / 2, Align::kCentre, "M", Ink::kPin, kLetter, true);
    text(middle() + 8, y_ - 2, Align::kLeft, name_, Ink::kName);
  }

  void flag() {
    lead(x_, y_, name_);
    const int way = w_ < 0 ? -1 : 1;
    const int edge = x_ + 4 * way;
    const int far = edge + way * (Text{0, 0, Align::kLeft, name_, Ink::kName, kNormal}.extent().w + 4);
    for (const int up : {-6, 6}) {
      line(x_, y_, edge - x_, up);
      line(edge, y_ + up, far - edge, 0);
    }
    line(far, y_ - 6, 0, 12);
    text(edge + 2 * way, y_, way < 0 ? Align::kRight : Align::kLeft, name_, Ink::kName);
  }

  const Kind kind_;
  const int x_, y_, w_, h_;
  const std::string name_, value_;
  Symbol symbol_;
};

}  // namespace

Symbol symbolOf(const Part& part, int x, int y, const std::string& name) {
  return Pen(part, x, y, name).draw();
}

}  // namespace schematics
