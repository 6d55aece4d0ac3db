#pragma once

#include <string_view>

namespace zelvs {

// What the chip's bus answers its CPU, and the words that put it to a person.

/// What becomes of a write.
enum class Answer {
  // The write was taken.
  Ok,
  Held,         ///< the first half of a word waits in the write buffer for the second; memory is as it was
  ReportKept,   ///< of a control word the low byte alone was written, as a scan runs
  BcrMismatch,  ///< BCR was written and disagrees with the jumpers now: no scan will start
  // Refused: nothing has changed.
  ReportProtected,   ///< the high byte of a control word on an 8-bit bus during a scan
  FetchedProtected,  ///< what a scan fetches from the stations, during a scan
  RegisterProtected,
  ReadOnlyRegister,
  ReadOnlyArea,
  BadValue,
  // BCR disagrees with the jumpers, so SCR is not written:
  ScrWordMismatch,
  ScrLowMismatch,
  ScrHighMismatch,
};

/// A write's answer and what else the windows have to follow.
struct Written {
  Answer answer = Answer::Ok;
  bool readSideChanged = false;  ///< hazard protect of reads was turned on or off
};

/// Where a byte that was read came from.
enum class ReadFrom {
  Memory,
  MemoryAndKept,  ///< from memory; the whole word went into the read buffer
  Buffer,
};

/// For the user, empty for Ok. A mismatch has a blank line in it.
std::string_view wordsOf(Answer answer);
std::string_view wordsOf(ReadFrom source);

/// True when a modal box puts the words, not the pop-up: the registers and the jumpers disagree.
bool toldInBox(Answer answer);

}  // namespace zelvs
