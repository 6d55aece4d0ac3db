#include "shell/report.h"

#include <cerrno>
#include <cstdio>
#include <ctime>
#include <filesystem>

#include "shell/frmVersion.h"
#include "shell/iniFile.h"
#include "state/state.h"
#include "ui/runTimeError.h"

namespace zelvs {

namespace {

std::string timeText(const char* format) {
  const std::time_t now = std::time(nullptr);
  char text[32];
  return std::string(text, std::strftime(text, sizeof text, format, std::localtime(&now)));
}

std::string reportOf(const std::string& text) {
  std::string report = "ZELVS " + std::string(programVersion()) + ", " + timeText("%Y-%m-%d %H:%M:%S") + "\n\n" + text;
  for (const std::string& words : deedWords())
    report += "\n" + words;
  report += "\n\nThe program lies in " + programFolder + " and had these settings:\n";
  for (const Setting& setting : settings())
    report += std::string(setting.key) + "=" + std::to_string(*setting.variable) + "\n";
  return report;
}

/// Writes a file that was not there. False when it was, with errno EEXIST, or when it cannot be written.
bool writeNewFile(const std::string& path, const std::string& text) {
  std::FILE* file = std::fopen(path.c_str(), "wbx");  // follows no link either
  if (file == nullptr) return false;
  const bool written = std::fwrite(text.data(), 1, text.size(), file) == text.size();
  if (std::fclose(file) == 0 && written) return true;
  std::remove(path.c_str());
  errno = EIO;
  return false;
}

}  // namespace

std::string keepReport(const std::string& text) {
  constexpr int kTries = 100;  // other programs may have taken a name
  const std::string report = reportOf(text);
  std::error_code error;
  const std::string start =
      (std::filesystem::temp_directory_path(error) / ("zelvs-report-" + timeText("%Y%m%d-%H%M%S"))).string();
  for (int number = 1; !error && number <= kTries; ++number) {
    const std::string path = start + (number > 1 ? "-" + std::to_string(number) : "") + ".txt";
    if (writeNewFile(path, report)) return "A report of it lies in " + path;
    if (errno != EEXIST) break;
  }
  return "A report of it could not be written; these words stand on standard error.";
}

}  // namespace zelvs
