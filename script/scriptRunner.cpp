#include "script/scriptRunner.h"

#include <array>
#include <charconv>
#include <climits>
#include <cmath>
#include <cstdlib>
#include <iostream>

#include "link/simulation.h"
#include "shell/tick.h"
#include "state/randomSource.h"
#include "state/state.h"
#include "text/hexText.h"
#include "text/utf8.h"
#include "ui/desk.h"

namespace zelvs {

namespace {

/// Splits a line into its tokens. False when a quotation is left open.
bool tokensOf(const std::string& line, std::vector<std::string>& tokens) {
  std::size_t at = 0;
  const auto blank = [&] { return line[at] == ' ' || line[at] == '\t' || line[at] == '\r'; };
  while (true) {
    while (at < line.size() && blank())
      ++at;
    if (at == line.size() || line[at] == '#') return true;
    std::string token;
    if (line[at] != '"') {
      while (at < line.size() && !blank())
        token += line[at++];
      tokens.push_back(token);
      continue;
    }
    ++at;
    while (at < line.size() && line[at] != '"') {
      if (line[at] == '\\' && at + 1 < line.size()) {
        ++at;
        const char c = line[at];
        token += c == 'r' ? '\r' : c == 'n' ? '\n' : c == 't' ? '\t' : c;
      } else {
        token += line[at];
      }
      ++at;
    }
    if (at == line.size()) return false;
    ++at;
    tokens.push_back(token);
  }
}

std::optional<std::int64_t> wholeNumber(std::string_view text) {
  const bool negative = text.starts_with('-');
  if (negative) text.remove_prefix(1);
  const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
  if (hexadecimal) text.remove_prefix(2);
  if (text.starts_with('-')) return std::nullopt;  // a second sign
  std::int64_t number = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number, hexadecimal ? 16 : 10);
  if (text.empty() || result.ec != std::errc() || result.ptr != text.data() + text.size()) return std::nullopt;
  return negative ? -number : number;
}

/// A whole number that fits an int: one that does not must not come out as another.
std::optional<int> smallNumber(std::string_view text) {
  const auto number = wholeNumber(text);
  if (!number || *number < INT_MIN || *number > INT_MAX) return std::nullopt;
  return static_cast<int>(*number);
}

std::optional<double> anyNumber(std::string_view text) {
  if (const auto whole = wholeNumber(text)) return static_cast<double>(*whole);
  double number = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
  if (text.empty() || result.ec != std::errc() || result.ptr != text.data() + text.size()) return std::nullopt;
  if (!std::isfinite(number)) return std::nullopt;
  return number;
}

std::string noNumber(const std::string& text) {
  return "not a number: " + text;
}

/// "name" or "name(3)".
struct Piece {
  std::string_view name;
  std::optional<int> index;
};

/// Splits "form.control(3).List(2)" at its points. False when it is not of that shape.
bool piecesOf(std::string_view text, std::vector<Piece>& pieces) {
  while (true) {
    const std::size_t end = std::min(text.find_first_of(".("), text.size());
    Piece piece{text.substr(0, end), std::nullopt};
    if (piece.name.empty()) return false;
    text.remove_prefix(end);
    if (text.starts_with('(')) {
      const std::size_t close = text.find(')');
      if (close == std::string_view::npos) return false;
      const auto index = wholeNumber(text.substr(1, close - 1));
      if (!index || std::abs(*index) > 1'000'000) return false;
      piece.index = static_cast<int>(*index);
      text.remove_prefix(close + 1);
    }
    pieces.push_back(piece);
    if (text.empty()) return true;
    if (!text.starts_with('.')) return false;
    text.remove_prefix(1);
  }
}

std::string indexed(const Piece& piece) {
  return std::string(piece.name) + (piece.index ? "(" + std::to_string(*piece.index) + ")" : "");
}

std::string findForm(std::string_view name, Form*& form) {
  const FormPlace* place = FormPlace::named(name);
  if (place == nullptr) return "unknown form: " + std::string(name);
  if (!place->loaded()) return place->name() + " is not loaded";
  form = place->form();
  return {};
}

std::string findControl(const Form& form, const Piece& piece, Control*& control) {
  // A control outside any array has no index, not even a negative one.
  const bool negative = piece.index && *piece.index < 0;
  control = negative ? nullptr : form.find(piece.name, piece.index.value_or(-1));
  if (control != nullptr) return {};
  const bool array = form.hasArray(piece.name);
  if (array) return form.name() + "." + indexed(piece) + (piece.index ? " is not there" : " needs an index");
  return "unknown control: " + form.name() + "." + indexed(piece);
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

std::string findVariable(const Piece& piece, const VariableName*& variable) {
  for (const VariableName& row : variableNames()) {
    if (row.name != piece.name) continue;
    if (row.count == 0 && piece.index) return std::string(row.name) + " has no index";
    if (row.count > 0 && !piece.index) return std::string(row.name) + " needs an index";
    const int index = piece.index.value_or(0);
    if (row.count > 0 && (index < row.firstIndex || index >= row.firstIndex + row.count)) {
      return indexed(piece) + " is not there";
    }
    variable = &row;
    return {};
  }
  return "unknown name: " + std::string(piece.name);
}

std::string lookAtVariable(const Piece& piece, Value& value) {
  const std::pair<std::string_view, const std::string*> texts[] = {{"iniFilePath", &iniFilePath},
                                                                   {"naviDataPath", &naviDataPath}};
  for (const auto& [name, text] : texts) {
    if (name == piece.name && !piece.index) {
      value = Value::ofText(*text);
      return {};
    }
  }
  const VariableName* variable = nullptr;
  std::string why = findVariable(piece, variable);
  if (why.empty()) value = Value::ofNumber(static_cast<double>(variable->read(piece.index.value_or(0))));
  return why;
}

std::string bytesText(int address, int count) {
  std::string text;
  for (int i = 0; i < count; ++i)
    text += (i == 0 ? "" : " ") + hexText(chipMemory[address + i], 2);
  return text;
}

std::string memoryRange(const std::string& address, std::int64_t count, int& first) {
  const auto number = wholeNumber(address);
  if (!number) return noNumber(address);
  if (*number < 0 || count < 1 || count > kChipMemorySize || *number > kChipMemorySize - count) {
    return "outside chip memory (0x000 to 0x7FF): " + address;
  }
  first = static_cast<int>(*number);
  return {};
}

}  // namespace

ScriptRunner::ScriptRunner(std::istream& in, std::ostream& out, ScriptedPlatform& platform, Hands& hands, bool prompt)
    : in_(in), out_(out), platform_(platform), hands_(hands), prompt_(prompt) {
  fillCommands();
  platform_.onWait = [this] {
    if (!runNext()) finishInside();
    return true;
  };
  platform_.onMessageBox = [this](const std::string& title, const std::string& text, MessageButtons buttons) {
    boxes_.push_back({title, text, buttons, std::nullopt});
    while (!boxes_.back().answer) {
      if (!runNext()) finishInside();
    }
    const bool ok = *boxes_.back().answer;
    boxes_.pop_back();
    return ok;
  };
}

int ScriptRunner::run() {
  while (runNext()) {
  }
  return status();
}

void ScriptRunner::finishInside() {
  // The input ended inside a modal window: what opened it will never go on.
  out_.flush();
  std::_Exit(status());
}

bool ScriptRunner::runNext() {
  if (!desk().clock.finish()) return true;  // a modal window has gone meanwhile: first its opener goes on
  if (desk().ended()) return false;
  if (prompt_) out_ << ">" << std::endl;
  std::string line;
  if (!std::getline(in_, line)) return false;
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (line.starts_with(kByteOrderMark)) line.erase(0, kByteOrderMark.size());
  runLine(line);
  if (prompt_) out_.flush();
  return true;
}

void ScriptRunner::runLine(const std::string& line) {
  Tokens words;
  const bool whole = tokensOf(line, words);
  if (whole && words.empty()) return;
  const std::string why = whole ? carryOut(words) : "a quotation is left open";
  // What an opener of a modal window was refused was told before the commands inside it: nothing to keep here.
  const bool expectation = !words.empty() && words[0] == "expect";
  if (why.empty()) {
    if (!expectation) lastRefused_ = false;
    return;
  }
  out_ << "error: " << why << '\n';
  ++refusals_;
  lastRefused_ = true;
}

std::string ScriptRunner::carryOut(const Tokens& words) {
  const auto command = commands_.find(words[0]);
  if (command == commands_.end()) return "unknown command: " + words[0];
  return command->second(words);
}

void ScriptRunner::fillCommands() {
  struct WordCount {
    std::size_t least;
    std::size_t most;
  };
  const auto add = [this](const std::string& name, WordCount limit, Command command) {
    commands_[name] = [name, limit, command = std::move(command)](const Tokens& words) -> std::string {
      if (words.size() - 1 < limit.least) return name + ": too few words";
      if (words.size() - 1 > limit.most) return name + ": too many words";
      return command(words);
    };
  };
  // A gesture that takes a form or a control.
  using AtTarget = std::string (Hands::*)(Form&, Control*);
  const auto addAtTarget = [&](const std::string& name, AtTarget hand) {
    add(name, {1, 1}, [this, hand](const Tokens& words) {
      Target target;
      std::string why = gestureTarget(words[1], target);
      return why.empty() ? (hands_.*hand)(*target.form, target.control) : why;
    });
  };
  const auto addAtControl = [&](const std::string& name, std::size_t words,
                                std::function<std::string(Control&, const Tokens&)> action) {
    add(name, {words, words}, [this, action = std::move(action)](const Tokens& given) {
      Target target;
      std::string why = gestureTarget(given[1], target);
      if (!why.empty()) return why;
      if (target.control == nullptr) return "not a control: " + given[1];
      return action(*target.control, given);
    });
  };
  const auto addAtForm = [&](const std::string& name, std::string (Hands::*hand)(Form&)) {
    add(name, {1, 1}, [this, hand](const Tokens& words) {
      Target target;
      std::string why = gestureTarget(words[1], target);
      if (!why.empty()) return why;
      if (target.control != nullptr) return "not a form: " + words[1];
      return (hands_.*hand)(*target.form);
    });
  };
  const auto count = [](const Tokens& words, const std::function<void()>& action) -> std::string {
    const auto times = words.size() > 1 ? wholeNumber(words[1]) : 1;
    if (!times || *times < 0) return noNumber(words[1]);
    const Desk::Event event;
    for (std::int64_t i = 0; i < *times; ++i)
      action();
    return {};
  };

  addAtTarget("click", &Hands::click);
  addAtTarget("press", &Hands::press);
  addAtTarget("release", &Hands::release);
  for (const bool lastRelease : {true, false}) {
    add(lastRelease ? "dblclick" : "dblpress", {1, 1}, [this, lastRelease](const Tokens& words) {
      Target target;
      std::string why = gestureTarget(words[1], target);
      return why.empty() ? hands_.doubleClick(*target.form, target.control, lastRelease) : why;
    });
  }
  add("move", {1, 1}, [this](const Tokens& words) {
    Target target;
    std::string why = gestureTarget(words[1], target);
    if (!why.empty()) return why;
    const Form& form = *target.form;
    const Area area =
        target.control != nullptr ? target.control->area() : Area{0, 0, form.clientWidth(), form.clientHeight()};
    platform_.setPointer({static_cast<int>((form.insideLeft() + area.left + area.width / 2) / kTwipsPerPixel),
                          static_cast<int>((form.insideTop() + area.top + area.height / 2) / kTwipsPerPixel)});
    return hands_.move(*target.form, target.control);
  });
  add("pointer", {2, 2}, [this](const Tokens& words) {
    const auto x = smallNumber(words[1]);
    const auto y = smallNumber(words[2]);
    if (!x || !y) return noNumber(x ? words[2] : words[1]);
    platform_.setPointer({*x, *y});
    return std::string();
  });
  addAtControl("select", 2, [this](Control& control, const Tokens& words) {
    const auto row = smallNumber(words[2]);
    return row ? hands_.pick(control, *row) : noNumber(words[2]);
  });
  addAtControl("focus", 1, [this](Control& control, const Tokens&) { return hands_.focus(control); });
  addAtControl("type", 2, [this](Control& control, const Tokens& words) {
    std::string why = hands_.focus(control);
    for (const char32_t character : charactersOf(words[2])) {
      if (why.empty()) why = hands_.type(control, character);
    }
    return why;
  });
  addAtControl("key", 2, [this](Control& control, const Tokens& words) {
    const auto code = smallNumber(words[2]);
    return code ? hands_.keyDown(control, *code) : noNumber(words[2]);
  });
  addAtForm("close", &Hands::close);
  addAtForm("activate", &Hands::activate);
  add("answer", {1, 1}, [this](const Tokens& words) { return answer(words); });

  constexpr std::size_t kMany = 1 << 20;
  add("get", {1, kMany}, [this](const Tokens& words) { return get(words); });
  add("peek", {1, 2}, [this](const Tokens& words) { return peek(words); });
  add("forms", {0, 0}, [this](const Tokens& words) { return forms(words); });
  add("controls", {1, 1}, [this](const Tokens& words) { return controls(words); });
  add("box", {0, 0}, [this](const Tokens& words) { return box(words); });
  add("beeps", {0, 0}, [this](const Tokens&) {
    out_ << "beeps = " << platform_.beeps() << '\n';
    return std::string();
  });
  add("now", {0, 0}, [this](const Tokens&) {
    out_ << "now = " << desk().clock.now() << '\n';
    return std::string();
  });
  add("echo", {0, kMany}, [this](const Tokens& words) {
    for (std::size_t i = 1; i < words.size(); ++i)
      out_ << (i == 1 ? "" : " ") << words[i];
    out_ << '\n';
    return std::string();
  });
  add("screenshot", {2, 2}, [this](const Tokens& words) { return screenshot(words); });

  add("step", {0, 1}, [count](const Tokens& words) { return count(words, simulationStep); });
  add("tick", {0, 1}, [count](const Tokens& words) { return count(words, timTick_Timer); });
  add("wait", {1, 1}, [this](const Tokens& words) {
    const auto milliseconds = smallNumber(words[1]);
    if (!milliseconds || *milliseconds < 0) return noNumber(words[1]);
    desk().clock.advance(*milliseconds);
    return std::string();
  });
  add("poke", {2, kMany}, [this](const Tokens& words) { return poke(words); });
  add("set", {2, 2}, [this](const Tokens& words) { return set(words); });
  add("random", {1, kMany}, [this](const Tokens& words) { return random(words); });
  add("expect", {1, kMany}, [this](const Tokens& words) { return expect(words); });
}

std::string ScriptRunner::findTarget(std::string_view text, Target& target) const {
  std::vector<Piece> pieces;
  if (!piecesOf(text, pieces) || pieces.size() > 2 || pieces[0].index) return "not a target: " + std::string(text);
  std::string why = findForm(pieces[0].name, target.form);
  if (why.empty() && pieces.size() == 2) why = findControl(*target.form, pieces[1], target.control);
  return why;
}

std::string ScriptRunner::gestureTarget(std::string_view text, Target& target) const {
  std::string why = findTarget(text, target);
  if (!why.empty()) return why;
  if (!boxes_.empty()) return "the message box " + quoted(boxes_.back().title) + " is open";
  return gesture::refusal(*target.form, target.control);
}

std::string ScriptRunner::look(std::string_view what, Value& value) const {
  std::vector<Piece> pieces;
  if (!piecesOf(what, pieces) || pieces.size() > 3) return "not a name: " + std::string(what);
  if (pieces[0].name == "screen" && pieces.size() == 2) return lookAtScreen(pieces[1], value);
  if (pieces.size() == 1) return lookAtVariable(pieces[0], value);

  const FormPlace* place = FormPlace::named(pieces[0].name);
  if (place != nullptr && !place->loaded() && pieces.size() == 2 && pieces[1].name == "Visible") {
    value = Value::ofTruth(false);
    return {};
  }
  Form* form = nullptr;
  std::string why = findForm(pieces[0].name, form);
  if (!why.empty()) return why;
  std::optional<Value> found;
  if (pieces.size() == 2) {
    found = inspect(*form, pieces[1].name);
  } else {
    Control* control = nullptr;
    why = findControl(*form, pieces[1], control);
    if (!why.empty()) return why;
    found = inspect(*control, pieces[2].name, pieces[2].index);
  }
  if (!found) return "unknown property: " + std::string(what);
  value = *found;
  return {};
}

std::string ScriptRunner::get(const Tokens& words) {
  for (std::size_t i = 1; i < words.size(); ++i) {
    Value value;
    std::string why = look(words[i], value);
    if (!why.empty()) return why;
    out_ << words[i] << " = " << value.printed() << '\n';
  }
  return {};
}

std::string ScriptRunner::peek(const Tokens& words) {
  const auto count = words.size() > 2 ? wholeNumber(words[2]) : 1;
  if (!count) return noNumber(words[2]);
  int address = 0;
  std::string why = memoryRange(words[1], *count, address);
  if (why.empty()) {
    out_ << "0x" << hexText(static_cast<unsigned>(address), 3) << ": " << bytesText(address, static_cast<int>(*count))
         << '\n';
  }
  return why;
}

std::string ScriptRunner::forms(const Tokens&) {
  for (const Form* form : desk().forms()) {
    out_ << form->name() << (form->visible() ? " visible" : " hidden") << (form->modal() ? " modal" : "")
         << (desk().active() == form ? " active" : "") << '\n';
  }
  return {};
}

std::string ScriptRunner::controls(const Tokens& words) {
  Form* form = nullptr;
  std::string why = findForm(words[1], form);
  if (!why.empty()) return why;
  for (const Control* control : form->controls()) {
    out_ << control->fullName().substr(form->name().size() + 1) << " " << kindName(control->kind()) << '\n';
  }
  return {};
}

std::string ScriptRunner::boxText() const {
  return boxes_.empty() ? "none" : boxes_.back().text;
}

std::string ScriptRunner::box(const Tokens&) {
  if (boxes_.empty()) {
    out_ << "none\n";
  } else {
    const Box& open = boxes_.back();
    out_ << open.title << " | " << open.text << " | " << (open.buttons == MessageButtons::OkCancel ? "ok cancel" : "ok")
         << '\n';
  }
  return {};
}

std::string ScriptRunner::answer(const Tokens& words) {
  if (boxes_.empty()) return "no message box is open";
  const bool cancel = words[1] == "cancel";
  if (!cancel && words[1] != "ok") return "no such button: " + words[1];
  if (cancel && boxes_.back().buttons == MessageButtons::Ok) return "the message box has no cancel";
  boxes_.back().answer = !cancel;
  return {};
}

std::string ScriptRunner::poke(const Tokens& words) {
  int address = 0;
  std::string why = memoryRange(words[1], static_cast<std::int64_t>(words.size()) - 2, address);
  std::vector<std::uint8_t> bytes;
  for (std::size_t i = 2; i < words.size() && why.empty(); ++i) {
    const auto byte = wholeNumber(words[i]);
    if (!byte || *byte < 0 || *byte > 255) why = "not a byte: " + words[i];
    if (why.empty()) bytes.push_back(static_cast<std::uint8_t>(*byte));
  }
  // Nothing is written unless all of it can be.
  if (why.empty()) {
    for (std::size_t i = 0; i < bytes.size(); ++i)
      chipMemory[address + static_cast<int>(i)] = bytes[i];
  }
  return why;
}

std::string ScriptRunner::set(const Tokens& words) {
  std::vector<Piece> pieces;
  if (!piecesOf(words[1], pieces) || pieces.size() != 1) return "not a shared variable: " + words[1];
  const VariableName* variable = nullptr;
  std::string why = findVariable(pieces[0], variable);
  if (!why.empty()) return why;
  const auto value = wholeNumber(words[2]);
  if (!value) return noNumber(words[2]);
  if (!variable->holds(*value)) return words[1] + " cannot hold " + words[2];
  variable->write(pieces[0].index.value_or(0), *value);
  return {};
}

std::string ScriptRunner::random(const Tokens& words) {
  std::vector<double> numbers;
  for (std::size_t i = 1; i < words.size(); ++i) {
    const auto number = anyNumber(words[i]);
    if (!number || *number < 0 || *number > 1) return "not a number from 0 to 1: " + words[i];
    numbers.push_back(*number);
  }
  for (const double number : numbers)
    queueRandom(number);
  return {};
}

std::string ScriptRunner::screenshot(const Tokens& words) {
  if (words[1] == "all") return hands_.screenshot(nullptr, words[2]);
  Form* form = nullptr;
  std::string why = findForm(words[1], form);
  if (why.empty() && !form->visible()) why = form->name() + " is not visible";
  return why.empty() ? hands_.screenshot(form, words[2]) : why;
}

std::string ScriptRunner::judge(const std::string& what, bool held, const std::string& expected,
                                const std::string& is) {
  if (held) {
    out_ << "ok\n";
  } else {
    out_ << "FAILED " << what << ": expected " << expected << ", is " << is << '\n';
    ++failures_;
  }
  return {};
}

std::string ScriptRunner::expectBytes(const Tokens& words) {
  if (words.size() < 4) return "expect peek: too few words";
  const auto count = static_cast<std::int64_t>(words.size()) - 3;
  int address = 0;
  std::string why = memoryRange(words[2], count, address);
  if (!why.empty()) return why;
  std::string expected;
  for (std::size_t i = 3; i < words.size(); ++i)
    expected += (i == 3 ? "" : " ") + words[i];
  const std::string is = bytesText(address, static_cast<int>(count));
  return judge("peek " + words[2], expected == is, expected, is);
}

std::string ScriptRunner::expect(const Tokens& words) {
  if (words[1] == "error") {
    if (words.size() != 2) return "expect error: too many words";
    const bool refused = lastRefused_;
    if (refused) --refusals_;
    lastRefused_ = false;
    return judge("error", refused, "a refusal", "none");
  }
  if (words[1] == "peek") return expectBytes(words);
  if (words.size() != 3) return words.size() < 3 ? "expect: too few words" : "expect: too many words";
  const std::string& wanted = words[2];
  if (words[1] == "box") return judge("box", !boxes_.empty() && wanted == boxText(), quoted(wanted), quoted(boxText()));
  Value value = Value::ofNumber(platform_.beeps());
  if (words[1] != "beeps") {
    std::string why = look(words[1], value);
    if (!why.empty()) return why;
  }
  const auto number = anyNumber(wanted);
  const bool held = value.kind == Value::Kind::Number && number ? *number == value.number : wanted == value.plain();
  const bool text = value.kind == Value::Kind::Text;
  return judge(words[1], held, text ? quoted(wanted) : wanted, value.printed());
}

}  // namespace zelvs
