#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

#include "text/utf8.h"
#include "ui/runTimeError.h"

/// What a program of this folder is: it takes any bytes and gives 0. A fuzzer calls it a million times a minute in one
/// process, corpusMain.cpp once for each file of a corpus.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace zelvs {

/// Ends the process, which is how a fuzzer learns that something does not hold.
[[noreturn]] inline void fail(std::string_view what) {
  std::fflush(stdout);
  std::fprintf(stderr, "does not hold: %.*s\n", static_cast<int>(what.size()), what.data());
  std::abort();
}
inline void expect(bool holds, std::string_view what) {
  if (!holds) fail(what);
}

inline std::string bytesOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// A run-time error on its way out of the program. The process goes on behind it.
struct RunTimeError {
  std::string text;
};

/// Does something. The result is what the user was told if a run-time error ended it.
template <class Action>
std::optional<std::string> refusalOf(Action action) {
  // A teller tells once.
  setRunTimeErrorTeller([](const std::string& text) { throw RunTimeError{text}; });
  try {
    action();
  } catch (const RunTimeError& error) {
    return error.text;
  }
  return std::nullopt;
}

/// A refusal is told in words that fit a box and name the file.
inline void judgeRefusal(const std::string& text, std::string_view fileName) {
  constexpr std::size_t kMost = 200;  // characters
  expect(charactersOf(text).size() <= kMost, "a refusal fits a box: " + text);
  expect(text.find(fileName) != std::string::npos, "a refusal names the file: " + text);
}

}  // namespace zelvs
