#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <functional>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "bench/frmHard.h"
#include "chip/frmEditMemory.h"
#include "chip/frmEditRegister.h"
#include "chip/frmMemoryRead.h"
#include "lessons/frmNaviList.h"
#include "shell/frmDefault.h"
#include "shell/frmMDI.h"
#include "state/state.h"
#include "support/plainBus.h"
#include "text/hexText.h"

namespace zelvs {

/// Chip memory and who writes it. It stands in the handlers that write, and knows what each may make of memory as it
/// was when the handler began: what the CPU's dialogs write is known byte by byte, the engine has its areas. Anywhere
/// else, and so between any two lines, not one byte changes.
class MemoryWatch {
 public:
  /// Told of a byte that nobody may have written; does not return.
  using Fault = std::function<void(const std::string& what, const std::string& where)>;

  explicit MemoryWatch(Fault fault) : fault_(std::move(fault)) { remember(); }

  /// A form has been made: its handlers that write are watched from here on.
  void stepInto(const Form& form) {
    if (&form == frmMDI.form()) {
      watch(frmMDI->timTick.onTimer, ticking);
      watch(frmMDI->lblRunMode(kOneTime).onClick, stepping);
    } else if (&form == frmHard.form()) {
      watch(frmHard->picReset(kCenterBoard).onDblClick, resetting);
    } else if (&form == frmDefault.form()) {
      watch(frmDefault->cmdAction(1).onClick, startingAnew);
    } else if (&form == frmNaviList.form()) {
      watch(frmNaviList->cmdStart.onClick, startingAnew);
      watch(frmNaviList->lstTitle.onDblClick, startingAnew);
    } else if (&form == frmEditMemory.form()) {
      watch(frmEditMemory->cmdAction(0).onClick, [] { return writing(*frmEditMemory); });
    } else if (&form == frmEditRegister.form()) {
      watch(frmEditRegister->cmdAction(0).onClick, [] { return writing(*frmEditRegister); });
    } else if (&form == frmMemoryRead.form()) {
      watch(frmMemoryRead->cmdAction(0).onClick, reading);
    }
  }

  /// Between two lines. Whoever has begun to write and let the user in meanwhile has written all that it writes.
  void look() {
    judge();
    for (Writer& writer : writers_)
      writer.done = true;
  }
  /// What has been written until now is as it should be.
  void remember() { std::copy(chipMemory.begin(), chipMemory.end(), seen_.begin()); }

 private:
  using Memory = std::array<std::uint8_t, kChipMemorySize>;
  /// Whether a writer may have made now of before.
  using Licence = std::function<bool(const Memory& before, const Memory& now)>;
  struct Writer {
    Licence licence;
    bool done = false;
  };

  template <class Ask>
  void watch(std::function<void()>& handler, Ask ask) {
    handler = [this, ask, handled = handler] {
      judge();
      writers_.push_back({ask()});
      handled();
      judge();
      writers_.pop_back();
    };
  }

  void judge() {
    if (std::memcmp(seen_.data(), chipMemory.begin(), seen_.size()) == 0) return;
    const Memory before = seen_;
    remember();
    const bool writes = !writers_.empty() && !writers_.back().done;
    if (writes && writers_.back().licence(before, seen_)) return;
    const auto [was, is] = std::mismatch(before.begin(), before.end(), seen_.begin());
    fault_(
        writes ? "chip memory is written as its writer must not" : "chip memory is written by nobody who may",
        hexText(static_cast<unsigned>(is - seen_.begin()), 3) + " from " + hexText(*was, 2) + " to " + hexText(*is, 2));
  }

  // --- The CPU's hands: a second bus tells what their writes make of memory.

  static PlainBus busAsItStands() {
    PlainBus bus;
    std::copy(chipMemory.begin(), chipMemory.end(), bus.memory.begin());
    bus.cpu = cpuType;
    bus.lamp = frmHard->picScanLed.Tag == "1";
    bus.continuous = continuousScanActive != 0;
    bus.oneShot = oneShotScanActive != 0;
    bus.jumper = boardFullHalf;
    bus.heldEven = writeTempLowValid != 0 ? writeTempLowByte : -1;
    bus.heldOdd = writeTempHighValid != 0 ? writeTempHighByte : -1;
    return bus;
  }
  static Licence onlyTo(const PlainBus& bus) {
    Memory wanted{};
    std::copy(bus.memory.begin(), bus.memory.end(), wanted.begin());
    return [wanted](const Memory&, const Memory& now) { return now == wanted; };
  }

  /// A dialog writes what its field shows to where its label says.
  static Licence writing(const WriteDialog& dialog) {
    const int address = static_cast<int>(hexValue(dialog.lblAdr.Caption.get().substr(0, 3)));
    const int value = static_cast<int>(hexValue(dialog.txtWriteData.Text.get()));
    PlainBus bus = busAsItStands();
    dialog.opnAccess(0).Value ? bus.writeWord(address, value) : bus.writeByte(address, value);
    return onlyTo(bus);
  }
  /// A read moves the half of a protected word on, and nothing else.
  static Licence reading() {
    PlainBus bus = busAsItStands();
    std::array<int, 2> kept{};
    const std::string text = frmMemoryRead->txtAddress.Text;
    const bool whole = text.size() == 3 && text.find('?') == std::string::npos;
    if (whole && hexValue(text) < kChipMemorySize) bus.readByte(static_cast<int>(hexValue(text)), kept);
    return onlyTo(bus);
  }

  // --- Resets

  /// The registers behind a reset, and the chip's name behind them.
  static bool registersAre(const Memory& now, int scrLow, int bcrLow) {
    constexpr std::string_view kName = "QVT60 ";
    Memory wanted{};
    wanted[kScrLow] = static_cast<std::uint8_t>(scrLow);
    wanted[kBcrLow] = static_cast<std::uint8_t>(bcrLow);
    std::copy(kName.begin(), kName.end(), wanted.begin() + kChipName);
    return std::equal(now.begin() + kScrLow, now.begin() + kBehindName, wanted.begin() + kScrLow);
  }
  static Licence resetting() {
    return [](const Memory& before, const Memory& now) {
      return std::equal(now.begin(), now.begin() + kDataEnd, before.begin()) &&
             std::equal(now.begin() + kBehindName, now.end(), before.begin() + kBehindName) &&
             registersAre(now, 0, kBcrResetFull);
    };
  }
  /// Memory is cleared, or the data area filled with whatever chance gives.
  static Licence startingAnew() {
    return [](const Memory& before, const Memory& now) {
      const auto zero = [](std::uint8_t byte) { return byte == 0; };
      const bool rest = memoryClear != 0
                            ? std::all_of(now.begin(), now.begin() + kDataEnd, zero) &&
                                  std::all_of(now.begin() + kBehindName, now.end(), zero)
                            : std::equal(now.begin() + kBehindName, now.end(), before.begin() + kBehindName);
      return rest && registersAre(now, 5, transferSetting[0] != 0 ? 3 : 19);
    };
  }

  // --- The engine

  static Licence ticking() { return runMode == kRun || runMode == kSlow ? stepping() : nothing(); }
  static Licence nothing() {
    return [](const Memory&, const Memory&) { return false; };
  }
  static Licence stepping() {
    const bool asked = chipMemory[kScrLow] != 0 || chipMemory[kScrHigh] != 0;
    const bool halted = (chipMemory[kInt0Status] & 4) != 0;
    if (halted || !(asked || scanActive())) return nothing();
    // A scan that has begun ends where it was told to, whatever the register says meanwhile.
    const int running = scanActive() ? finalStation : 0;
    const int last = std::max({running, static_cast<int>(chipMemory[kScrLow]), static_cast<int>(chipMemory[kScrHigh])});
    return [last](const Memory& before, const Memory& now) {
      for (int at = 0; at < kChipMemorySize; at += kStride) {
        if (std::memcmp(&before[static_cast<std::size_t>(at)], &now[static_cast<std::size_t>(at)], kStride) == 0)
          continue;
        for (int byte = at; byte < at + kStride; ++byte) {
          if (!engineMay(byte, before, now, last)) return false;
        }
      }
      return true;
    };
  }

  static bool engineMay(int at, const Memory& before, const Memory& now, int last) {
    const int was = before[static_cast<std::size_t>(at)];
    const int is = now[static_cast<std::size_t>(at)];
    if (was == is) return true;
    const int station = at % kAreaSize / 2;
    if (at < kDoArea) {
      if (station < 1 || station > last) return false;
      // Of an order the two highest bits stay, and a sweep is at most ended; a report never gains its highest bit.
      return at % 2 == 0 ? (was & 0xC0) == (is & 0xC0) && (is & 0x30 & ~was) == 0 : (is & 0x80 & ~was) == 0;
    }
    if (at >= kDiArea && at < kDrcArea) return station <= last && comesFromBoards(at, station, is);
    if (at == kScrLow || at == kScrHigh) return is == 0;
    if (at == kSsrLow) return is == 0 || (is > 0x80 && is - 0x80 <= last);
    if (at == kSsrHigh) return is < 8;
    // A status bit is only ever set, and only where it is enabled.
    if (at == kInt0Status || at == kInt1Status)
      return (was & ~is) == 0 && (is & ~was & ~before[static_cast<std::size_t>(at) + 1]) == 0;
    if (at == kC1crLow || at == kC2crLow) return is > was;
    return false;
  }

  /// A byte that has been fetched for a station stands on a board with that address, or is the 0 that it was cleared to
  /// or never had.
  static bool comesFromBoards(int at, int station, int value) {
    const int high = at % 2;
    const int area = at / kAreaSize * kAreaSize;
    for (int board = 1; board <= 5; ++board) {
      const int address = board == 5 ? saSetting[2] : saSetting[(board - 1) / 2] + (board - 1) % 2;
      if (address != station) continue;
      const int word = 2 * (board - 1) + high;
      if (area == kDiArea) {
        if (value == boardDi[word]) return true;
      } else if (value == 0) {
        return true;
      } else if (board < 5) {
        const int counter = (area - kCounterArea) / kAreaSize;
        if (value == (area == kSerialArea ? serialData[word] : boardCounters[12 * (board - 1) + 2 * counter + high]))
          return true;
      }
    }
    return false;
  }

  static constexpr int kBehindName = kChipName + 6;
  static constexpr int kStride = 64;  // bytes that are compared at once

  Fault fault_;
  Memory seen_{};
  std::vector<Writer> writers_;  // the last one is the innermost
};

}  // namespace zelvs
