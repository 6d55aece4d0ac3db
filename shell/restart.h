#pragma once

namespace zelvs {

/// Starts the bench anew with the present settings without leaving the program: the panel, the register window and the
/// memory windows are dropped and made again, memory and state are reset, a scan starts and RUN is selected. The frame
/// and the learning aids live on.
void restartSimulator();

}  // namespace zelvs
