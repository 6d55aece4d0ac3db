#include "script/names.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <utility>
#include <vector>

#include "script/words.h"
#include "text/hexText.h"
#include "ui/form.h"
#include "ui/platform.h"

namespace zelvs {

namespace {

/// "name" or "name(3)".
struct Piece {
  std::string_view name;
  std::optional<int> index;

  std::string text() const { return std::string(name) + (index ? "(" + std::to_string(*index) + ")" : ""); }
};
using Pieces = std::vector<Piece>;

/// Takes "(3)" off the front of text. Nothing when no index stands there.
std::optional<int> takeIndex(std::string_view& text) {
  constexpr int kFarthest = 1'000'000;  // far behind the end of every array
  const std::size_t close = text.find(')');
  if (close == text.npos) return std::nullopt;
  const auto index = wholeNumber(text.substr(1, close - 1));
  if (!index || std::abs(*index) > kFarthest) return std::nullopt;
  text.remove_prefix(close + 1);
  return static_cast<int>(*index);
}

/// Splits "form.control(3).List(2)" at its points. Nothing when it is not of that shape.
std::optional<Pieces> piecesOf(std::string_view text) {
  Pieces pieces;
  while (true) {
    const std::size_t end = std::min(text.find_first_of(".("), text.size());
    Piece piece{text.substr(0, end), std::nullopt};
    if (piece.name.empty()) return std::nullopt;
    text.remove_prefix(end);
    if (text.starts_with('(')) {
      piece.index = takeIndex(text);
      if (!piece.index) return std::nullopt;
    }
    pieces.push_back(piece);
    if (text.empty()) return pieces;
    if (!text.starts_with('.')) return std::nullopt;
    text.remove_prefix(1);
  }
}

std::string findControl(const Form& form, const Piece& piece, Control*& control) {
  // A control outside any array has no index, not even a negative one.
  const bool negative = piece.index && *piece.index < 0;
  control = negative ? nullptr : form.find(piece.name, piece.index.value_or(-1));
  if (control != nullptr) return {};
  const std::string name = form.name() + "." + piece.text();
  if (!form.hasArray(piece.name)) return "unknown control: " + name;
  return name + (piece.index ? " is not there" : " needs an index");
}

std::string findVariable(const Piece& piece, VariablePlace& place) {
  for (const VariableName& row : variableNames()) {
    if (row.name != piece.name) continue;
    const bool array = row.count > 0;
    if (!array && piece.index) return std::string(row.name) + " has no index";
    if (array && !piece.index) return std::string(row.name) + " needs an index";
    const int index = piece.index.value_or(0);
    const bool there = !array || (index >= row.firstIndex && index < row.firstIndex + row.count);
    if (!there) return piece.text() + " is not there";
    place = {&row, index};
    return {};
  }
  return "unknown name: " + std::string(piece.name);
}

std::string lookAtScreen(const Piece& piece, Value& value) {
  const Screen screen = platform().screen();
  const std::pair<std::string_view, double> rows[] = {
      {"Width", screen.width * kTwipsPerPixel}, {"Height", screen.height * kTwipsPerPixel},
      {"TwipsPerPixelX", kTwipsPerPixel},       {"TwipsPerPixelY", kTwipsPerPixel},
      {"CaptionHeight", kCaptionHeight},
  };
  for (const auto& [name, number] : rows) {
    if (name != piece.name) continue;
    value = Value::ofNumber(number);
    return {};
  }
  return "unknown: screen." + std::string(piece.name);
}

std::string lookAtVariable(const Piece& piece, Value& value) {
  const std::pair<std::string_view, const std::string*> texts[] = {{"iniFilePath", &iniFilePath},
                                                                   {"naviDataPath", &naviDataPath}};
  for (const auto& [name, text] : texts) {
    if (name != piece.name || piece.index) continue;
    value = Value::ofText(*text);
    return {};
  }
  VariablePlace place;
  std::string why = findVariable(piece, place);
  if (why.empty()) value = Value::ofNumber(static_cast<double>(place.variable->read(place.index)));
  return why;
}

std::string lookAtForm(std::string_view what, const Piece& name, const Piece& property, Value& value) {
  const FormPlace* place = FormPlace::named(name.name);
  if (place != nullptr && !place->loaded() && property.name == "Visible") {
    value = Value::ofTruth(false);
    return {};
  }
  Form* form = nullptr;
  std::string why = findForm(name.name, form);
  if (!why.empty()) return why;
  const std::optional<Value> found = inspect(*form, property.name);
  if (!found) return "unknown property: " + std::string(what);
  value = *found;
  return {};
}

std::string lookAtControl(std::string_view what, const Pieces& pieces, Value& value) {
  Form* form = nullptr;
  Control* control = nullptr;
  std::string why = findForm(pieces[0].name, form);
  if (why.empty()) why = findControl(*form, pieces[1], control);
  if (!why.empty()) return why;
  const std::optional<Value> found = inspect(*control, pieces[2].name, pieces[2].index);
  if (!found) return "unknown property: " + std::string(what);
  value = *found;
  return {};
}

}  // namespace

std::string findForm(std::string_view name, Form*& form) {
  const FormPlace* place = FormPlace::named(name);
  if (place == nullptr) return "unknown form: " + std::string(name);
  if (!place->loaded()) return place->name() + " is not loaded";
  form = place->form();
  return {};
}

std::string findTarget(std::string_view text, Target& target) {
  const auto pieces = piecesOf(text);
  if (!pieces || pieces->size() > 2 || pieces->front().index) return "not a target: " + std::string(text);
  Target found;
  std::string why = findForm(pieces->front().name, found.form);
  if (why.empty() && pieces->size() == 2) why = findControl(*found.form, pieces->back(), found.control);
  if (why.empty()) target = found;
  return why;
}

std::string findVariable(std::string_view text, VariablePlace& place) {
  const auto pieces = piecesOf(text);
  if (!pieces || pieces->size() != 1) return "not a shared variable: " + std::string(text);
  return findVariable(pieces->front(), place);
}

std::string findBytes(const std::string& address, std::int64_t count, int& first) {
  const auto number = wholeNumber(address);
  if (!number) return noNumber(address);
  if (*number < 0 || count < 1 || count > kChipMemorySize || *number > kChipMemorySize - count) {
    return "outside chip memory (0x000 to 0x7FF): " + address;
  }
  first = static_cast<int>(*number);
  return {};
}

std::string look(std::string_view what, Value& value) {
  const auto pieces = piecesOf(what);
  if (!pieces || pieces->size() > 3) return "not a name: " + std::string(what);
  const Piece& first = pieces->front();
  if (pieces->size() == 1) return lookAtVariable(first, value);
  if (pieces->size() == 3) return lookAtControl(what, *pieces, value);
  if (first.name == "screen") return lookAtScreen(pieces->back(), value);
  return lookAtForm(what, first, pieces->back(), value);
}

std::string bytesText(int first, int count) {
  std::string text;
  for (int i = 0; i < count; ++i)
    text += (i == 0 ? "" : " ") + hexText(chipMemory[first + i], 2);
  return text;
}

}  // namespace zelvs
