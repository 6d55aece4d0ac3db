#include "tools/schematics/circuit.h"

#include <algorithm>

#include "tools/schematics/symbols.h"

namespace schematics {

namespace {

std::string named(const char* pattern, int number, int block) {
  std::string name;
  for (const char* c = pattern; *c; ++c) {
    if (*c == '@') {
      name += std::to_string(number);
    } else if (*c == '%') {
      name += std::to_string(block);
    } else {
      name += *c;
    }
  }
  return name;
}

bool between(int value, int a, int b) {
  return value >= std::min(a, b) && value <= std::max(a, b);
}

/// Nets are level or upright.
bool onSegment(Point p, Point a, Point b) {
  return between(p.x, a.x, b.x) && between(p.y, a.y, b.y);
}

}  // namespace

Rect Text::extent() const {
  int halves = 0;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const unsigned char c = static_cast<unsigned char>(words[i]);
    if (c < 0x80) {
      halves += 1;
    } else if (c >= 0xC0) {
      halves += 2;
    }
  }
  const int width = halves * size / 2;
  const int left = align == Align::kLeft ? x : align == Align::kRight ? x - width : x - width / 2;
  return {left, y - size * 2 / 5, width, size * 4 / 5};
}

void Circuit::add(const Tables& tables, int dx, int dy, int block) {
  for (const Net& net : tables.nets)
    add(net, dx, dy);
  for (const Part& part : tables.parts)
    add(part, dx, dy, block);
  for (const Pin& pin : tables.pins)
    add(pin, dx, dy);
}

void Circuit::add(const Part& part, int dx, int dy, int block) {
  if (part.when & ~has_) return;
  for (int i = 0; i < part.count; ++i) {
    const std::string name = named(part.name, part.first + i, block);
    const Symbol symbol = symbolOf(part, part.x + dx + i * part.dx, part.y + dy + i * part.dy, name);
    const std::size_t first = strokes_.size();
    strokes_.insert(strokes_.end(), symbol.strokes.begin(), symbol.strokes.end());
    texts_.insert(texts_.end(), symbol.texts.begin(), symbol.texts.end());
    leads_.insert(leads_.end(), symbol.leads.begin(), symbol.leads.end());
    if (symbol.body) bodies_.push_back({symbol.strokes.front().at, name});
    const bool passed = part.kind == Kind::kFrame || part.kind == Kind::kBus;
    if (!passed) outlines_.push_back({first, strokes_.size(), name});
  }
}

void Circuit::add(const Pin& pin, int dx, int dy) {
  if (pin.when & ~has_) return;
  for (int i = 0; i < pin.count; ++i) {
    const bool upright = pin.side == Side::kLeft || pin.side == Side::kRight;
    const int x = pin.x + dx + (upright ? 0 : i * pin.pitch);
    const int y = pin.y + dy + (upright ? i * pin.pitch : 0);
    const std::string name = named(pin.name, pin.first + i, 0);
    const int number = pin.number == 0 ? 0 : pin.number + i * pin.numberStep;
    const std::string digits = number == 0 ? "" : std::to_string(number);
    switch (pin.side) {
      case Side::kLeft:
        text(x + 5, y, Align::kLeft, name, Ink::kPin);
        text(x - 3, y - 6, Align::kRight, digits, Ink::kNumber, 10);
        break;
      case Side::kRight:
        text(x - 4, y, Align::kRight, name, Ink::kPin);
        text(x + 4, y - 6, Align::kLeft, digits, Ink::kNumber, 10);
        break;
      case Side::kTop:
        text(x, y + 9, Align::kCentre, name, Ink::kPin);
        text(x + 3, y - 6, Align::kLeft, digits, Ink::kNumber, 10);
        break;
      case Side::kBottom:
        text(x, y - 8, Align::kCentre, name, Ink::kPin);
        text(x + 3, y + 5, Align::kLeft, digits, Ink::kNumber, 10);
        break;
    }
    leads_.push_back({{x, y}, name, Kind::kBox});
    pins_.push_back({{x, y}, name, number});
  }
}

void Circuit::add(const Net& net, int dx, int dy) {
  if (net.when & ~has_) return;
  for (int i = 0; i < net.count; ++i) {
    Wire wire;
    for (const Point& point : net.points) {
      if (point.x < 0) break;
      wire.points.push_back({point.x + dx + i * net.dx, point.y + dy + i * net.dy});
    }
    wire.points.back().x += i * net.stretch.x;
    wire.points.back().y += i * net.stretch.y;
    for (std::size_t k = 1; k < wire.points.size(); ++k) {
      const Point a = wire.points[k - 1], b = wire.points[k];
      wires_.push_back({Shape::kLine, {a.x, a.y, b.x - a.x, b.y - a.y}, Ink::kWire});
    }
    nets_.push_back(std::move(wire));
  }
}

void Circuit::addTitle(const std::string& board, const std::string& variant, const std::string& number) {
  constexpr int kRight = kWidth - kMargin, kBottom = kHeight - kMargin;
  constexpr int kLeft = 800, kTop = 742, kRow = 25, kNumber = 990;
  strokes_.push_back({Shape::kBox, {kMargin, kMargin, kRight - kMargin, kBottom - kMargin}, Ink::kPin});
  strokes_.push_back({Shape::kBox, {kLeft, kTop, kRight - kLeft, kBottom - kTop}, Ink::kPin});
  strokes_.push_back({Shape::kLine, {kLeft, kTop + kRow, kRight - kLeft, 0}, Ink::kPin});
  strokes_.push_back({Shape::kLine, {kNumber, kTop, 0, kBottom - kTop}, Ink::kPin});
  text(kLeft + 8, kTop + 13, Align::kLeft, board, Ink::kPin, 14, true);
  text(kLeft + 8, kTop + 38, Align::kLeft, variant, Ink::kPin);
  text(kNumber + 8, kTop + 13, Align::kLeft, number, Ink::kPin);
  text(kNumber + 8, kTop + 38, Align::kLeft, "SHEET 1/1", Ink::kPin);
}

void Circuit::text(int x, int y, Align align, const std::string& words, Ink ink, int size, bool bold) {
  if (!words.empty()) texts_.push_back({x, y, align, words, ink, size, bold});
}

bool Circuit::touches(const Wire& wire, Point point) const {
  for (std::size_t i = 1; i < wire.points.size(); ++i) {
    if (onSegment(point, wire.points[i - 1], wire.points[i])) return true;
  }
  return false;
}

/// How many ways lead from a point: a wire's end and a lead are one way, a wire that passes is two.
int Circuit::ways(Point point) const {
  int ways = 0;
  for (const Wire& wire : nets_) {
    if (touches(wire, point)) ways += wire.points.front() == point || wire.points.back() == point ? 1 : 2;
  }
  for (const Lead& lead : leads_)
    ways += lead.at == point;
  return ways;
}

std::vector<Point> Circuit::dots() const {
  std::vector<Point> dots;
  const auto look = [&](Point point) {
    if (ways(point) >= 3 && std::find(dots.begin(), dots.end(), point) == dots.end()) dots.push_back(point);
  };
  for (const Wire& wire : nets_) {
    look(wire.points.front());
    look(wire.points.back());
  }
  for (const Lead& lead : leads_)
    look(lead.at);
  return dots;
}

}  // namespace schematics
