#include "ui/bitmap.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdlib>
#include <iterator>
#include <utility>

#include "ui/littleEndian.h"

namespace zelvs {

namespace {

// ---- What the heads tell

// The sizes of heads, in bytes. The first is the file's own; the second begins with its size, which tells its kind.
constexpr std::size_t kFileHead = 14;
constexpr std::size_t kSmallHead = 12;
constexpr std::size_t kHeadWithMasks = 52;
constexpr std::size_t kHeadWithOpacity = 56;
constexpr std::size_t kSecondHeads[] = {kSmallHead, 40, kHeadWithMasks, kHeadWithOpacity, 108, 124};

// Where numbers stand, in bytes from the start of the file. A head that has no room for masks has them behind it.
constexpr std::size_t kPixelsPlace = 10;
constexpr std::size_t kWidthPlace = 18;
constexpr std::size_t kPackingPlace = 30;
constexpr std::size_t kRedPlace = 54;
constexpr std::size_t kOpacityPlace = 66;

/// In what the small head differs from all others.
struct Layout {
  std::size_t heightPlace;
  std::size_t bitsPlace;
  std::size_t sideBytes;    ///< of the width, and of the height
  std::size_t colourBytes;  ///< of a colour of the palette
};
constexpr Layout kSmallLayout = {20, 24, 2, 3};
constexpr Layout kUsualLayout = {22, 28, 4, 4};

enum Packing : std::uint32_t { kPlain, kRunsOf8, kRunsOf4, kUnderMasks };

/// Where blue, green, red and opacity stand in a pixel: the order is that of a colour's bytes.
using Masks = std::array<std::uint32_t, 4>;
constexpr std::size_t kOpacity = 3;

/// The pixels that are read, with the masks that hold until the file tells others.
struct Format {
  std::uint32_t packing;
  std::uint32_t bits;
  Masks masks;
};
constexpr Format kFormats[] = {
    {kPlain, 1, {}},
    {kPlain, 4, {}},
    {kPlain, 8, {}},
    {kPlain, 16, {0x001F, 0x03E0, 0x7C00}},
    {kPlain, 24, {0x0000FF, 0x00FF00, 0xFF0000}},
    {kPlain, 32, {0x0000FF, 0x00FF00, 0xFF0000}},
    {kRunsOf8, 8, {}},
    {kRunsOf4, 4, {}},
    {kUnderMasks, 16, {}},
    {kUnderMasks, 32, {}},
};

struct Heads {
  std::size_t width = 0;
  std::size_t height = 0;
  bool fromTop = false;
  Format format{};
  std::size_t colourBytes = 0;
  std::string_view palette;  ///< all that stands between the heads and the pixels
  std::string_view pixels;   ///< with what stands behind them
};

constexpr const char* kEndsEarly = "its pixels end early";

bool isOfRuns(const Heads& heads) {
  return heads.format.packing == kRunsOf8 || heads.format.packing == kRunsOf4;
}

/// Of one that is not: it fills whole words of four.
std::size_t bytesOfRow(const Heads& heads) {
  return (heads.width * heads.format.bits + 31) / 32 * 4;
}

bool isSide(std::int64_t pixels) {
  return pixels >= 1 && pixels <= kLongestSide;
}

/// Added to its lowest bit, a mask without a hole is carried away.
bool hasHole(std::uint32_t mask) {
  return ((mask + (mask & (~mask + 1))) & mask) != 0;
}

/// Takes the masks that the file tells: those of colours where pixels are said to be under masks, that of opacity
/// wherever a head has one. They reach as far as a pixel has bits.
void readMasks(std::string_view bytes, std::size_t head, Format& format) {
  if (format.packing == kUnderMasks) {
    for (std::size_t i = 0; i < kOpacity; ++i)
      format.masks[kOpacity - 1 - i] = numberAt(bytes, kRedPlace + 4 * i, 4);
  }
  if (head >= kHeadWithOpacity) format.masks[kOpacity] = numberAt(bytes, kOpacityPlace, 4);
  for (std::uint32_t& mask : format.masks)
    mask &= 0xFFFFFFFF >> (32 - format.bits);
}

/// The result is empty, or why these are no sides of a picture; so below.
std::string readSides(std::string_view bytes, const Layout& layout, Heads& heads) {
  const std::int64_t width = static_cast<std::int32_t>(numberAt(bytes, kWidthPlace, layout.sideBytes));
  const std::int64_t height = static_cast<std::int32_t>(numberAt(bytes, layout.heightPlace, layout.sideBytes));
  if (!isSide(width) || !isSide(std::abs(height))) {
    return std::to_string(width) + " x " + std::to_string(height) + " pixels: a side has 1 to " +
           std::to_string(kLongestSide);
  }
  heads.width = static_cast<std::size_t>(width);
  heads.height = static_cast<std::size_t>(std::abs(height));
  heads.fromTop = height < 0;
  return {};
}

std::string readFormat(std::string_view bytes, std::size_t head, const Layout& layout, Heads& heads) {
  const std::uint32_t packing = head == kSmallHead ? kPlain : numberAt(bytes, kPackingPlace, 4);
  const std::uint32_t bits = numberAt(bytes, layout.bitsPlace, 2);
  const auto* const format = std::find_if(std::begin(kFormats), std::end(kFormats), [&](const Format& known) {
    return known.packing == packing && known.bits == bits;
  });
  if (format == std::end(kFormats)) {
    return std::to_string(bits) + " bits a pixel in packing " + std::to_string(packing) + " are not known";
  }
  heads.format = *format;
  return {};
}

/// What stands behind the heads; the masks may be the first of it.
std::string readRest(std::string_view bytes, std::size_t head, const Layout& layout, Heads& heads) {
  const std::size_t end = kFileHead + (heads.format.packing == kUnderMasks ? std::max(head, kHeadWithMasks) : head);
  const std::size_t pixels = numberAt(bytes, kPixelsPlace, 4);
  if (pixels < end || pixels > bytes.size()) return "its pixels lie outside of it";
  readMasks(bytes, head, heads.format);
  if (std::any_of(heads.format.masks.begin(), heads.format.masks.end(), hasHole)) return "a mask has a hole";
  heads.colourBytes = layout.colourBytes;
  heads.palette = bytes.substr(end, pixels - end);
  heads.pixels = bytes.substr(pixels);
  if (!isOfRuns(heads) && heads.pixels.size() < bytesOfRow(heads) * heads.height) return kEndsEarly;
  return {};
}

std::string readHeads(std::string_view bytes, Heads& heads) {
  if (!bytes.starts_with("BM") || bytes.size() < kFileHead + kSmallHead) return "it does not begin as one";
  const std::size_t head = numberAt(bytes, kFileHead, 4);
  if (std::find(std::begin(kSecondHeads), std::end(kSecondHeads), head) == std::end(kSecondHeads)) {
    return "a head of " + std::to_string(head) + " bytes is not known";
  }
  if (bytes.size() < kFileHead + head) return "its head ends early";
  const Layout& layout = head == kSmallHead ? kSmallLayout : kUsualLayout;
  std::string refusal = readSides(bytes, layout, heads);
  if (refusal.empty()) refusal = readFormat(bytes, head, layout, heads);
  if (refusal.empty()) refusal = readRest(bytes, head, layout, heads);
  return refusal;
}

// ---- Colours

constexpr std::size_t kPaletteBits = 8;  // and fewer: a pixel names a colour; with more it is one
constexpr std::uint32_t kBlack = 0xFF000000;

/// Some bits of a pixel, and what each of their values gives to its colour.
struct Share {
  int shift = 0;
  std::uint32_t most = 0;  ///< their largest value, at most 255
  std::array<std::uint32_t, 1 << kPaletteBits> colours{};
};

Share shareOfPalette(const Heads& heads) {
  Share share{0, (1U << heads.format.bits) - 1, {}};
  share.colours.fill(kBlack);
  const std::size_t count = std::min<std::size_t>(share.most + 1, heads.palette.size() / heads.colourBytes);
  for (std::size_t i = 0; i < count; ++i)
    share.colours[i] |= numberAt(heads.palette, i * heads.colourBytes, 3);
  return share;
}

/// byte: which one of the colour the bits under the mask become, widened or cut to eight.
Share shareOfMask(std::uint32_t mask, std::size_t byte) {
  const int bits = std::min(std::popcount(mask), 8);
  Share share{static_cast<int>(std::bit_width(mask)) - bits, (1U << bits) - 1, {}};
  for (std::uint32_t value = 1; value <= share.most; ++value)
    share.colours[value] = (value * 255 + share.most / 2) / share.most << 8 * byte;
  return share;
}

/// A pixel's colour is put together from these.
std::vector<Share> sharesOf(const Heads& heads) {
  if (heads.format.bits <= kPaletteBits) return {shareOfPalette(heads)};
  std::vector<Share> shares;
  for (std::size_t byte = 0; byte < heads.format.masks.size(); ++byte)
    shares.push_back(shareOfMask(heads.format.masks[byte], byte));
  if (heads.format.masks[kOpacity] == 0) shares[kOpacity].colours[0] = kBlack;
  return shares;
}

// ---- Pixels

/// A pixel of a strip of them. Below eight bits the first ones are the high ones of a byte; what stands above is not
/// taken off.
std::uint32_t pixelAt(std::string_view strip, std::size_t x, std::size_t bits) {
  if (bits >= 8) return numberAt(strip, x * bits / 8, bits / 8);
  const std::size_t last = x * bits + bits - 1;
  return numberAt(strip, last / 8, 1) >> (7 - last % 8);
}

/// A bitmap in the making.
class Canvas {
 public:
  explicit Canvas(const Heads& heads) : heads_(heads), shares_(sharesOf(heads)) {
    bitmap_.width = static_cast<int>(heads.width);
    bitmap_.height = static_cast<int>(heads.height);
    bitmap_.pixels.assign(heads.width * heads.height, colourOf(0));
  }

  /// Puts the first pixels of a strip from a place on, which has room for them. Rows count as they do in the file.
  void put(std::size_t x, std::size_t y, std::string_view strip, std::size_t count) {
    const std::size_t row = heads_.fromTop ? y : heads_.height - 1 - y;
    std::uint32_t* place = &bitmap_.pixels[row * heads_.width + x];
    for (std::size_t i = 0; i < count; ++i)
      place[i] = colourOf(pixelAt(strip, i, heads_.format.bits));
  }
  Bitmap take() { return std::move(bitmap_); }

 private:
  std::uint32_t colourOf(std::uint32_t pixel) const {
    std::uint32_t colour = 0;
    for (const Share& share : shares_)
      colour |= share.colours[pixel >> share.shift & share.most];
    return colour;
  }

  const Heads& heads_;
  const std::vector<Share> shares_;
  Bitmap bitmap_;
};

void readPlain(const Heads& heads, Canvas& canvas) {
  const std::size_t rowBytes = bytesOfRow(heads);
  for (std::size_t y = 0; y < heads.height; ++y)
    canvas.put(0, y, heads.pixels.substr(y * rowBytes, rowBytes), heads.width);
}

/// Two bytes at a time: a count and what is repeated that often; or 0 and what else is to be done, which from three on
/// is the count of pixels that follow. The result is empty, or why they are no picture.
std::string readRuns(const Heads& heads, Canvas& canvas) {
  enum : std::size_t { kNextRow, kEnd, kJump };
  const std::string_view bytes = heads.pixels;
  std::size_t x = 0;
  std::size_t y = 0;
  for (std::size_t at = 0; at + 2 <= bytes.size();) {
    const std::size_t repeats = numberAt(bytes, at, 1);
    const std::size_t what = numberAt(bytes, at + 1, 1);
    at += 2;
    if (repeats == 0 && what == kEnd) return {};
    if (repeats == 0 && what == kNextRow) {
      x = 0;
      ++y;
    } else if (repeats == 0 && what == kJump) {
      if (at + 2 > bytes.size()) break;
      x += numberAt(bytes, at, 1);
      y += numberAt(bytes, at + 1, 1);
      at += 2;
    } else {
      const std::size_t count = repeats > 0 ? repeats : what;
      const std::size_t length = repeats > 0 ? 0 : (count * heads.format.bits + 15) / 16 * 2;
      if (at + length > bytes.size()) break;
      if (y >= heads.height || x + count > heads.width) return "a run leaves the picture";
      const std::string repeated(repeats, static_cast<char>(what));
      canvas.put(x, y, repeats > 0 ? repeated : bytes.substr(at, length), count);
      x += count;
      at += length;
    }
  }
  return kEndsEarly;
}

}  // namespace

std::optional<Bitmap> readBitmap(std::string_view bytes, std::string& refusal) {
  Heads heads;
  refusal = readHeads(bytes, heads);
  if (!refusal.empty()) return std::nullopt;
  Canvas canvas(heads);
  if (isOfRuns(heads)) {
    refusal = readRuns(heads, canvas);
  } else {
    readPlain(heads, canvas);
  }
  if (!refusal.empty()) return std::nullopt;
  return canvas.take();
}

}  // namespace zelvs
