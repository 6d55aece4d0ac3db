#include "files/writeFile.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <random>
#include <thread>
#include <vector>

#include "files/fileSystem.h"

namespace zelvs {

namespace {

constexpr std::string_view kFreshSuffix = ".new";
constexpr std::size_t kFreshDigits = 16;

/// The mode of a file that takes nobody's place: the user's mask takes bits away.
constexpr unsigned kOfMask = 0666;

struct Place {
  std::string folder;  // with its last separator, or empty for the current one
  std::string name;

  std::string path() const { return folder + name; }
};

Place placeOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  if (slash == std::string::npos) return {"", path};
  return {path.substr(0, slash + 1), path.substr(slash + 1)};
}

/// Where a path leads in the end, whether something lies there or not.
std::error_code followLinks(const std::string& path, Place& place) {
  constexpr int kMostLinks = 40;
  place = placeOf(path);
  for (int links = 0; links < kMostLinks; ++links) {
    std::string target;
    const std::error_code error = fileSystem().linkTarget(place.path(), target);
    if (error == std::errc::invalid_argument || error == std::errc::no_such_file_or_directory) return {};
    if (error) return error;
    place = placeOf(target.starts_with('/') ? target : place.folder + target);
  }
  return std::make_error_code(std::errc::too_many_symbolic_link_levels);
}

/// Waits for its turn. A file system without locks goes without.
std::error_code lockFolder(FileSystem::File folder) {
  constexpr std::chrono::milliseconds kPause(10);
  constexpr int kMostPauses = 100;
  for (int pauses = 0;; ++pauses) {
    const std::error_code error = uninterrupted([&] { return fileSystem().lock(folder); });
    if (error != std::errc::operation_would_block) return {};
    if (pauses == kMostPauses) return error;
    std::this_thread::sleep_for(kPause);
  }
}

std::string freshName(const Place& place) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::random_device random;
  std::string name = "." + place.name + ".";
  for (std::size_t i = 0; i < kFreshDigits; ++i)
    name += kDigits[random() % kDigits.size()];
  return name + std::string(kFreshSuffix);
}

bool isFreshNameOf(const Place& place, std::string_view name) {
  const std::string head = "." + place.name + ".";
  if (name.size() != head.size() + kFreshDigits + kFreshSuffix.size()) return false;
  const std::string_view digits = name.substr(head.size(), kFreshDigits);
  return name.starts_with(head) && name.ends_with(kFreshSuffix) &&
         digits.find_first_not_of("0123456789abcdef") == std::string_view::npos;
}

/// What killed changes have left. Nobody else works on such a file while we have the lock; that one cannot be removed
/// matters to nobody.
void removeLeftovers(const Place& place) {
  std::vector<std::string> names;
  static_cast<void>(fileSystem().names(place.folder.empty() ? "." : place.folder, names));
  for (const std::string& name : names) {
    if (isFreshNameOf(place, name)) static_cast<void>(fileSystem().remove(place.folder + name));
  }
}

std::error_code writeAt(FileSystem::File file, std::uint64_t at, std::string_view bytes) {
  while (!bytes.empty()) {
    std::size_t put = 0;
    const std::error_code error = uninterrupted([&] { return fileSystem().write(file, at, bytes, put); });
    if (error) return error;
    // A disk that takes nothing and tells nothing would be asked for ever.
    if (put == 0) return std::make_error_code(std::errc::no_space_on_device);
    at += put;
    bytes.remove_prefix(put);
  }
  return {};
}

std::error_code syncFile(FileSystem::File file) {
  return uninterrupted([&] { return fileSystem().sync(file); });
}

/// Turns `from`, which the file holds, into `to`, which is another: only what differs, and what is too long is cut off
/// last.
std::error_code writeDifference(FileSystem::File file, std::string_view from, std::string_view to) {
  const auto first =
      static_cast<std::size_t>(std::mismatch(from.begin(), from.end(), to.begin(), to.end()).second - to.begin());
  std::size_t end = to.size();
  if (from.size() == to.size()) {
    while (from[end - 1] == to[end - 1])  // they differ somewhere
      --end;
  }
  if (const std::error_code error = writeAt(file, first, to.substr(first, end - first))) return error;
  if (to.size() < from.size()) {
    if (const std::error_code error = uninterrupted([&] { return fileSystem().cut(file, to.size()); })) return error;
  }
  return syncFile(file);
}

/// Puts the old bytes back, of which the file may hold any part.
void restore(FileSystem::File file, std::string_view old) {
  static_cast<void>(writeAt(file, 0, old));
  static_cast<void>(uninterrupted([&] { return fileSystem().cut(file, old.size()); }));
  static_cast<void>(syncFile(file));
}

std::error_code writeOver(FileSystem::File file, std::string_view old, std::string_view bytes) {
  const std::error_code error = writeDifference(file, old, bytes);
  if (error) restore(file, old);
  return error;
}

/// How the try to put a new file into the place of the old one went.
struct Replacement {
  std::error_code error;
  bool cannotStand = false;  // not for the bytes: no new file can take this place
};

/// The new file, whole and synced under its own name. old: what gives the attributes, if there is one.
Replacement fillFresh(const std::string& name, unsigned mode, const OpenFile& old, std::string_view bytes) {
  OpenFile fresh;
  std::error_code error = uninterrupted([&] { return fileSystem().create(name, mode, fresh.slot()); });
  if (error) return {error, true};
  if (old.open()) error = uninterrupted([&] { return fileSystem().copyAttributes(old.get(), fresh.get()); });
  if (error) return {error, true};
  error = writeAt(fresh.get(), 0, bytes);
  if (!error) error = syncFile(fresh.get());
  // Some systems tell only here that a disk was full.
  const std::error_code closed = fresh.close();
  return {error ? error : closed};
}

Replacement replace(const Place& place, const OpenFile& old, std::string_view bytes) {
  // One that takes another's place may be read as that one says: until it has its attributes nobody else reads it.
  constexpr unsigned kOwnOnly = 0600;
  const std::string name = place.folder + freshName(place);
  Replacement tried = fillFresh(name, old.open() ? kOwnOnly : kOfMask, old, bytes);
  if (!tried.error) {
    tried.error = uninterrupted([&] { return fileSystem().rename(name, place.path()); });
    tried.cannotStand = static_cast<bool>(tried.error);
  }
  if (tried.error) static_cast<void>(fileSystem().remove(name));
  return tried;
}

std::string told(const std::error_code& error) {
  return error ? error.message() : std::string();
}

/// Opens the old file for writing, which tells whether it may be written. Nothing is opened where there is none.
std::string openOld(const std::string& path, OpenFile& old, FileSystem::Status& status) {
  constexpr unsigned kWriters = 0222;
  std::error_code error = fileSystem().status(path, status);
  if (error == std::errc::no_such_file_or_directory) return {};
  if (error) return told(error);
  if (status.kind != FileSystem::Kind::Plain) return "it is no plain file";
  if ((status.mode & kWriters) == 0) return "it is read-only";
  error = uninterrupted([&] { return fileSystem().openToWrite(path, old.slot()); });
  return told(error);
}

std::error_code put(const Place& place, const OpenFile& folder, const std::optional<std::string>& oldBytes,
                    const OpenFile& old, bool hardLinks, std::string_view bytes) {
  if (!hardLinks) {
    const Replacement tried = replace(place, old, bytes);
    if (!tried.error) return folder.open() ? syncFile(folder.get()) : std::error_code();
    if (!tried.cannotStand || !oldBytes) return tried.error;
  }
  return writeOver(old.get(), *oldBytes, bytes);
}

}  // namespace

std::string changeFile(const std::string& path, const Change& change, std::size_t most) {
  Place place;
  std::error_code error = followLinks(path, place);
  if (error) return told(error);
  OpenFile folder;
  error =
      uninterrupted([&] { return fileSystem().openFolder(place.folder.empty() ? "." : place.folder, folder.slot()); });
  // A folder whose names are kept from us may let us write all the same.
  if (error && error != std::errc::permission_denied) return told(error);
  if (folder.open()) {
    if (lockFolder(folder.get())) return "another copy of the program is writing in its folder";
    removeLeftovers(place);
  }

  OpenFile old;
  FileSystem::Status status;
  std::string refusal = openOld(place.path(), old, status);
  if (!refusal.empty()) return refusal;
  std::optional<std::string> oldBytes;
  if (old.open()) {
    oldBytes = readFile(place.path(), &refusal, most);
    if (!oldBytes) return refusal.empty() ? "it has just been removed" : refusal;
  }
  const std::string bytes = change(oldBytes);
  if (bytes == oldBytes) return {};
  return told(put(place, folder, oldBytes, old, status.names > 1, bytes));
}

std::error_code writeNewFile(const std::string& path, std::string_view bytes) {
  const Replacement made = fillFresh(path, kOfMask, OpenFile(), bytes);
  // What could not be made is another's.
  if (made.error && !made.cannotStand) static_cast<void>(fileSystem().remove(path));
  return made.error;
}

std::string writeFile(const std::string& path, std::string_view bytes) {
  constexpr std::size_t kLargestOld = std::size_t{256} << 20;
  const Change change = [bytes](const std::optional<std::string>& /*old*/) { return std::string(bytes); };
  return changeFile(path, change, kLargestOld);
}

}  // namespace zelvs
