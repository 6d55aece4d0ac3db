#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zelvs {

/// Section of ZELVS.INI that holds the settings.
inline constexpr std::string_view kIniSection = "INIT";

/// The largest file of settings that is read, in bytes: other programs may keep a lot in it.
inline constexpr std::size_t kLargestIniFile = 128 << 20;

/// A file in the line format of a platform profile: "[section]" lines and "key=value" lines, sections and keys told
/// apart without regard to case. Of doubled sections and keys the first counts. It may be in UTF-16 with a byte order
/// mark. No file is an empty one; one that is there and cannot be read is a run-time error that names it, since zeros
/// in its place would be saved over what it holds.
class Profile {
 public:
  explicit Profile(const std::string& path);
  /// The same without an end of the program: nothing, and why, where the file cannot be read, with nothing to tell
  /// where there is none.
  static std::optional<Profile> read(const std::string& path, std::string& refusal);

  /// The values of keys, in their order, each without the blanks and one pair of quotation marks around it and at
  /// most 255 bytes long; nothing for a key that is not there.
  std::vector<std::optional<std::string>> values(std::string_view section,
                                                 const std::vector<std::string_view>& keys) const;

 private:
  Profile() = default;

  std::string text_;  // in UTF-8, or as it stands
};

/// The leading number of a key's value in iniFilePath, as text ("12 apples" gives "12", "x" gives "0"), or the empty
/// text when the value is missing or empty.
std::string getIniValue(std::string_view section, std::string_view key, std::string_view fallback);
/// The same for several keys of one reading, since the file may be large; the empty text is the fallback.
std::vector<std::string> getIniValues(std::string_view section, const std::vector<std::string_view>& keys);

struct IniValue {
  std::string_view key;
  std::string value;
};
/// Writes keys into iniFilePath, in their order where they are new, and keeps every other line, the line ends and the
/// encoding. What cannot be written whole (changeFile) leaves everything as it was, without a word.
void writeIniValues(std::string_view section, const std::vector<IniValue>& values);
void writeIniValue(std::string_view section, std::string_view key, std::string_view value);

/// The number that a text begins with: blanks, a sign, digits, a fraction. 0 when there is none, and when a double
/// cannot hold it.
double leadingNumber(std::string_view text);
/// Rounded to a whole number, halves to even, of which the low 16 bits count: 65535 is -1.
std::int16_t wholeNumber16(double number);

/// One key of the section of settings. makerValue is what the maker recommends.
struct Setting {
  std::string_view key;
  std::int16_t* variable;
  std::int16_t makerValue;
  int values;  ///< how many make sense, from 0; nobody asks when the file is read
};
/// All settings, in the order of reading. transferSetting has copies of its first entry behind it.
std::span<const Setting> settings();
/// Carries transferSetting[0] over to its copies.
void copyTransferSetting();

/// Where the settings of programFolder are kept.
std::string iniPath();
/// Builds iniFilePath and fills all settings from the file. What is missing reads as 0.
void readIniFile();
/// Puts the maker's values straight into the settings.
void Mdef_Set();

}  // namespace zelvs
