// Bitmap files and image lists.

#include <sys/stat.h>

#include <cstdint>
#include <string>

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

void put(std::string& bytes, std::uint32_t value, int count) {
  for (int i = 0; i < count; ++i)
    bytes += static_cast<char>(value >> 8 * i & 0xFF);
}

/// A bitmap of 24 bits a pixel, all white.
std::string bitmap(int width, int height) {
  const int rowBytes = (width * 3 + 3) / 4 * 4;
  const auto pixels = static_cast<std::uint32_t>(rowBytes * std::abs(height));
  std::string bytes = "BM";
  for (const std::uint32_t value :
       {54 + pixels, 0u, 54u, 40u, static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height)}) {
    put(bytes, value, 4);
  }
  put(bytes, 1, 2);
  put(bytes, 24, 2);
  for (const std::uint32_t value : {0u, pixels, 2835u, 2835u, 0u, 0u})
    put(bytes, value, 4);
  return bytes + std::string(pixels, '\xFF');
}

class PictureTest : public ProgramTest {
 protected:
  std::string write(const std::string& name, const std::string& bytes) {
    folder.write(name, bytes);
    return folder.file(name);
  }
};

TEST_F(PictureTest, ABitmapsSizeIsReadFromItsHead) {
  const Picture picture = loadPicture(write("3x2.bmp", bitmap(3, 2)));
  ASSERT_NE(picture.file, nullptr);
  EXPECT_EQ(picture.file->width, 3);
  EXPECT_EQ(picture.file->height, 2);
  EXPECT_EQ(picture.file->name, "3x2.bmp");
  EXPECT_FALSE(picture.none());
}

TEST_F(PictureTest, RowsMayBeStoredFromTheTop) {
  EXPECT_EQ(loadPicture(write("top.bmp", bitmap(4, -5))).file->height, 5);
}

TEST_F(PictureTest, TheSameFileIsTheSamePicture) {
  const std::string path = write("again.bmp", bitmap(1, 1));
  EXPECT_TRUE(loadPicture(path) == loadPicture(path));
  EXPECT_FALSE(loadPicture(path) == loadPicture(write("other.bmp", bitmap(1, 1))));
  EXPECT_FALSE(loadPicture(path) == Picture{});
}

TEST_F(PictureTest, AMissingFileEndsTheProgramWithItsName) {
  EXPECT_EXIT(loadPicture(folder.file("nowhere.bmp")), testing::ExitedWithCode(kRunTimeErrorStatus),
              "picture file not found: .*/nowhere\\.bmp\n");
}

TEST_F(PictureTest, AFileThatIsNoBitmapEndsTheProgramWithItsName) {
  struct Row {
    const char* name;
    std::string bytes;
  };
  const Row table[] = {
      {"empty.bmp", ""},
      {"short.bmp", "BM"},
      {"truncated.bmp", bitmap(3, 2).substr(0, 25)},
      {"text.bmp", std::string(100, 'x')},
      {"zeros.bmp", std::string(100, '\0')},
      {"nowidth.bmp", bitmap(0, 2)},
      {"noheight.bmp", bitmap(3, 0)},
      {"negative.bmp", bitmap(3, 2).replace(18, 4, "\xFF\xFF\xFF\xFF", 4)},
      {"huge.bmp", bitmap(3, 2).replace(22, 4, "\xFF\xFF\xFF\x7F", 4)},
  };
  for (const Row& row : table) {
    SCOPED_TRACE(row.name);
    const std::string path = write(row.name, row.bytes);
    EXPECT_EXIT(loadPicture(path), testing::ExitedWithCode(kRunTimeErrorStatus),
                std::string("not a bitmap picture: .*/") + row.name + "\n");
  }
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
  const Picture first = loadPicture(write("first.bmp", bitmap(1, 1)));
  const Picture second = loadPicture(write("second.bmp", bitmap(1, 1)));
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
  const Picture picture = loadPicture(write("page.bmp", bitmap(10, 20)));
  box.Picture = picture;
  EXPECT_EQ(box.Width, 0.0);
  box.AutoSize = true;
  EXPECT_EQ(box.Width, 150.0);
  EXPECT_EQ(box.Height, 300.0);
  box.Picture = loadPicture(write("wide.bmp", bitmap(40, 20)));
  EXPECT_EQ(box.Width, 600.0);
  box.Picture = frmAlbum->ilsCarried.image(1);
  EXPECT_EQ(box.Width, 600.0) << "a carried image has no size of its own";
}

}  // namespace
}  // namespace zelvs
