#pragma once

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "shell/frmDefault.h"
#include "state/state.h"

namespace zelvs {

/// The lines of a settings file, each as it stands with its line end, and which of them give a value.
class PlainIni {
 public:
  struct Line {
    std::string text;  // without its end
    std::string end;
    std::string key;  // upper case, of the first line in the section that gives it; empty for every other line
    std::string value;
  };
  std::vector<Line> lines;
  bool hasSection = false;

  explicit PlainIni(const std::string& text) {
    bool inside = false;
    for (std::size_t at = 0; at < text.size();) {
      const std::size_t newLine = std::min(text.find('\n', at), text.size());
      const bool carriage = newLine > at && newLine < text.size() && text[newLine - 1] == '\r';
      const std::size_t end = carriage ? newLine - 1 : newLine;
      const std::size_t next = std::min(newLine + 1, text.size());
      Line line{text.substr(at, end - at), text.substr(end, next - end), {}, {}};
      read(line, inside);
      lines.push_back(line);
      at = next;
    }
  }

  /// The value of a key as it is read: the number that it begins with, 0 for none.
  double number(const std::string& key) const {
    for (const Line& line : lines) {
      if (line.key == key) return std::strtod(line.value.c_str(), nullptr);
    }
    return 0;
  }

 private:
  static std::string trimmed(const std::string& text) {
    const std::size_t from = text.find_first_not_of(" \t\r");
    return from == std::string::npos ? std::string() : text.substr(from, text.find_last_not_of(" \t\r") - from + 1);
  }
  static std::string upper(std::string text) {
    for (char& c : text) {
      if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    }
    return text;
  }

  void read(Line& line, bool& inside) {
    std::string text = trimmed(line.text);
    if (lines.empty() && text.starts_with("\xEF\xBB\xBF")) text = trimmed(text.substr(3));
    if (text.starts_with("[")) {
      const std::size_t close = text.find(']');
      const bool ours = close != std::string::npos && upper(trimmed(text.substr(1, close - 1))) == "INIT";
      inside = ours && !hasSection;
      hasSection |= ours;
      return;
    }
    const std::size_t equals = text.find('=');
    if (!inside || text.starts_with(";") || equals == std::string::npos) return;
    const std::string key = upper(trimmed(text.substr(0, equals)));
    if (std::any_of(lines.begin(), lines.end(), [&](const Line& other) { return other.key == key; })) return;
    line.key = key;
    line.value = trimmed(text.substr(equals + 1));
    const bool quoted = line.value.size() >= 2 && line.value.front() == line.value.back() &&
                        (line.value.front() == '"' || line.value.front() == '\'');
    if (quoted) line.value = line.value.substr(1, line.value.size() - 2);
  }
};

/// ZELVS.INI: byte for byte what it was, whatever the user does; behind a save it holds what the dialog showed, and
/// every line that is not the program's stands where it stood. And the dialog comes up with what the file says.
class IniWatch {
 public:
  /// Told of what does not hold; does not return.
  using Fault = std::function<void(const std::string& what, const std::string& where)>;

  explicit IniWatch(Fault fault) : fault_(std::move(fault)), was_(text()) {}

  /// A form has been made: the dialog is looked at, and its button that saves is watched from here on.
  void stepInto(const Form& form) {
    if (&form != frmDefault.form()) return;
    lookAtDialog();
    std::function<void()>& save = frmDefault->cmdAction(2).onClick;
    save = [this, saved = save] {
      look();
      saved();
      lookBehindSave();
    };
  }

  /// Nobody has saved.
  void look() const {
    if (text() != was_) fault_("written by nobody who saves", "ZELVS.INI");
  }

 private:
  using Text = std::optional<std::string>;

  /// The file's bytes; nothing where there is none.
  static Text text() {
    const int file = iniFilePath.empty() ? -1 : open(iniFilePath.c_str(), O_RDONLY);
    if (file < 0) return std::nullopt;
    std::string bytes(1 << 12, '\0');
    std::size_t size = 0;
    for (ssize_t got = 0; (got = read(file, bytes.data() + size, bytes.size() - size)) > 0;) {
      size += static_cast<std::size_t>(got);
      if (size == bytes.size()) bytes.resize(2 * size);
    }
    close(file);
    bytes.resize(size);
    return bytes;
  }
  static bool writable() {
    struct stat file {};
    return stat(iniFilePath.c_str(), &file) != 0 || (file.st_mode & 0222) != 0;
  }

  /// A key, and the control of the dialog that stands for it.
  struct Row {
    std::string key;
    const Control* control;
  };
  static std::array<Row, 20> rows() {
    const FrmDefault& form = *frmDefault;
    return {{
        {"CABLECONNECTION", &form.chkDef(0)},
        {"MEMORYCLEAR", &form.chkDef(1)},
        {"CPUTYPE", &form.cmbCPUType},
        {"TRANSFER", &form.optHF(1)},
        {"SA-QVT40-1", &form.cmbSA(0)},
        {"SA-QVT40-3", &form.cmbSA(2)},
        {"SA-QVT50", &form.cmbSA(4)},
        {"CLOCK-QVT60", &form.cmbClock(0)},
        {"CLOCK-QVT40-1", &form.cmbClock(1)},
        {"CLOCK-QVT40-3", &form.cmbClock(3)},
        {"CLOCK-QVT50", &form.cmbClock(5)},
        {"CASCADE-QVT40-12", &form.chkCascade(0)},
        {"CASCADE-QVT40-34", &form.chkCascade(1)},
        {"IOS-QVT50", &form.cmbIOS},
        {"MODE-QVT50", &form.cmbMode},
        {"OPENWINDOW1", &form.chkDef(2)},
        {"OPENWINDOW2", &form.chkDef(3)},
        {"OPENWINDOW3", &form.chkDef(4)},
        {"OPENWINDOW4", &form.chkDef(5)},
        {"OPENWINDOW5", &form.chkDef(6)},
    }};
  }
  static int shownBy(const Control& control) {
    if (control.kind() == ControlKind::CheckBox) return static_cast<const CheckBox&>(control).Value;
    if (control.kind() == ControlKind::OptionButton) return static_cast<const OptionButton&>(control).Value ? 1 : 0;
    return static_cast<const ComboBox&>(control).ListIndex;
  }

  void lookAtDialog() const {
    const PlainIni file(was_.value_or(std::string()));
    for (const Row& row : rows()) {
      const double number = file.number(row.key);
      // Halves go to the even position, and a position has 16 bits.
      const int position = static_cast<std::int16_t>(static_cast<std::int64_t>(std::nearbyint(number)));
      const int wanted = row.control->kind() == ControlKind::ComboBox ? position : number > 0 ? 1 : 0;
      if (shownBy(*row.control) != wanted) fault_("the dialog shows other than the file", row.key);
    }
    if (frmDefault->optHF(0).Value == frmDefault->optHF(1).Value) fault_("full and half duplex", "frmDefault.optHF");
  }

  void lookBehindSave() {
    const Text now = text();
    if (!writable()) {
      if (now != was_) fault_("a file that may not be written is", "ZELVS.INI");
      return;
    }
    if (!now) return fault_("gone behind a save", "ZELVS.INI");
    const PlainIni before(was_.value_or(std::string()));
    const PlainIni after(*now);
    const auto ours = rows();
    for (const Row& row : ours) {
      const std::string line = row.key + "=" + std::to_string(shownBy(*row.control));
      const bool there = std::any_of(after.lines.begin(), after.lines.end(), [&](const PlainIni::Line& other) {
        return other.key == row.key && other.text == line;
      });
      if (!there) fault_("not saved as the dialog shows it", row.key);
    }
    const auto foreign = [&](const PlainIni& file) {
      std::vector<std::pair<std::string, std::string>> lines;
      for (const PlainIni::Line& line : file.lines) {
        if (std::none_of(ours.begin(), ours.end(), [&](const Row& row) { return row.key == line.key; }))
          lines.emplace_back(line.text, line.end);
      }
      return lines;
    };
    auto kept = foreign(before);
    const auto found = foreign(after);
    if (!before.hasSection) kept.emplace_back("[INIT]", found.empty() ? std::string() : found.back().second);
    for (std::size_t i = 0; i < kept.size() && i < found.size(); ++i) {
      if (kept[i].second.empty()) kept[i].second = found[i].second;  // the last line had no end, and may have one now
    }
    if (kept != found) fault_("a line that is not the program's has changed", "ZELVS.INI");
    was_ = now;
  }

  Fault fault_;
  Text was_;
};

}  // namespace zelvs
