#pragma once

#include <functional>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "files/fileSystem.h"

namespace zelvs {

/// The system's own files, of which one call goes wrong. Calls count from 1 in the order in which they are made, over
/// all kinds but close(), which nobody could do anything about.
class FaultyFiles final : public FileSystem {
 public:
  enum class Fault {
    Error,         ///< the call fails with `error` and does nothing
    Interrupted,   ///< it is interrupted once; the same call made again works
    HalfWay,       ///< a read or write gives half the bytes (one at least); other calls work
    Stuck,         ///< a write takes no byte and tells no error; other calls work
    KilledBefore,  ///< `kill` is called in its place
    KilledBehind   ///< the call is made, and then `kill` is called
  };

  FaultyFiles() { setFileSystem(this); }
  ~FaultyFiles() override { setFileSystem(nullptr); }
  FaultyFiles(const FaultyFiles&) = delete;
  FaultyFiles& operator=(const FaultyFiles&) = delete;

  int at = 0;  ///< the number of the call that goes wrong; 0 for none
  Fault fault = Fault::Error;
  std::errc error = std::errc::io_error;
  std::function<void()> kill;
  /// Only calls of this name count, when it is not empty.
  std::string only;

  /// What status() tells as the size of every file.
  std::optional<std::uint64_t> toldSize;

  /// The names of the calls that were made and counted.
  std::vector<std::string> calls;

  std::error_code status(const std::string& path, Status& status) override {
    return call("status", [&] { return told(own_.status(path, status), status); });
  }
  std::error_code status(File file, Status& status) override {
    return call("statusOfFile", [&] { return told(own_.status(file, status), status); });
  }
  std::error_code linkTarget(const std::string& path, std::string& target) override {
    return call("linkTarget", [&] { return own_.linkTarget(path, target); });
  }
  std::error_code names(const std::string& folder, std::vector<std::string>& names) override {
    return call("names", [&] { return own_.names(folder, names); });
  }
  std::error_code openToRead(const std::string& path, File& file) override {
    return call("openToRead", [&] { return own_.openToRead(path, file); });
  }
  std::error_code openToWrite(const std::string& path, File& file) override {
    return call("openToWrite", [&] { return own_.openToWrite(path, file); });
  }
  std::error_code openFolder(const std::string& path, File& file) override {
    return call("openFolder", [&] { return own_.openFolder(path, file); });
  }
  std::error_code create(const std::string& path, unsigned mode, File& file) override {
    return call("create", [&] { return own_.create(path, mode, file); });
  }
  std::error_code close(File file) override {
    return only == "close" ? call("close", [&] { return own_.close(file); }) : own_.close(file);
  }
  std::error_code read(File file, std::uint64_t from, char* into, std::size_t size, std::size_t& got) override {
    return call("read", [&] { return own_.read(file, from, into, halved(size), got); });
  }
  std::error_code write(File file, std::uint64_t to, std::string_view bytes, std::size_t& put) override {
    return call("write", [&] {
      if (wrong(Fault::Stuck)) {
        put = 0;
        return std::error_code();
      }
      return own_.write(file, to, bytes.substr(0, halved(bytes.size())), put);
    });
  }
  std::error_code cut(File file, std::uint64_t size) override {
    return call("cut", [&] { return own_.cut(file, size); });
  }
  std::error_code sync(File file) override {
    return call("sync", [&] { return own_.sync(file); });
  }
  std::error_code copyAttributes(File from, File to) override {
    return call("copyAttributes", [&] { return own_.copyAttributes(from, to); });
  }
  std::error_code lock(File folder) override {
    return call("lock", [&] { return own_.lock(folder); });
  }
  std::error_code rename(const std::string& from, const std::string& to) override {
    return call("rename", [&] { return own_.rename(from, to); });
  }
  std::error_code remove(const std::string& path) override {
    return call("remove", [&] { return own_.remove(path); });
  }

 private:
  std::error_code told(std::error_code result, Status& status) const {
    status.size = toldSize.value_or(status.size);
    return result;
  }
  bool wrong(Fault kind) const { return static_cast<int>(calls.size()) == at && fault == kind; }
  std::size_t halved(std::size_t size) const { return wrong(Fault::HalfWay) ? (size + 1) / 2 : size; }

  template <class Call>
  std::error_code call(const char* name, Call make) {
    if (!only.empty() && only != name) return make();
    calls.push_back(name);
    if (wrong(Fault::Error)) return std::make_error_code(error);
    if (wrong(Fault::Interrupted)) return std::make_error_code(std::errc::interrupted);
    if (wrong(Fault::KilledBefore)) kill();
    const std::error_code result = make();
    if (wrong(Fault::KilledBehind)) kill();
    return result;
  }

  FileSystem& own_ = systemsFiles();
};

}  // namespace zelvs
