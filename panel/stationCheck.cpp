// Two boards on the line with one station address.

#include <array>
#include <string>

#include "bench/frmHard.h"
#include "dialogs/messages.h"
#include "panel/panel.h"
#include "state/state.h"

namespace zelvs {

namespace {

constexpr int kOffLine = 65535;

/// The station of a board with a cable, by its list and not by saSetting: so it is right also while the panel loads.
int stationOf(int list, int connector) {
  return isOn(frmHard->picBOARD2_RXD(connector)) ? frmHard->cmbSA(list).ListIndex + 1 : kOffLine;
}

int slaveStationOf(int master, int bridge) {
  return master != kOffLine && frmHard->picBridge(bridge).Visible ? master + 1 : kOffLine;
}

void warn(std::size_t board, std::size_t other) {
  if (startupDone != kTrue) return;
  askDialog("ボード" + std::to_string(board) + "と、ボード" + std::to_string(other) +
                "のＳＡが重複しています｡正常な通信が行えません｡ ",
            DialogMode::OneButton, kWarningTitle);
}

}  // namespace

void chkSADup() {
  std::array<int, 6> stations{};  // by board, from 1
  stations[1] = stationOf(0, 0);
  stations[2] = slaveStationOf(stations[1], 0);
  stations[3] = stationOf(1, 1);
  stations[4] = slaveStationOf(stations[3], 1);
  stations[5] = stationOf(2, 3);
  for (std::size_t board = 1; board <= 5; ++board) {
    for (std::size_t other = board + 1; other <= 5 && stations[board] != kOffLine; ++other) {
      if (stations[board] != stations[other]) continue;
      warn(board, other);
      return;  // only the first pair is told
    }
  }
}

}  // namespace zelvs
