#include "ui/picture.h"

#include <map>

#include "files/readFile.h"
#include "text/shortText.h"
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

/// Nothing for a file that is no picture; refusal then says why.
std::optional<Bitmap> readPicture(const std::string& path, std::string& refusal) {
  const std::optional<std::string> bytes = readFile(path, &refusal, kLargestBitmapFile);
  std::optional<Bitmap> bitmap;
  if (bytes) bitmap = readBitmap(*bytes, refusal);
  if (!bytes && refusal.empty()) {
    refusal = "picture file not found: " + shortPath(path);
  } else if (!bitmap) {
    refusal = "not a bitmap picture: " + shortPath(path) + ": " + refusal;
  }
  return bitmap;
}

/// Pictures are known for the whole run, but for their pixels: a schematic that is looked at again is not judged again.
Picture findPicture(const std::string& path, std::string& refusal) {
  static std::map<std::string, PictureFile> known;
  auto found = known.find(path);
  if (found == known.end()) {
    const std::optional<Bitmap> bitmap = readPicture(path, refusal);
    if (!bitmap) return {};
    const std::string name = path.substr(path.find_last_of("/\\") + 1);  // all of it where there is no separator
    found = known.emplace(path, PictureFile{path, name, bitmap->width, bitmap->height}).first;
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

std::optional<Bitmap> pixelsOf(const PictureFile& file) {
  std::string refusal;
  return readPicture(file.path, refusal);
}

}  // namespace zelvs
