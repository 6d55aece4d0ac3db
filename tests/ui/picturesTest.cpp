// Bitmap files and image lists.

#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "support/bitmap.h"
#include "support/program.h"
#include "ui/controls.h"

namespace zelvs {
namespace {

class FrmAlbum final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmAlbum() : Form("frmAlbum", kKind, Border::Fixed) {}
  ImageList ilsCarried{"ilsCarried", 3};
  PictureBox picPage{this, "picPage"};
};
FormRef<FrmAlbum> frmAlbum{"frmAlbum"};

class PictureTest : public ProgramTest {
 protected:
  std::string write(const std::string& name, const std::string& bytes) {
    folder.write(name, bytes);
    return folder.file(name);
  }
};

TEST_F(PictureTest, ABitmapsSizeIsReadFromItsHead) {
  const Picture picture = loadPicture(write("3x2.bmp", bitmapOf(3, 2)));
  ASSERT_NE(picture.file, nullptr);
  EXPECT_EQ(picture.file->width, 3);
  EXPECT_EQ(picture.file->height, 2);
  EXPECT_EQ(picture.file->name, "3x2.bmp");
  EXPECT_FALSE(picture.none());
}

TEST_F(PictureTest, RowsMayBeStoredFromTheTop) {
  EXPECT_EQ(loadPicture(write("top.bmp", bitmapOf(4, -5))).file->height, 5);
}

TEST_F(PictureTest, TheSameFileIsTheSamePicture) {
  const std::string path = write("again.bmp", bitmapOf(1, 1));
  EXPECT_TRUE(loadPicture(path) == loadPicture(path));
  EXPECT_FALSE(loadPicture(path) == loadPicture(write("other.bmp", bitmapOf(1, 1))));
  EXPECT_FALSE(loadPicture(path) == Picture{});
}

TEST_F(PictureTest, ImagesAreTheSameByListAndNumber) {
  const ImageList one("one", 2);
  const ImageList other("other", 2);
  EXPECT_TRUE(one.image(1) == one.image(1));
  EXPECT_FALSE(one.image(1) == one.image(2));
  EXPECT_FALSE(one.image(1) == other.image(1));
}

TEST_F(PictureTest, AMissingFileEndsTheProgramWithItsName) {
  EXPECT_EXIT(loadPicture(folder.file("nowhere.bmp")), testing::ExitedWithCode(kRunTimeErrorStatus),
              "picture file not found: .*/nowhere\\.bmp\n");
}

TEST_F(PictureTest, AFileThatIsNoBitmapEndsTheProgramWithItsName) {
  struct Row {
    const char* name;
    std::string bytes;
    const char* why;
  };
  const std::string whole = bitmapOf(3, 2);
  const Row table[] = {
      {"empty.bmp", "", "it does not begin as one"},
      {"short.bmp", "BM", "it does not begin as one"},
      {"truncated.bmp", std::string(whole).substr(0, 25), "it does not begin as one"},
      {"text.bmp", std::string(100, 'x'), "it does not begin as one"},
      {"zeros.bmp", std::string(100, '\0'), "it does not begin as one"},
      {"nowidth.bmp", bitmapOf(0, 2), "0 x 2 pixels: a side has 1 to 8192"},
      {"noheight.bmp", bitmapOf(3, 0), "3 x 0 pixels: a side has 1 to 8192"},
      {"negative.bmp", std::string(whole).replace(18, 4, "\xFF\xFF\xFF\xFF", 4), "-1 x 2 pixels: a side has 1 to 8192"},
      {"huge.bmp", std::string(whole).replace(22, 4, "\xFF\xFF\xFF\x7F", 4),
       "3 x 2147483647 pixels: a side has 1 to 8192"},
      {"headalone.bmp", std::string(whole).substr(0, 30), "its head ends early"},
      {"cut.bmp", std::string(whole).substr(0, whole.size() - 1), "its pixels end early"},
  };
  for (const Row& row : table) {
    SCOPED_TRACE(row.name);
    const std::string path = write(row.name, row.bytes);
    EXPECT_EXIT(loadPicture(path), testing::ExitedWithCode(kRunTimeErrorStatus),
                std::string("not a bitmap picture: .*/") + row.name + ": " + row.why + "\n");
    EXPECT_TRUE(loadPictureIfThere(path).none());
  }
}

TEST_F(PictureTest, AFileThatIsTooLargeIsNotEvenOpened) {
  for (const std::uintmax_t size : {std::uintmax_t{kLargestBitmapFile} + 1, std::uintmax_t{1} << 40}) {
    const std::string larger = write("larger.bmp", bitmapOf(3, 2));
    std::filesystem::resize_file(larger, size);
    EXPECT_TRUE(loadPictureIfThere(larger).none());
    EXPECT_EXIT(loadPicture(larger), testing::ExitedWithCode(kRunTimeErrorStatus),
                "not a bitmap picture: .*/larger.bmp: larger than 269484032 bytes\n");
  }
}

TEST_F(PictureTest, ItsPixelsAreReadWhenTheyAreShown) {
  const Picture picture = loadPicture(write("shown.bmp", bitmapOf(3, 2)));
  const std::optional<Bitmap> first = pixelsOf(*picture.file);
  ASSERT_TRUE(first);
  EXPECT_EQ(first->pixels, std::vector<std::uint32_t>(6, 0xFFFFFFFF));
  write("shown.bmp", bitmapOf(5, 4));
  const std::optional<Bitmap> changed = pixelsOf(*picture.file);
  ASSERT_TRUE(changed) << "what the file holds by now";
  EXPECT_EQ(changed->width, 5);
  EXPECT_EQ(changed->height, 4);
  write("shown.bmp", "BM");
  EXPECT_FALSE(pixelsOf(*picture.file));
  std::filesystem::remove(picture.file->path);
  EXPECT_FALSE(pixelsOf(*picture.file));
  EXPECT_TRUE(loadPicture(picture.file->path) == picture) << "known for the whole run";
}

TEST_F(PictureTest, AFolderOrAPipeInItsPlaceEndsTheProgramToo) {
  ASSERT_EQ(mkdir(folder.file("folder.bmp").c_str(), 0700), 0);
  ASSERT_EQ(mkfifo(folder.file("pipe.bmp").c_str(), 0600), 0);
  for (const char* name : {"folder.bmp", "pipe.bmp"}) {
    EXPECT_EXIT(loadPicture(folder.file(name)), testing::ExitedWithCode(kRunTimeErrorStatus),
                std::string("picture.*/") + name);
  }
}

TEST_F(PictureTest, AnImageListCountsFromOne) {
  const ImageList list("ilsLamp", 3);
  EXPECT_EQ(list.count(), 3);
  for (const int number : {1, 2, 3}) {
    const Picture picture = list.image(number);
    EXPECT_EQ(picture.list, &list);
    EXPECT_EQ(picture.image, number);
  }
  for (const int number : {-1, 0, 4, 100}) {
    EXPECT_EXIT(list.image(number), testing::ExitedWithCode(kRunTimeErrorStatus),
                "ilsLamp has no image " + std::to_string(number) + ": its images run from 1 to 3\n");
  }
}

TEST_F(PictureTest, AddedPicturesComeBehindTheCarriedOnes) {
  ImageList list("ilsHint", 2);
  const Picture first = loadPicture(write("first.bmp", bitmapOf(1, 1)));
  const Picture second = loadPicture(write("second.bmp", bitmapOf(1, 1)));
  list.add(first);
  list.add(second);
  EXPECT_EQ(list.count(), 4);
  EXPECT_EQ(list.fileOf(1), nullptr);
  EXPECT_EQ(list.fileOf(2), nullptr);
  EXPECT_EQ(list.fileOf(3), first.file);
  EXPECT_EQ(list.fileOf(4), second.file);
  EXPECT_EQ(list.fileOf(5), nullptr);
  EXPECT_EQ(list.fileOf(0), nullptr);
  list.clear();
  EXPECT_EQ(list.count(), 0);
  EXPECT_EXIT(list.image(1), testing::ExitedWithCode(kRunTimeErrorStatus), "ilsHint has no image 1");
  list.add(second);
  EXPECT_EQ(list.fileOf(1), second.file);
}

TEST_F(PictureTest, ABoxTakesTheSizeOfAFilesPictureWhenItIsAskedTo) {
  PictureBox& box = frmAlbum->picPage;
  const Picture picture = loadPicture(write("page.bmp", bitmapOf(10, 20)));
  box.Picture = picture;
  EXPECT_EQ(box.Width, 0.0);
  box.AutoSize = true;
  EXPECT_EQ(box.Width, 150.0);
  EXPECT_EQ(box.Height, 300.0);
  box.Picture = loadPicture(write("wide.bmp", bitmapOf(40, 20)));
  EXPECT_EQ(box.Width, 600.0);
  box.Picture = frmAlbum->ilsCarried.image(1);
  EXPECT_EQ(box.Width, 600.0) << "a carried image has no size of its own";
}

}  // namespace
}  // namespace zelvs
