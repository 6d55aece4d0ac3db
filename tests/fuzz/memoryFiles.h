#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "files/fileSystem.h"

namespace zelvs {

/// Files that are bytes in memory, and the file system in use while this lives. Nothing goes wrong here and nothing is
/// slow: a program that reads a file a million times a minute can. Every folder is there; a path is a name as it
/// stands, so that "a/../b" is another file than "b".
class MemoryFiles final : public FileSystem {
 public:
  MemoryFiles() { setFileSystem(this); }
  ~MemoryFiles() override { setFileSystem(nullptr); }
  MemoryFiles(const MemoryFiles&) = delete;
  MemoryFiles& operator=(const MemoryFiles&) = delete;

  void put(const std::string& path, std::string bytes) {
    files_[path] = std::make_shared<std::string>(std::move(bytes));
  }
  void clear() { files_.clear(); }
  bool has(const std::string& path) const { return files_.contains(path); }
  /// Of a file that is there.
  const std::string& bytesOf(const std::string& path) const { return *files_.at(path); }
  std::size_t count() const { return files_.size(); }

  std::error_code status(const std::string& path, Status& status) override {
    const auto found = files_.find(path);
    if (found == files_.end()) return missing();
    status = statusOf(*found->second);
    return {};
  }
  std::error_code status(File file, Status& status) override {
    status = statusOf(bytes(file));
    return {};
  }
  std::error_code linkTarget(const std::string& path, std::string& /*target*/) override {
    return has(path) ? std::make_error_code(std::errc::invalid_argument) : missing();
  }
  std::error_code names(const std::string& folder, std::vector<std::string>& names) override {
    names.clear();
    for (const auto& [path, file] : files_) {
      if (path.starts_with(folder)) names.push_back(path.substr(folder.size()));
    }
    return {};
  }
  std::error_code openToRead(const std::string& path, File& file) override { return opened(path, file); }
  std::error_code openToWrite(const std::string& path, File& file) override { return opened(path, file); }
  std::error_code openFolder(const std::string& /*path*/, File& file) override {
    file = slotFor(nullptr);
    return {};
  }
  std::error_code create(const std::string& path, unsigned /*mode*/, File& file) override {
    if (has(path)) return std::make_error_code(std::errc::file_exists);
    put(path, {});
    return opened(path, file);
  }
  std::error_code close(File file) override {
    open_[static_cast<std::size_t>(file)] = {};
    while (!open_.empty() && !open_.back().taken)
      open_.pop_back();
    return {};
  }

  std::error_code read(File file, std::uint64_t at, char* into, std::size_t size, std::size_t& got) override {
    const std::string& from = bytes(file);
    got = at < from.size() ? from.copy(into, size, static_cast<std::size_t>(at)) : 0;
    return {};
  }
  std::error_code write(File file, std::uint64_t at, std::string_view piece, std::size_t& put) override {
    std::string& to = bytes(file);
    if (to.size() < at + piece.size()) to.resize(static_cast<std::size_t>(at) + piece.size());
    to.replace(static_cast<std::size_t>(at), piece.size(), piece);
    put = piece.size();
    return {};
  }
  std::error_code cut(File file, std::uint64_t size) override {
    bytes(file).resize(static_cast<std::size_t>(size));
    return {};
  }
  std::error_code sync(File /*file*/) override { return {}; }
  std::error_code copyAttributes(File /*from*/, File /*to*/) override { return {}; }
  std::error_code lock(File /*folder*/) override { return {}; }
  std::error_code rename(const std::string& from, const std::string& to) override {
    const auto found = files_.find(from);
    if (found == files_.end()) return missing();
    files_[to] = found->second;
    files_.erase(found);
    return {};
  }
  std::error_code remove(const std::string& path) override {
    return files_.erase(path) > 0 ? std::error_code() : missing();
  }

 private:
  struct Slot {
    bool taken = false;
    std::shared_ptr<std::string> bytes;  // null for a folder
  };

  static std::error_code missing() { return std::make_error_code(std::errc::no_such_file_or_directory); }
  static Status statusOf(const std::string& bytes) { return {Kind::Plain, bytes.size(), 0644, 1}; }
  std::string& bytes(File file) { return *open_[static_cast<std::size_t>(file)].bytes; }
  File slotFor(std::shared_ptr<std::string> bytes) {
    open_.push_back({true, std::move(bytes)});
    return static_cast<File>(open_.size()) - 1;
  }
  std::error_code opened(const std::string& path, File& file) {
    const auto found = files_.find(path);
    if (found == files_.end()) return missing();
    file = slotFor(found->second);
    return {};
  }

  std::map<std::string, std::shared_ptr<std::string>> files_;
  std::vector<Slot> open_;
};

}  // namespace zelvs
