#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ui/bitmap.h"

namespace zelvs {

class ImageList;

/// A picture that stands in a file. Sizes are in pixels, as they were when it was loaded.
struct PictureFile {
  std::string path;
  std::string name;  ///< the file's name without its folder
  int width = 0;
  int height = 0;
};

/// What a control shows: nothing, image N of an image list (N from 1), or a file's picture. Cheap to copy and compare.
struct Picture {
  const ImageList* list = nullptr;
  int image = 0;
  const PictureFile* file = nullptr;

  bool none() const { return list == nullptr && file == nullptr; }
  friend bool operator==(const Picture&, const Picture&) = default;
};

/// Images by number, from 1. The pixels belong to the view: it looks for them under the list's name, in the file
/// that the program carries, or takes them from the files that were added.
class ImageList {
 public:
  ImageList(std::string name, int count) : name_(std::move(name)), count_(count) {}
  ImageList(const ImageList&) = delete;
  ImageList& operator=(const ImageList&) = delete;

  /// Image number 1..count(); any other number is a run-time error that names the list and the number.
  Picture image(int number) const;
  int count() const { return count_; }
  const std::string& name() const { return name_; }

  void clear();
  /// Adds a file's picture behind the others.
  void add(const Picture& picture);
  /// The file behind an image that was added; null for an image that the program carries.
  const PictureFile* fileOf(int number) const;

 private:
  std::string name_;
  int count_;
  std::vector<const PictureFile*> added_;
};

/// The file behind a picture; null for none and for an image that the program carries.
const PictureFile* fileOf(const Picture& picture);

/// Reads a Windows bitmap file and judges all of it, so that a picture that was loaded can be shown; but its pixels are
/// not kept. A file that is missing or is refused by readBitmap() is a run-time error that names the file and says why.
Picture loadPicture(const std::string& path);
/// The same, but such a file gives no picture.
Picture loadPictureIfThere(const std::string& path);

/// Reads the file again, for whoever shows it: what it holds by now, or nothing when it is no picture any more.
std::optional<Bitmap> pixelsOf(const PictureFile& file);

}  // namespace zelvs
