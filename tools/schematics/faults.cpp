// What a drawing program would find wrong with a circuit, so that no picture is left with a wire in the air.

#include <algorithm>
#include <cstdlib>
#include <map>
#include <numeric>
#include <utility>

#include "tools/schematics/circuit.h"

namespace schematics {

namespace {

std::string at(Point point) {
  return " at " + std::to_string(point.x) + ", " + std::to_string(point.y);
}

bool meet(const Rect& a, const Rect& b) {
  return a.x < b.x + b.w && b.x < a.x + a.w && a.y < b.y + b.h && b.y < a.y + a.h;
}

/// A line as a rectangle, none of its sides negative.
Rect spanOf(const Stroke& stroke) {
  const Rect& r = stroke.at;
  return {std::min(r.x, r.x + r.w), std::min(r.y, r.y + r.h), std::abs(r.w), std::abs(r.h)};
}

/// The lines that a stroke leaves on paper; round shapes leave their surrounding rectangle.
std::vector<Rect> linesOf(const Stroke& stroke) {
  const Rect r = spanOf(stroke);
  if (stroke.shape == Shape::kLine || stroke.shape == Shape::kDashes) return {{r.x, r.y, r.w + 1, r.h + 1}};
  if (stroke.shape == Shape::kBox || stroke.shape == Shape::kDashedBox) {
    return {{r.x, r.y, r.w, 1}, {r.x, r.y + r.h, r.w, 1}, {r.x, r.y, 1, r.h}, {r.x + r.w, r.y, 1, r.h}};
  }
  if (stroke.shape == Shape::kOval && r.w > 8) return {};  // a letter stands in it
  return {r};
}

/// How far two level or two upright pieces of wire lie on each other.
int shared(Point a, Point b, Point c, Point d) {
  const auto common = [](int p, int q, int r, int s) {
    return std::min(std::max(p, q), std::max(r, s)) - std::max(std::min(p, q), std::min(r, s));
  };
  if (a.y == b.y && c.y == d.y && a.y == c.y) return common(a.x, b.x, c.x, d.x);
  if (a.x == b.x && c.x == d.x && a.x == c.x) return common(a.y, b.y, c.y, d.y);
  return 0;
}

}  // namespace

void Circuit::findLooseEnds(std::vector<std::string>& faults) const {
  for (const Wire& wire : nets_) {
    for (const Point end : {wire.points.front(), wire.points.back()}) {
      if (ways(end) < 2) faults.push_back("a net ends in the air" + at(end));
    }
    for (std::size_t i = 1; i < wire.points.size(); ++i) {
      const Point a = wire.points[i - 1], b = wire.points[i];
      if (a.x != b.x && a.y != b.y) faults.push_back("a net is slanted" + at(a));
    }
  }
  for (const Lead& lead : leads_) {
    if (ways(lead.at) < 2) faults.push_back("lead " + lead.name + " is wired to nothing" + at(lead.at));
    if (lead.kind == Kind::kOpen && ways(lead.at) > 2) faults.push_back("an open pin is wired" + at(lead.at));
  }
}

void Circuit::findOverlaps(std::vector<std::string>& faults) const {
  for (std::size_t first = 0; first < nets_.size(); ++first) {
    for (std::size_t i = 1; i < nets_[first].points.size(); ++i) {
      const Point a = nets_[first].points[i - 1], b = nets_[first].points[i];
      for (std::size_t second = first + 1; second < nets_.size(); ++second) {
        for (std::size_t k = 1; k < nets_[second].points.size(); ++k) {
          if (shared(a, b, nets_[second].points[k - 1], nets_[second].points[k]) > 0) {
            faults.push_back("two nets lie on each other" + at(a) + " and" + at(nets_[second].points[k - 1]));
          }
        }
      }
      for (const Body& body : bodies_) {
        const Rect inside = {body.at.x + 1, body.at.y + 1, body.at.w - 1, body.at.h - 1};
        const Rect piece = {std::min(a.x, b.x), std::min(a.y, b.y), std::abs(a.x - b.x) + 1, std::abs(a.y - b.y) + 1};
        if (meet(inside, piece)) faults.push_back("a net runs through " + body.name + at(a));
      }
    }
  }
}

void Circuit::findCrossedParts(std::vector<std::string>& faults) const {
  // Lines may meet where a lead is, which a plug's edge surrounds, and nowhere else.
  const auto crossed = [&](const Rect& a, const Rect& b) {
    if (!meet(a, b)) return false;
    return std::none_of(leads_.begin(), leads_.end(), [&](const Lead& lead) {
      const Rect spot = {lead.at.x - 4, lead.at.y - 4, 9, 9};
      return meet(spot, a) && meet(spot, b);
    });
  };
  for (std::size_t i = 0; i < outlines_.size(); ++i) {
    for (std::size_t mine = outlines_[i].first; mine < outlines_[i].end; ++mine) {
      const Point place = {strokes_[mine].at.x, strokes_[mine].at.y};
      for (const Rect& line : linesOf(strokes_[mine])) {
        for (const Stroke& wire : wires_) {
          if (crossed(line, linesOf(wire)[0])) faults.push_back("a net crosses part " + outlines_[i].name + at(place));
        }
        for (std::size_t k = i + 1; k < outlines_.size(); ++k) {
          for (std::size_t other = outlines_[k].first; other < outlines_[k].end; ++other) {
            for (const Rect& otherLine : linesOf(strokes_[other])) {
              if (crossed(line, otherLine)) {
                faults.push_back("parts " + outlines_[i].name + " and " + outlines_[k].name + " overlap" + at(place));
              }
            }
          }
        }
      }
    }
  }
}

void Circuit::findShorts(std::vector<std::string>& faults) const {
  // Nets that touch are one; so are those that reach flags of the same name.
  std::vector<std::size_t> group(nets_.size());
  std::iota(group.begin(), group.end(), std::size_t{0});
  const auto join = [&](std::size_t a, std::size_t b) {
    const std::size_t from = group[a], to = group[b];
    std::replace(group.begin(), group.end(), from, to);
  };
  for (std::size_t a = 0; a < nets_.size(); ++a) {
    for (std::size_t b = 0; b < nets_.size(); ++b) {
      if (a != b && (touches(nets_[b], nets_[a].points.front()) || touches(nets_[b], nets_[a].points.back())))
        join(a, b);
    }
  }
  const auto netAt = [&](Point point) {
    std::size_t i = 0;
    while (i < nets_.size() && !touches(nets_[i], point))
      ++i;
    return i;
  };
  std::map<std::string, std::vector<std::size_t>> flags;
  for (const Lead& lead : leads_) {
    if (lead.kind == Kind::kFlag) flags[lead.name].push_back(netAt(lead.at));
    // Two nets that end at one lead are one.
    std::size_t first = nets_.size();
    for (std::size_t i = 0; i < nets_.size(); ++i) {
      if (!touches(nets_[i], lead.at)) continue;
      if (first < nets_.size()) join(first, i);
      first = i;
    }
  }
  for (const auto& [name, nets] : flags) {
    if (nets.size() < 2) faults.push_back("flag " + name + " stands alone");
    for (std::size_t i = 1; i < nets.size(); ++i) {
      if (nets[0] < nets_.size() && nets[i] < nets_.size()) join(nets[0], nets[i]);
    }
  }
  for (const Lead& supply : leads_) {
    for (const Lead& ground : leads_) {
      if (supply.kind != Kind::kSupply || ground.kind != Kind::kGround) continue;
      const std::size_t up = netAt(supply.at), down = netAt(ground.at);
      const bool wired = up < nets_.size() && down < nets_.size() && group[up] == group[down];
      if (wired || supply.at == ground.at) {
        faults.push_back("supply" + at(supply.at) + " lies on ground" + at(ground.at));
      }
    }
  }
}

void Circuit::findPinFaults(std::vector<std::string>& faults) const {
  std::map<std::pair<const Body*, int>, std::string> taken;
  for (const Numbered& pin : pins_) {
    const auto body = std::find_if(bodies_.begin(), bodies_.end(), [&](const Body& candidate) {
      const Rect& r = candidate.at;
      const bool level = pin.at.x >= r.x && pin.at.x <= r.x + r.w;
      const bool upright = pin.at.y >= r.y && pin.at.y <= r.y + r.h;
      return (upright && (pin.at.x == r.x || pin.at.x == r.x + r.w)) ||
             (level && (pin.at.y == r.y || pin.at.y == r.y + r.h));
    });
    if (body == bodies_.end()) {
      faults.push_back("pin " + pin.name + " stands on no part" + at(pin.at));
      continue;
    }
    if (pin.number == 0) continue;
    const auto [other, fresh] = taken.insert({{&*body, pin.number}, pin.name});
    if (!fresh) {
      faults.push_back("pins " + other->second + " and " + pin.name + " of " + body->name + " have one number, " +
                       std::to_string(pin.number));
    }
  }
}

void Circuit::findTextFaults(std::vector<std::string>& faults) const {
  constexpr Rect kInside = {kMargin + 1, kMargin + 1, kWidth - 2 * kMargin - 2, kHeight - 2 * kMargin - 2};
  for (std::size_t i = 0; i < texts_.size(); ++i) {
    const Text& text = texts_[i];
    const Rect extent = text.extent();
    if (extent.x < kInside.x || extent.y < kInside.y || extent.x + extent.w > kInside.x + kInside.w ||
        extent.y + extent.h > kInside.y + kInside.h) {
      faults.push_back("text " + text.words + " leaves the sheet" + at({text.x, text.y}));
    }
    for (std::size_t k = i + 1; k < texts_.size(); ++k) {
      if (meet(extent, texts_[k].extent())) {
        faults.push_back("texts " + text.words + " and " + texts_[k].words + " overlap" + at({text.x, text.y}));
      }
    }
    for (const std::vector<Stroke>* strokes : {&wires_, &strokes_}) {
      for (const Stroke& stroke : *strokes) {
        for (const Rect& line : linesOf(stroke)) {
          if (meet(extent, line)) {
            faults.push_back("a line at " + std::to_string(line.x) + ", " + std::to_string(line.y) + " crosses text " +
                             text.words + at({text.x, text.y}));
          }
        }
      }
    }
  }
}

std::vector<std::string> Circuit::faults() const {
  std::vector<std::string> faults;
  findLooseEnds(faults);
  findOverlaps(faults);
  findCrossedParts(faults);
  findShorts(faults);
  findPinFaults(faults);
  findTextFaults(faults);
  return faults;
}

}  // namespace schematics
