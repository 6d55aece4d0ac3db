#pragma once

#include "tools/schematics/circuit.h"

namespace schematics {

/// What one part leaves on the sheet.
struct Symbol {
  std::vector<Stroke> strokes;
  std::vector<Text> texts;
  std::vector<Lead> leads;
  bool body = false;  // a wire must not run through the first stroke
};

/// The part at x, y under that name, whatever its table says of the three.
Symbol symbolOf(const Part& part, int x, int y, const std::string& name);

}  // namespace schematics
