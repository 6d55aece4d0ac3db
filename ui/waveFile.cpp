#include "ui/waveFile.h"

#include <algorithm>
#include <optional>

#include "files/readFile.h"
#include "ui/littleEndian.h"

namespace zelvs {

namespace {

constexpr std::size_t kChunkHead = 8;  // bytes: a name of four, and the size of what follows

/// Takes chunks away up to the first one of that name, and gives what this holds; nothing when none is there whole.
std::optional<std::string_view> takeChunk(std::string_view& chunks, std::string_view name) {
  while (chunks.size() >= kChunkHead) {
    const bool found = chunks.starts_with(name);
    const std::size_t size = numberAt(chunks, 4, 4);
    chunks.remove_prefix(kChunkHead);
    if (size > chunks.size()) return std::nullopt;
    const std::string_view contents = chunks.substr(0, size);
    // A chunk of an odd size is followed by a byte that is none.
    chunks.remove_prefix(std::min(size + size % 2, chunks.size()));
    if (found) return contents;
  }
  return std::nullopt;
}

bool isPlainSound(std::string_view format) {
  constexpr std::size_t kFormatBytes = 16;
  constexpr std::uint32_t kPlainSamples = 1;
  if (format.size() < kFormatBytes || numberAt(format, 0, 2) != kPlainSamples) return false;
  const std::uint32_t channels = numberAt(format, 2, 2);
  const std::uint32_t samplesASecond = numberAt(format, 4, 4);
  const std::uint32_t bits = numberAt(format, 14, 2);
  return channels > 0 && samplesASecond > 0 && bits > 0 && bits <= 32 && bits % 8 == 0;
}

}  // namespace

bool isWave(std::string_view bytes) {
  constexpr std::size_t kHead = 12;
  if (bytes.size() < kHead || !bytes.starts_with("RIFF") || bytes.substr(8, 4) != "WAVE") return false;
  std::string_view chunks = bytes.substr(kHead);
  const std::optional<std::string_view> format = takeChunk(chunks, "fmt ");
  return format && isPlainSound(*format) && takeChunk(chunks, "data");
}

bool isWaveFile(const std::string& path) {
  const std::optional<std::string> bytes = readFile(path, nullptr, kLargestWaveFile);
  return bytes && isWave(*bytes);
}

}  // namespace zelvs
