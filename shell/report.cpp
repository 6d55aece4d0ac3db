#include "shell/report.h"

#include <ctime>
#include <filesystem>

#include "files/writeFile.h"
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

}  // namespace

std::string keepReport(const std::string& text) {
  constexpr int kTries = 100;  // other programs may have taken a name
  const std::string report = reportOf(text);
  std::error_code error;
  const std::string start =
      (std::filesystem::temp_directory_path(error) / ("zelvs-report-" + timeText("%Y%m%d-%H%M%S"))).string();
  for (int number = 1; !error && number <= kTries; ++number) {
    const std::string path = start + (number > 1 ? "-" + std::to_string(number) : "") + ".txt";
    error = writeNewFile(path, report);
    if (!error) return "A report of it lies in " + path;
    if (error == std::errc::file_exists) error.clear();
  }
  return "A report of it could not be written; these words stand on standard error.";
}

}  // namespace zelvs
