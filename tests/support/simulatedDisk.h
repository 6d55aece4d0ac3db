#pragma once

#include <algorithm>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "files/fileSystem.h"

namespace zelvs {

/// A disk in memory with one folder, "/", that keeps back what it is told until it is synced, as a real one may, and
/// can lose its power at any moment. Of what was kept back any part has reached it then, in any order: of a file's
/// bytes some sectors and not others, its new length or the old one; of the folder's changes some and not others. It is
/// harsher than most: a name may be there before the file that it names has a byte.
class SimulatedDisk final : public FileSystem {
 public:
  struct PowerCut {};  ///< thrown by the call at which the power goes

  SimulatedDisk() { setFileSystem(this); }
  ~SimulatedDisk() override { setFileSystem(nullptr); }
  SimulatedDisk(const SimulatedDisk&) = delete;
  SimulatedDisk& operator=(const SimulatedDisk&) = delete;

  /// The power goes at the call of this number, counted from 1 from now on; 0 for never.
  void cutAtCall(int call) {
    cutAt_ = call;
    calls_ = 0;
  }
  int calls() const { return calls_; }

  /// A file as it stands there since long ago.
  void put(const std::string& path, const std::string& bytes) {
    const auto node = std::make_shared<Node>();
    node->now = node->kept = bytes;
    now_[path] = kept_[path] = node;
  }
  /// What a program that looks now would read; nothing for no file.
  std::optional<std::string> bytesOf(const std::string& path) const {
    const auto found = now_.find(path);
    return found == now_.end() ? std::nullopt : std::optional(found->second->now);
  }
  std::size_t files() const { return now_.size(); }

  /// The power comes back: what any part of what was kept back makes of it.
  void powerUp(std::mt19937& random) {
    for (const Deed& deed : deeds_) {
      if (random() % 2 == 0) carryOut(deed, kept_);
    }
    deeds_.clear();
    for (const auto& [path, node] : kept_) {
      for (const Piece& piece : node->pieces) {
        if (random() % 2 == 0) apply(piece, node->kept);
      }
      node->pieces.clear();
      node->now = node->kept;
    }
    now_ = kept_;
    open_.clear();
    cutAt_ = 0;
  }

  std::error_code status(const std::string& path, Status& status) override {
    step();
    if (path == "/") {
      status.kind = Kind::Folder;
      return {};
    }
    const auto found = now_.find(path);
    if (found == now_.end()) return std::make_error_code(std::errc::no_such_file_or_directory);
    status = {Kind::Plain, found->second->now.size(), 0644, 1};
    return {};
  }
  std::error_code status(File file, Status& status) override {
    step();
    status = {Kind::Plain, nodeOf(file).now.size(), 0644, 1};
    return {};
  }
  std::error_code linkTarget(const std::string& path, std::string& /*target*/) override {
    step();
    return std::make_error_code(now_.contains(path) ? std::errc::invalid_argument
                                                    : std::errc::no_such_file_or_directory);
  }
  std::error_code names(const std::string& /*folder*/, std::vector<std::string>& names) override {
    step();
    names.clear();
    for (const auto& [path, node] : now_)
      names.push_back(path.substr(1));
    return {};
  }
  std::error_code openToRead(const std::string& path, File& file) override { return opened(path, file); }
  std::error_code openToWrite(const std::string& path, File& file) override { return opened(path, file); }
  std::error_code openFolder(const std::string& /*path*/, File& file) override {
    step();
    file = kFolder;
    return {};
  }
  std::error_code create(const std::string& path, unsigned /*mode*/, File& file) override {
    step();
    if (takesNoNewFile) return std::make_error_code(std::errc::permission_denied);
    change({path, "", std::make_shared<Node>()});
    return openedNow(path, file);
  }
  std::error_code close(File /*file*/) override { return {}; }

  std::error_code read(File file, std::uint64_t at, char* into, std::size_t size, std::size_t& got) override {
    step();
    const std::string& bytes = nodeOf(file).now;
    got = at < bytes.size() ? bytes.copy(into, size, static_cast<std::size_t>(at)) : 0;
    return {};
  }
  std::error_code write(File file, std::uint64_t at, std::string_view bytes, std::size_t& put) override {
    step();
    constexpr std::size_t kSector = 16;  // small, so that the files of a test have many
    for (std::size_t from = 0; from < bytes.size(); from += kSector)
      keepBack(file, {at + from, std::string(bytes.substr(from, kSector)), false});
    put = bytes.size();
    return {};
  }
  std::error_code cut(File file, std::uint64_t size) override {
    step();
    keepBack(file, {size, "", true});
    return {};
  }
  std::error_code sync(File file) override {
    step();
    if (file == kFolder) {
      kept_ = now_;
      deeds_.clear();
    } else {
      Node& node = nodeOf(file);
      node.kept = node.now;
      node.pieces.clear();
    }
    return {};
  }
  std::error_code copyAttributes(File /*from*/, File /*to*/) override {
    step();
    return {};
  }
  std::error_code lock(File /*folder*/) override {
    step();
    return {};
  }
  std::error_code rename(const std::string& from, const std::string& to) override {
    step();
    change({to, from, now_.at(from)});
    return {};
  }
  std::error_code remove(const std::string& path) override {
    step();
    change({"", path, nullptr});
    return {};
  }

  bool takesNoNewFile = false;

 private:
  static constexpr File kFolder = 0;

  /// Bytes that were written, or a new length.
  struct Piece {
    std::uint64_t at;
    std::string bytes;
    bool cut;
  };
  struct Node {
    std::string now;            // what a program reads
    std::string kept;           // what outlasts a power cut
    std::vector<Piece> pieces;  // the way from the one to the other
  };
  using Folder = std::map<std::string, std::shared_ptr<Node>>;
  /// A change of the folder: a name comes, a name goes, or both at one stroke.
  struct Deed {
    std::string comes;
    std::string goes;
    std::shared_ptr<Node> node;
  };

  void step() {
    if (++calls_ == cutAt_) throw PowerCut();
  }
  static void apply(const Piece& piece, std::string& bytes) {
    const auto at = static_cast<std::size_t>(piece.at);
    if (piece.cut) {
      bytes.resize(at);
      return;
    }
    bytes.resize(std::max(bytes.size(), at + piece.bytes.size()));
    bytes.replace(at, piece.bytes.size(), piece.bytes);
  }
  static void carryOut(const Deed& deed, Folder& folder) {
    if (!deed.goes.empty()) folder.erase(deed.goes);
    if (!deed.comes.empty()) folder[deed.comes] = deed.node;
  }
  void change(const Deed& deed) {
    carryOut(deed, now_);
    deeds_.push_back(deed);
  }
  void keepBack(File file, const Piece& piece) {
    Node& node = nodeOf(file);
    apply(piece, node.now);
    node.pieces.push_back(piece);
  }
  Node& nodeOf(File file) { return *open_.at(static_cast<std::size_t>(file) - 1); }
  std::error_code opened(const std::string& path, File& file) {
    step();
    return openedNow(path, file);
  }
  std::error_code openedNow(const std::string& path, File& file) {
    const auto found = now_.find(path);
    if (found == now_.end()) return std::make_error_code(std::errc::no_such_file_or_directory);
    open_.push_back(found->second);
    file = static_cast<File>(open_.size());
    return {};
  }

  Folder now_;
  Folder kept_;
  std::vector<Deed> deeds_;
  std::vector<std::shared_ptr<Node>> open_;
  int calls_ = 0;
  int cutAt_ = 0;
};

}  // namespace zelvs
