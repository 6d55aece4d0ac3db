#include "files/readFile.h"

#include <algorithm>

#include "files/fileSystem.h"

namespace zelvs {

namespace {

// Bytes that are asked for at once: what the file is said to have still, or a little more than that. A small file shall
// cost little, and one that ends where it should is read in place.
constexpr std::size_t kMostAtOnce = 1 << 20;
constexpr std::size_t kLeastAtOnce = 1 << 12;

bool isMissing(const std::error_code& error) {
  for (const std::errc kind : {std::errc::no_such_file_or_directory, std::errc::not_a_directory,
                               std::errc::filename_too_long, std::errc::too_many_symbolic_link_levels}) {
    if (error == kind) return true;
  }
  return false;
}

std::string tooLarge(std::size_t most) {
  return "larger than " + std::to_string(most) + " bytes";
}

/// Reads to the end of the file, which may lie elsewhere than its size told, and not further than `most`.
std::error_code readToTheEnd(FileSystem::File file, std::size_t size, std::size_t most, std::string& bytes) {
  bytes.reserve(size + kLeastAtOnce);
  for (;;) {
    const std::size_t at = bytes.size();
    const std::size_t awaited = std::clamp(size - std::min(at, size), kLeastAtOnce, kMostAtOnce);
    const std::size_t room = std::min(awaited, most + 1 - at);
    bytes.resize(at + room);
    std::size_t got = 0;
    const std::error_code error =
        uninterrupted([&] { return fileSystem().read(file, at, bytes.data() + at, room, got); });
    bytes.resize(at + got);
    if (error || got == 0 || bytes.size() > most) return error;
  }
}

}  // namespace

std::optional<std::string> readFile(const std::string& path, std::string* refusal, std::size_t most) {
  std::string unheard;
  std::string& why = refusal != nullptr ? *refusal : unheard;
  why.clear();
  FileSystem::Status status;
  // Looked at before it is opened: to open a pipe or a device is to do something to it.
  std::error_code error = fileSystem().status(path, status);
  if (isMissing(error) || (!error && status.kind != FileSystem::Kind::Plain)) return std::nullopt;
  OpenFile file;
  if (!error) error = uninterrupted([&] { return fileSystem().openToRead(path, file.slot()); });
  if (!error) error = fileSystem().status(file.get(), status);
  std::string bytes;
  if (!error && status.size <= most) {
    error = readToTheEnd(file.get(), static_cast<std::size_t>(status.size), most, bytes);
  }
  if (error) {
    why = error.message();
  } else if (status.size > most || bytes.size() > most) {
    why = tooLarge(most);
  } else if (bytes.size() < status.size) {
    why = "it ended before its size";
  } else {
    return bytes;
  }
  return std::nullopt;
}

}  // namespace zelvs
