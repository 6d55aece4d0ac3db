#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <filesystem>
#include <map>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "support/program.h"
#include "ui/platform.h"

namespace zelvs {

/// What a session starts from, at random: a program folder with settings that the program accepts, also odd ones, in a
/// file that holds other lines as well or is not there; lessons; a screen.
class RandomStart {
 public:
  explicit RandomStart(unsigned seed) : random_(seed) {
    static constexpr std::array<Screen, 6> kScreens = {
        {{1920, 1080}, {1920, 1080}, {1366, 768}, {1280, 720}, {3840, 2160}, {1024, 768}}};
    screen = kScreens[upTo(kScreens.size())];
    if (upTo(10) != 0) ini_ = settings();
    readOnly_ = upTo(10) == 0;
    beep_ = upTo(4) != 0;
    lessons_ = upTo(8);
  }

  Screen screen;

  /// Fills the folder; what the program only reads are links to the built one.
  void prepare(const TemporaryFolder& folder) const {
    const auto link = [&](const char* name) {
      std::filesystem::create_symlink(std::string(ZELVS_FOLDER "/") + name, folder.file(name));
    };
    link("Kairozu");
    link("HintData");
    if (beep_) link("BEEP.WAV");
    if (lessons_ == kShipped) {
      link("NaviData");
    } else if (lessons_ != kNone) {
      std::filesystem::create_directory(folder.file("NaviData"));
      for (const auto& [name, text] : lessons())
        folder.write("NaviData/" + name, text);
    }
    if (ini_.empty()) return;
    folder.write("ZELVS.INI", ini_);
    using std::filesystem::perms;
    if (readOnly_) std::filesystem::permissions(folder.file("ZELVS.INI"), perms::owner_read | perms::group_read);
  }

  /// The head of a script for tests/runCase.sh, and as remarks what it cannot say.
  std::string head() const {
    std::string text;
    if (ini_.empty()) text += "#no-ini\n";
    for (const auto& [key, value] : values_)
      text += "#ini " + key + "=" + value + "\n";
    if (lessons_ == kNone) text += "#no-lessons\n";
    if (lessons_ == kShipped || lessons_ == kNone) return text + remarks();
    for (const auto& [name, lines] : lessons()) {
      std::string line;
      for (const char c : lines) {
        if (c == '\n') {
          text += "#lesson " + name + " " + line + "\n";
          line.clear();
        } else if (c != '\r') {
          line += c == '\t' ? '|' : c;
        }
      }
    }
    return text + remarks();
  }

 private:
  static constexpr std::size_t kShipped = 0, kNone = 1;  // of lessons_; short ones else
  using Texts = std::vector<std::string>;

  /// Short lessons, and one whose file is missing.
  static std::map<std::string, std::string> lessons() {
    return {{"NaviIndex.txt", "a.txt\tA\t-\r\nb.txt\tB\t-\r\nmissing.txt\tC\t-\r\n"},
            {"a.txt", "one\r\n#two&three\r\n-\r\nfour\r\n\\five#six\r\n-\r\nseven\r\n&\r\n-\r\neight\r\n"},
            {"b.txt", "\\one\r\n-\r\n-\r\n"}};
  }

  std::string remarks() const {
    std::string text = "# screen " + std::to_string(screen.width) + "x" + std::to_string(screen.height);
    text += std::string(readOnly_ ? ", read-only" : "") + (beep_ ? "" : ", no BEEP.WAV");
    return text + (lessons_ == kShipped ? ", shipped lessons\n" : "\n");
  }

  std::size_t upTo(std::size_t count) { return std::uniform_int_distribution<std::size_t>(0, count - 1)(random_); }
  std::string any(const Texts& texts) { return texts[upTo(texts.size())]; }

  /// A whole file. Half of them are as the program writes them, with each value at random.
  std::string settings() {
    static const std::map<std::string, int> kLists = {
        {"CPUTYPE", 4},   {"SA-QVT40-1", 63},   {"SA-QVT40-3", 63},   {"SA-QVT50", 63},   {"CLOCK-QVT60", 3},
        {"IOS-QVT50", 8}, {"CLOCK-QVT40-1", 3}, {"CLOCK-QVT40-3", 3}, {"CLOCK-QVT50", 3}, {"MODE-QVT50", 4}};
    static const Texts kFlags = {"CABLECONNECTION",  "MEMORYCLEAR", "TRANSFER",    "CASCADE-QVT40-12",
                                 "CASCADE-QVT40-34", "OPENWINDOW1", "OPENWINDOW2", "OPENWINDOW3",
                                 "OPENWINDOW4",      "OPENWINDOW5"};
    const bool odd = upTo(2) == 0;
    Texts lines;
    for (const auto& [key, count] : kLists) {
      // Boards that meet at one station, or stand beside each other, are likely.
      const std::size_t row = upTo(upTo(2) == 0 ? std::min<std::size_t>(6, static_cast<std::size_t>(count))
                                                : static_cast<std::size_t>(count));
      values_[key] = odd ? oddPosition(row, static_cast<std::size_t>(count)) : std::to_string(row);
    }
    for (const std::string& key : kFlags) {
      const bool on = upTo(key == "CABLECONNECTION" ? 4 : 2) != 0;
      values_[key] = odd && upTo(3) == 0
                         ? any({"-1", "2", "0.4", "1.5", "65536", "x", "", " 1", "\"1\"", "-0.2", "1 x"})
                     : on ? "1"
                          : "0";
    }
    if (odd && upTo(2) == 0) {
      for (std::size_t missing = upTo(6); missing > 0; --missing)
        values_.erase(std::next(values_.begin(), static_cast<std::ptrdiff_t>(upTo(values_.size()))));
    }
    for (const auto& [key, value] : values_)
      lines.push_back(key + "=" + value);
    return odd ? amongOthers(lines) : joined(withHeader(lines), {"\r\n"});
  }

  /// A position of a list, written in another way that is read as that.
  std::string oddPosition(std::size_t row, std::size_t count) {
    const std::string plain = std::to_string(row);
    const bool even = row % 2 == 0;  // halves go there
    switch (upTo(8)) {
      case 0:
        return plain + ".4";
      case 1:
        return even ? plain + ".5" : plain;
      case 2:
        return !even && row + 1 < count ? plain + ".5" : plain;
      case 3:
        return std::to_string(row + 65536);
      case 4:
        return " +" + plain + " apples";
      case 5:
        return "'" + plain + "'";
      default:
        return plain;
    }
  }

  static Texts withHeader(Texts lines) {
    lines.insert(lines.begin(), "[INIT]");
    return lines;
  }

  /// Other people's lines before, between and behind ours, and other spellings of what is ours.
  std::string amongOthers(Texts lines) {
    const Texts foreign = {
        "; a remark",    "COLOUR=blue", "",         "no sign of equality", "[unfinished",          "\x95\x5C=\x8E\xA6",
        "PATH=C:\\A\\B", "   ",         "=nothing", ";CPUTYPE=9",          std::string(2000, 'x'), "FRACTION = 0.125 "};
    std::shuffle(lines.begin(), lines.end(), random_);
    const auto inside = [&](const std::string& line) {
      lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(upTo(lines.size() + 1)), line);
    };
    for (std::size_t more = upTo(6); more > 0; --more) {
      const std::string line = any(foreign);
      if (!line.starts_with("[")) inside(line);
    }
    if (!lines.empty() && upTo(3) == 0) lines.push_back(lines[upTo(lines.size())] + "9");  // a key for the second time
    lines.insert(lines.begin(), any({"[INIT]", "[init]", " [ Init ] ", "[INIT] ; ours"}));
    for (std::size_t before = upTo(4); before > 0; --before)
      lines.insert(lines.begin(), any(foreign));
    if (upTo(3) == 0) lines.insert(lines.begin(), "[BEFORE]");
    for (std::size_t behind = upTo(4); behind > 0; --behind)
      lines.push_back(any({"[OTHER]", "CPUTYPE=3", "[INIT]", "IOS-QVT50=2", "", "; the end"}));
    std::string text = joined(lines, any({"0", "1", "2"}) == "0" ? Texts{"\n"} : Texts{"\r\n", "\r\n", "\n"});
    if (upTo(6) == 0) text = "\xEF\xBB\xBF" + text;
    if (upTo(4) == 0) text.erase(text.find_last_not_of("\r\n") + 1);
    return text;
  }

  std::string joined(const Texts& lines, const Texts& ends) {
    std::string text;
    for (const std::string& line : lines)
      text += line + any(ends);
    return text;
  }

  std::mt19937 random_;
  std::string ini_;                            // empty: no file
  std::map<std::string, std::string> values_;  // of the program's own keys
  bool readOnly_ = false;
  bool beep_ = true;
  std::size_t lessons_ = 0;
};

}  // namespace zelvs
