// Makes the program's one sound: a short soft bell, written as a wave file.

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <numbers>
#include <string>

#include "tools/littleEndian.h"

namespace {

constexpr int kSampleRate = 22050;
constexpr int kSamples = kSampleRate * 12 / 100;  // 0.12 s
constexpr int kBytesPerSample = 2;
constexpr double kPitch = 1046.5;  // the C two octaves above the middle one
constexpr double kLoudness = 0.5;
constexpr double kAttack = 0.006;   // seconds
constexpr double kRelease = 0.030;  // seconds
constexpr double kDecay = 0.06;     // seconds down to 1/e

using zelvs::littleEndian;

/// Rises and falls along half a cosine: an edge in the envelope would be heard as a click.
double edge(double seconds, double length) {
  return seconds >= length ? 1 : (1 - std::cos(std::numbers::pi * seconds / length)) / 2;
}

std::int16_t sampleAt(int index) {
  const double now = static_cast<double>(index) / kSampleRate;
  const double left = static_cast<double>(kSamples - 1 - index) / kSampleRate;
  const double phase = 2 * std::numbers::pi * kPitch * now;
  const double tone = 0.8 * std::sin(phase) + 0.2 * std::sin(2 * phase);
  const double envelope = edge(now, kAttack) * edge(left, kRelease) * std::exp(-now / kDecay);
  return static_cast<std::int16_t>(std::lround(32767 * kLoudness * envelope * tone));
}

std::string waveFile() {
  constexpr std::uint32_t kDataBytes = kSamples * kBytesPerSample;
  constexpr std::uint32_t kFormatBytes = 16;
  std::string format = littleEndian(1, 2) + littleEndian(1, 2);  // PCM, one channel
  format += littleEndian(kSampleRate, 4) + littleEndian(kSampleRate * kBytesPerSample, 4);
  format += littleEndian(kBytesPerSample, 2) + littleEndian(8 * kBytesPerSample, 2);
  std::string file = "RIFF" + littleEndian(4 + 8 + kFormatBytes + 8 + kDataBytes, 4) + "WAVE";
  file += "fmt " + littleEndian(kFormatBytes, 4) + format + "data" + littleEndian(kDataBytes, 4);
  for (int i = 0; i < kSamples; ++i)
    file += littleEndian(static_cast<std::uint16_t>(sampleAt(i)), kBytesPerSample);
  return file;
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) {
    std::fprintf(stderr, "usage: zelvs-make-beep FILE\n");
    return 2;
  }
  std::ofstream out(arguments[1], std::ios::binary);
  out << waveFile() << std::flush;
  if (out) return 0;
  std::fprintf(stderr, "cannot write %s\n", arguments[1]);
  return 1;
}
