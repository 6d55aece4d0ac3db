#pragma once

namespace zelvs {

/// From here on a write into a pipe that nobody reads, and one past the size that the system allows a file, fail like a
/// write to a full disk, which is dealt with where it happens. Left alone they kill the program.
void ignoreWriteSignals();

}  // namespace zelvs
