#pragma once

#include <array>
#include <string_view>

namespace zelvs {

// The keys of the settings in the file, each written once: the reader, the dialog and the panel's lists name them.
inline constexpr std::string_view kCablesKey = "CABLECONNECTION";
inline constexpr std::string_view kMemoryClearKey = "MEMORYCLEAR";
inline constexpr std::string_view kCpuTypeKey = "CPUTYPE";
inline constexpr std::string_view kTransferKey = "TRANSFER";
/// Index: saSetting.
inline constexpr std::array<std::string_view, 3> kAddressKeys = {"SA-QVT40-1", "SA-QVT40-3", "SA-QVT50"};
/// Index: clockSetting.
inline constexpr std::array<std::string_view, 4> kClockKeys = {"CLOCK-QVT60", "CLOCK-QVT40-1", "CLOCK-QVT40-3",
                                                               "CLOCK-QVT50"};
/// Index: cascadeSetting - 1.
inline constexpr std::array<std::string_view, 2> kCascadeKeys = {"CASCADE-QVT40-12", "CASCADE-QVT40-34"};
inline constexpr std::string_view kIoModeKey = "IOS-QVT50";
inline constexpr std::string_view kCounterModeKey = "MODE-QVT50";
/// Index: openWindow - 1.
inline constexpr std::array<std::string_view, 5> kOpenWindowKeys = {"OPENWINDOW1", "OPENWINDOW2", "OPENWINDOW3",
                                                                    "OPENWINDOW4", "OPENWINDOW5"};

}  // namespace zelvs
