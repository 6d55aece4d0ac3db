// Pictures of files through real windows: the core's reader of bitmaps and the toolkit's own see the same pixels, and a
// file that goes between its load and its painting ends nothing.

#include <QImage>
#include <filesystem>
#include <random>

#include "files/readFile.h"
#include "qt/support/desktop.h"
#include "support/bitmap.h"
#include "ui/bitmap.h"
#include "ui/controls.h"
#include "ui/qt/sprites.h"

namespace zelvs {
namespace {

std::mt19937 theRandom(932);

std::uint32_t upTo(std::uint32_t most) {
  return std::uniform_int_distribution<std::uint32_t>(0, most)(theRandom);
}

std::string anyBytes(std::size_t count) {
  std::string bytes(count, '\0');
  for (char& byte : bytes)
    byte = static_cast<char>(upTo(255));
  return bytes;
}

/// Rows that hold as many pixels as they have room for, in runs of both kinds.
std::string anyRuns(const BitmapFile& file) {
  std::string bytes;
  for (int y = 0; y < file.height; ++y) {
    for (auto left = static_cast<std::uint32_t>(file.width); left > 0;) {
      std::uint32_t count = 1 + upTo(left - 1);
      if (count < 3 || upTo(1) == 0) {
        bytes += static_cast<char>(count) + anyBytes(1);
      } else {
        bytes += std::string(1, '\0') + static_cast<char>(count) + anyBytes((count * file.bits + 15) / 16 * 2);
      }
      left -= count;
    }
    bytes += std::string(2, '\0');
  }
  return bytes + std::string(1, '\0') + '\1';
}

/// How many pixels differ where the toolkit's are taken through a mask.
int differences(const std::string& bytes, std::uint32_t mask = 0xFFFFFFFF) {
  std::string refusal;
  const std::optional<Bitmap> ours = readBitmap(bytes, refusal);
  EXPECT_TRUE(ours) << refusal;
  const QImage theirs =
      QImage::fromData(reinterpret_cast<const uchar*>(bytes.data()), static_cast<int>(bytes.size()), "BMP");
  if (!ours || theirs.size() != QSize(ours->width, ours->height)) return -1;
  int count = 0;
  for (int y = 0; y < ours->height; ++y) {
    for (int x = 0; x < ours->width; ++x) {
      const std::uint32_t pixel = ours->pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(ours->width) +
                                               static_cast<std::size_t>(x)];
      count += (pixel & mask) != (theirs.pixel(x, y) & mask);
    }
  }
  return count;
}

struct Kind {
  const char* name;
  std::uint32_t bits, packing, head;
  std::string masks;
  std::uint32_t compared = 0xFFFFFFFF;
};

std::string masks(std::uint32_t red, std::uint32_t green, std::uint32_t blue, std::uint32_t opacity) {
  return littleEndian(red, 4) + littleEndian(green, 4) + littleEndian(blue, 4) + littleEndian(opacity, 4);
}

TEST(FilePicturesTest, EveryFormatHasThePixelsThatTheToolkitSees) {
  // Where a colour has fewer than eight bits the toolkit leaves the others 0, and white comes out grey.
  const std::string usual = masks(0xFF0000, 0xFF00, 0xFF, 0);
  const Kind table[] = {
      {"1 bit", 1, 0, 40, ""},
      {"4 bits", 4, 0, 40, ""},
      {"8 bits", 8, 0, 40, ""},
      {"1 bit, small head", 1, 0, 12, ""},
      {"4 bits, small head", 4, 0, 12, ""},
      {"8 bits, small head", 8, 0, 12, ""},
      {"24 bits, small head", 24, 0, 12, ""},
      {"16 bits", 16, 0, 40, "", 0xFFF8F8F8},
      {"24 bits", 24, 0, 40, ""},
      {"32 bits", 32, 0, 40, ""},
      {"24 bits, large head", 24, 0, 124, usual},
      {"32 bits, large head", 32, 0, 108, usual},
      {"32 bits with opacity", 32, 0, 108, masks(0xFF0000, 0xFF00, 0xFF, 0xFF000000)},
      {"32 bits under masks with opacity", 32, 3, 124, masks(0xFF, 0xFF00, 0xFF0000, 0xFF000000)},
      {"32 bits under masks", 32, 3, 40, usual.substr(0, 12)},
      {"16 bits under masks", 16, 3, 40, masks(0xF800, 0x7E0, 0x1F, 0).substr(0, 12), 0xFFF8FCF8},
      {"runs of 8", 8, 1, 40, ""},
      {"runs of 4", 4, 2, 40, ""},
  };
  for (const Kind& kind : table) {
    SCOPED_TRACE(kind.name);
    for (int round = 0; round < 60; ++round) {
      BitmapFile file{static_cast<int>(1 + upTo(40)), static_cast<int>(1 + upTo(20)), kind.bits};
      file.packing = kind.packing;
      file.head = kind.head;
      file.masks = kind.masks;
      if (kind.bits <= 8) file.palette = anyBytes((std::size_t{1} << kind.bits) * (kind.head == 12 ? 3 : 4));
      if (kind.packing == 1 || kind.packing == 2) {
        file.pixels = anyRuns(file);
      } else {
        file.pixels = anyBytes(file.rowBytes() * static_cast<std::size_t>(file.height));
        if (kind.head != 12 && upTo(1) == 0) file.height = -file.height;
      }
      ASSERT_EQ(differences(file.bytes(), kind.compared), 0) << file.width << " x " << file.height;
    }
  }
}

TEST(FilePicturesTest, SoHaveAllPicturesOfTheProgramFolder) {
  int pictures = 0;
  for (const char* folder : {ZELVS_FOLDER "/HintData", ZELVS_FOLDER "/Kairozu"}) {
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      const std::string bytes = readFile(entry.path().string()).value_or("");
      if (!bytes.starts_with("BM")) continue;
      ++pictures;
      EXPECT_EQ(differences(bytes), 0) << entry.path();
    }
  }
  EXPECT_GE(pictures, 9 + 17);
}

class ShownPictureTest : public DesktopTest {
 protected:
  /// What is shown of a file's picture, which may have changed since it was loaded.
  static QImage shown(const Picture& picture) { return spriteOf(picture, QSize(1, 1), 1).toImage(); }
};

TEST_F(ShownPictureTest, ItsPixelsOutliveTheirReading) {
  std::vector<Picture> pictures;
  std::vector<QImage> wanted;
  for (const char* name : {"first.bmp", "second.bmp", "third.bmp"}) {
    const BitmapFile file{64, 64, 32, anyBytes(64 * 64 * 4)};
    folder.write(name, file.bytes());
    wanted.push_back(QImage(QString::fromStdString(folder.file(name)), "BMP"));
    pictures.push_back(loadPicture(folder.file(name)));
  }
  // What was read for one picture has been given up when the next one is read, and its room is used again.
  for (int round = 0; round < 2; ++round) {
    for (std::size_t i = 0; i < pictures.size(); ++i)
      EXPECT_EQ(shown(pictures[i]), wanted[i]) << i;
  }
}

TEST_F(ShownPictureTest, AFileThatHasGoneShowsNothing) {
  folder.write("gone.bmp", bitmapOf(3, 2));
  folder.write("damaged.bmp", bitmapOf(3, 2));
  folder.write("changed.bmp", bitmapOf(3, 2));
  const Picture gone = loadPicture(folder.file("gone.bmp"));
  const Picture damaged = loadPicture(folder.file("damaged.bmp"));
  const Picture changed = loadPicture(folder.file("changed.bmp"));
  std::filesystem::remove(folder.file("gone.bmp"));
  folder.write("damaged.bmp", "BM");
  folder.write("changed.bmp", bitmapOf(5, 4));
  EXPECT_TRUE(shown(gone).isNull());
  EXPECT_TRUE(shown(damaged).isNull());
  EXPECT_EQ(shown(changed).size(), QSize(5, 4));
}

class FrmSheet final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmSheet() : Form("frmSheet", kKind, Border::Fixed) {
    Width = 3000;
    Height = 3000;
    picPage.AutoSize = true;
    picPage.BackColor = 0x0000FF;
  }
  PictureBox picPage{this, "picPage"};
};
FormRef<FrmSheet> frmSheet{"frmSheet"};

TEST_F(ShownPictureTest, ItsBoxKeepsItsColourThen) {
  folder.write("gone.bmp", bitmapOf(30, 20));
  const Picture gone = loadPicture(folder.file("gone.bmp"));
  std::filesystem::remove(folder.file("gone.bmp"));
  frmSheet->picPage.Picture = gone;
  frmSheet->show();
  settle();
  const QImage window = canvasOf(frmSheet.get())->grab().toImage();
  EXPECT_EQ(window.pixelColor(10, 10), QColor(Qt::red));
}

}  // namespace
}  // namespace zelvs
