#pragma once

#include <array>
#include <span>
#include <string_view>

#include "ui/controls.h"

namespace zelvs {

// What the lists of settings offer, on the panel and in the dialog of defaults alike. Index: the setting.
inline constexpr std::array<std::string_view, 4> kCpuTypes = {"16bit-Bus Little", " 8bit-Bus Little",
                                                              "16bit-Bus  Big  ", " 8bit-Bus  Big  "};
inline constexpr std::array<std::string_view, 3> kClocks = {"48MHz", "24MHz", "12MHz"};
inline constexpr std::array<std::string_view, 4> kCounterModes = {"0 フリーカウント", "1 内部ゲート1", "2 内部ゲート2",
                                                                  "3 外部ゲート"};

inline constexpr int kStations = 63;

/// Replaces a list's rows.
void fillList(ListControl& list, std::span<const std::string_view> texts);
/// The kStations stations, "0x01" to "0x3F": row n stands for station n + 1.
void fillStations(ListControl& list);
/// Board 5's IOS modes.
void fillIoModes(ListControl& list);

/// Selects a list's row from a setting. What the setting cannot select ends the program with its key and value.
void selectSetting(ComboBox& list, std::string_view key, int value);

}  // namespace zelvs
