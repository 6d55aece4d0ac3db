// The system's own files, where the system is a POSIX one.

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <filesystem>
#include <map>

#include "files/fileSystem.h"

namespace zelvs {

namespace {

/// What a call came to that tells failure by -1.
std::error_code outcome(long result) {
  return result >= 0 ? std::error_code() : std::error_code(errno, std::generic_category());
}

void take(const struct stat& from, FileSystem::Status& status) {
  constexpr unsigned kPermissions = 07777;
  status.kind = S_ISREG(from.st_mode)   ? FileSystem::Kind::Plain
                : S_ISDIR(from.st_mode) ? FileSystem::Kind::Folder
                                        : FileSystem::Kind::Other;
  status.size = static_cast<std::uint64_t>(from.st_size);
  status.mode = from.st_mode & kPermissions;
  status.names = from.st_nlink;
}

using Attributes = std::map<std::string, std::string>;

std::error_code readAttributes(int file, Attributes& attributes) {
  const ssize_t size = flistxattr(file, nullptr, 0);
  // A file system without them has none to lose.
  if (size < 0) return errno == ENOTSUP ? std::error_code() : outcome(size);
  std::string names(static_cast<std::size_t>(size), '\0');
  const ssize_t read = flistxattr(file, names.data(), names.size());
  if (read < 0) return outcome(read);
  names.resize(static_cast<std::size_t>(read));
  for (std::size_t at = 0; at < names.size(); at = names.find('\0', at) + 1) {
    const char* name = names.c_str() + at;
    const ssize_t length = fgetxattr(file, name, nullptr, 0);
    if (length < 0) return outcome(length);
    std::string value(static_cast<std::size_t>(length), '\0');
    if (const std::error_code error = outcome(fgetxattr(file, name, value.data(), value.size()))) return error;
    attributes.emplace(name, value);
  }
  return {};
}

/// Only what differs is touched: the system may have given the new file what nobody may set.
std::error_code copyExtendedAttributes(int from, int to) {
  Attributes wanted;
  Attributes own;
  if (const std::error_code error = readAttributes(from, wanted)) return error;
  if (const std::error_code error = readAttributes(to, own)) return error;
  for (const auto& [name, value] : own) {
    if (wanted.contains(name)) continue;
    if (const std::error_code error = outcome(fremovexattr(to, name.c_str()))) return error;
  }
  for (const auto& [name, value] : wanted) {
    const auto found = own.find(name);
    if (found != own.end() && found->second == value) continue;
    if (const std::error_code error = outcome(fsetxattr(to, name.c_str(), value.data(), value.size(), 0))) return error;
  }
  return {};
}

class PosixFiles final : public FileSystem {
 public:
  std::error_code status(const std::string& path, Status& status) override {
    struct stat found = {};
    const std::error_code error = outcome(::stat(path.c_str(), &found));
    if (!error) take(found, status);
    return error;
  }

  std::error_code status(File file, Status& status) override {
    struct stat found = {};
    const std::error_code error = outcome(::fstat(file, &found));
    if (!error) take(found, status);
    return error;
  }

  std::error_code linkTarget(const std::string& path, std::string& target) override {
    std::array<char, PATH_MAX> text{};
    const ssize_t length = ::readlink(path.c_str(), text.data(), text.size());
    if (length >= 0) target.assign(text.data(), static_cast<std::size_t>(length));
    return outcome(length);
  }

  std::error_code names(const std::string& folder, std::vector<std::string>& names) override {
    std::error_code error;
    std::vector<std::string> found;
    using Walk = std::filesystem::directory_iterator;
    for (Walk at(folder, error); !error && at != Walk(); at.increment(error))
      found.push_back(at->path().filename().string());
    if (!error) names = found;
    return error;
  }

  // A pipe is opened without waiting for its other end, a terminal without becoming ours.
  static constexpr int kAlways = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;

  std::error_code openToRead(const std::string& path, File& file) override {
    return opened(::open(path.c_str(), O_RDONLY | kAlways), file);
  }
  std::error_code openToWrite(const std::string& path, File& file) override {
    return opened(::open(path.c_str(), O_WRONLY | O_NOFOLLOW | kAlways), file);
  }
  std::error_code openFolder(const std::string& path, File& file) override {
    return opened(::open(path.c_str(), O_RDONLY | O_DIRECTORY | kAlways), file);
  }
  std::error_code create(const std::string& path, unsigned mode, File& file) override {
    return opened(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | kAlways, mode), file);
  }
  std::error_code close(File file) override { return outcome(::close(file)); }

  std::error_code read(File file, std::uint64_t at, char* into, std::size_t size, std::size_t& got) override {
    const ssize_t read = ::pread(file, into, size, static_cast<off_t>(at));
    if (read >= 0) got = static_cast<std::size_t>(read);
    return outcome(read);
  }
  std::error_code write(File file, std::uint64_t at, std::string_view bytes, std::size_t& put) override {
    const ssize_t written = ::pwrite(file, bytes.data(), bytes.size(), static_cast<off_t>(at));
    if (written >= 0) put = static_cast<std::size_t>(written);
    return outcome(written);
  }
  std::error_code cut(File file, std::uint64_t size) override {
    return outcome(::ftruncate(file, static_cast<off_t>(size)));
  }
  std::error_code sync(File file) override {
    const std::error_code error = outcome(::fsync(file));
    // Some files cannot be synced, since nothing of them is kept back.
    return error == std::errc::invalid_argument || error == std::errc::not_supported ? std::error_code() : error;
  }

  std::error_code copyAttributes(File from, File to) override {
    struct stat old = {};
    struct stat fresh = {};
    if (const std::error_code error = outcome(::fstat(from, &old))) return error;
    if (const std::error_code error = outcome(::fstat(to, &fresh))) return error;
    if (old.st_uid != fresh.st_uid || old.st_gid != fresh.st_gid) {
      if (const std::error_code error = outcome(::fchown(to, old.st_uid, old.st_gid))) return error;
    }
    if (const std::error_code error = copyExtendedAttributes(from, to)) return error;
    // Last: a change of the owner takes bits of the mode away.
    return outcome(::fchmod(to, old.st_mode & 07777));
  }

  std::error_code lock(File folder) override { return outcome(::flock(folder, LOCK_EX | LOCK_NB)); }

  std::error_code rename(const std::string& from, const std::string& to) override {
    return outcome(::rename(from.c_str(), to.c_str()));
  }
  std::error_code remove(const std::string& path) override { return outcome(::unlink(path.c_str())); }

 private:
  static std::error_code opened(int result, File& file) {
    if (result >= 0) file = result;
    return outcome(result);
  }
};

}  // namespace

FileSystem& systemsFiles() {
  static PosixFiles files;
  return files;
}

}  // namespace zelvs
