#include "ui/picture.h"

#include <array>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>

#include "ui/runTimeError.h"

namespace zelvs {

Picture ImageList::image(int number) const {
  if (number < 1 || number > count_) {
    runTimeError(name_ + " has no image " + std::to_string(number) + ": its images run from 1 to " +
                 std::to_string(count_));
  }
  return Picture{this, number, nullptr};
}

void ImageList::clear() {
  added_.clear();
  count_ = 0;
}

void ImageList::add(const Picture& picture) {
  added_.push_back(picture.file);
  ++count_;
}

const PictureFile* ImageList::fileOf(int number) const {
  const auto carried = static_cast<std::size_t>(count_) - added_.size();
  const auto position = static_cast<std::size_t>(number);
  return position > carried && position <= static_cast<std::size_t>(count_) ? added_[position - carried - 1] : nullptr;
}

const PictureFile* fileOf(const Picture& picture) {
  return picture.list != nullptr ? picture.list->fileOf(picture.image) : picture.file;
}

namespace {

std::int32_t littleEndian32(const unsigned char* bytes) {
  return static_cast<std::int32_t>(bytes[0] | bytes[1] << 8 | bytes[2] << 16 |
                                   static_cast<std::uint32_t>(bytes[3]) << 24);
}

/// Nothing for a file that is no picture; refusal then says why.
std::optional<PictureFile> readBitmapHead(const std::string& path, std::string& refusal) {
  // Only a plain file is opened: a pipe that nobody writes to would be waited for without end.
  std::error_code error;
  const bool there = std::filesystem::exists(path, error);
  refusal = "not a bitmap picture: " + path;
  if (there && !std::filesystem::is_regular_file(path, error)) return std::nullopt;
  std::ifstream file(path, std::ios::binary);
  if (!there || !file) {
    refusal = "picture file not found: " + path;
    return std::nullopt;
  }
  std::array<unsigned char, 26> head{};
  file.read(reinterpret_cast<char*>(head.data()), head.size());
  const bool bitmap = file.gcount() == static_cast<std::streamsize>(head.size()) && head[0] == 'B' && head[1] == 'M';
  // Rows may be stored from the top, which a negative height tells. Sizes past this are a damaged file.
  constexpr std::int32_t kLargestSide = 32767;
  const std::int32_t width = littleEndian32(&head[18]);
  const std::int32_t height = littleEndian32(&head[22]);
  if (!bitmap || width < 1 || width > kLargestSide || height == 0 || height < -kLargestSide || height > kLargestSide) {
    return std::nullopt;
  }
  const auto slash = path.find_last_of("/\\");
  return PictureFile{path, slash == std::string::npos ? path : path.substr(slash + 1), width, std::abs(height)};
}

/// Pictures are kept for the whole run: a schematic that is looked at again costs no second reading.
Picture findPicture(const std::string& path, std::string& refusal) {
  static std::map<std::string, PictureFile> known;
  auto found = known.find(path);
  if (found == known.end()) {
    const std::optional<PictureFile> file = readBitmapHead(path, refusal);
    if (!file) return {};
    found = known.emplace(path, *file).first;
  }
  return Picture{nullptr, 0, &found->second};
}

}  // namespace

Picture loadPicture(const std::string& path) {
  std::string refusal;
  const Picture picture = findPicture(path, refusal);
  if (picture.none()) runTimeError(refusal);
  return picture;
}

Picture loadPictureIfThere(const std::string& path) {
  std::string refusal;
  return findPicture(path, refusal);
}

}  // namespace zelvs
