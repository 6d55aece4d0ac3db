#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace zelvs {

/// The few calls of the system by which files are read and written, one virtual function a call, so that a test can let
/// each of them fail in turn or play a disk that loses its power. No call waits for a pipe or a device, none follows a
/// link but where it says so. Each tells its error by its result; what it hands out is then as it was.
class FileSystem {
 public:
  using File = int;

  enum class Kind { Plain, Folder, Other };
  struct Status {
    Kind kind = Kind::Other;
    std::uint64_t size = 0;   ///< in bytes
    unsigned mode = 0;        ///< the permission bits, 0 to 07777
    std::uint64_t names = 1;  ///< of a plain file: more than one where there are hard links
  };

  virtual ~FileSystem() = default;

  /// Of what lies at the path, links followed.
  virtual std::error_code status(const std::string& path, Status& status) = 0;
  virtual std::error_code status(File file, Status& status) = 0;
  /// Where a link leads, as it was written. std::errc::invalid_argument: no link lies there.
  virtual std::error_code linkTarget(const std::string& path, std::string& target) = 0;
  /// The names in a folder, without "." and "..".
  virtual std::error_code names(const std::string& folder, std::vector<std::string>& names) = 0;

  /// Follows links.
  virtual std::error_code openToRead(const std::string& path, File& file) = 0;
  virtual std::error_code openToWrite(const std::string& path, File& file) = 0;
  /// A folder, to be locked and synced.
  virtual std::error_code openFolder(const std::string& path, File& file) = 0;
  /// A new file for writing. std::errc::file_exists: whatever it is, it is not touched.
  virtual std::error_code create(const std::string& path, unsigned mode, File& file) = 0;
  virtual std::error_code close(File file) = 0;

  /// got: 0 at the end of the file; fewer bytes than asked for may be all that come at once.
  virtual std::error_code read(File file, std::uint64_t at, char* into, std::size_t size, std::size_t& got) = 0;
  /// put: fewer bytes may be all that go at once.
  virtual std::error_code write(File file, std::uint64_t at, std::string_view bytes, std::size_t& put) = 0;
  virtual std::error_code cut(File file, std::uint64_t size) = 0;
  /// Returns when what was written, or a folder's names, would outlast a power cut.
  virtual std::error_code sync(File file) = 0;

  /// Gives one file the owner, the group, the extended attributes and the mode of another.
  virtual std::error_code copyAttributes(File from, File to) = 0;
  /// A folder's lock, which is gone with its File. std::errc::operation_would_block: somebody else has it.
  virtual std::error_code lock(File folder) = 0;

  /// Takes the place of whatever file is called so, at one stroke.
  virtual std::error_code rename(const std::string& from, const std::string& to) = 0;
  virtual std::error_code remove(const std::string& path) = 0;
};

/// The one in use: the system's own, until a test sets another.
FileSystem& fileSystem();
/// It must outlive its use; null for the system's own.
void setFileSystem(FileSystem* fileSystem);

/// The system's own, in files/posix.
FileSystem& systemsFiles();

/// An open file, closed at the end.
class OpenFile {
 public:
  OpenFile() = default;
  ~OpenFile() { static_cast<void>(close()); }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  /// Where an opening call of FileSystem puts what it has opened.
  FileSystem::File& slot() { return file_; }
  FileSystem::File get() const { return file_; }
  bool open() const { return file_ >= 0; }
  std::error_code close();

 private:
  FileSystem::File file_ = -1;
};

/// Makes a call again for as long as it is interrupted.
template <class Call>
std::error_code uninterrupted(Call call) {
  std::error_code error;
  do {
    error = call();
  } while (error == std::errc::interrupted);
  return error;
}

}  // namespace zelvs
