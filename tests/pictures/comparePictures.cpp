// Tells which pictures of a folder are not as they are stored in another. usage: compare-pictures STORED MADE [--take]
//
// With --take the stored ones become as the made ones are. Those that do not differ stay, byte for byte.

#include <QFile>
#include <cstdio>
#include <string_view>

#include "qt/support/pictureDifference.h"

namespace {

/// Whether the stored picture is now as the made one, or gone with it.
bool take(const QDir& stored, const QDir& made, const QString& file) {
  if (stored.exists(file) && !QFile::remove(stored.filePath(file))) return false;
  return !made.exists(file) || QFile::copy(made.filePath(file), stored.filePath(file));
}

}  // namespace

int main(int argc, char** argv) {
  const bool taking = argc == 4 && std::string_view(argv[3]) == "--take";
  if (argc != 3 && !taking) {
    std::fputs("usage: compare-pictures STORED MADE [--take]\n", stderr);
    return 2;
  }
  const QDir stored(QString::fromLocal8Bit(argv[1]));
  const QDir made(QString::fromLocal8Bit(argv[2]));
  const auto findings = zelvs::pictureFindings(stored, made);
  for (const auto& [file, what] : findings)
    std::printf("%s: %s\n", file.c_str(), what.c_str());
  if (findings.empty()) return 0;
  if (!taking) {
    std::printf("Compare %s with %s.\n", argv[2], argv[1]);
    return 1;
  }
  bool taken = true;
  for (const auto& finding : findings)
    taken = take(stored, made, QString::fromStdString(finding.file)) && taken;
  std::puts(taken ? "They are stored as they are now: look at each." : "Not all of them can be stored.");
  return taken ? 0 : 1;
}
