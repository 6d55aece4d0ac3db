#pragma once

namespace zelvs {

/// Size of all hints, in pixels: one for all, so that the hint window does not jump. It fits beside the other windows.
inline constexpr int kHintWidth = 480;
inline constexpr int kHintHeight = 390;

}  // namespace zelvs
