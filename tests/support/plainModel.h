#pragma once

#include <array>
#include <cmath>
#include <functional>

namespace zelvs {

/// The link a second time, as plain integers and in one breath: no forms, no properties, no tables of commands.
/// Tests run it beside the engine and compare the two after each step.
struct PlainModel {
  std::array<int, 2048> memory{};

  // What the user sets.
  std::array<int, 3> sa{1, 3, 5};
  std::array<int, 4> clock{};
  std::array<bool, 3> link{true, true, true};
  std::array<bool, 2> bridge{true, true};
  std::array<bool, 6> resetHeld{};  // by board
  std::array<bool, 6> clrHeld{};
  std::array<bool, 6> handshake{};
  std::array<int, 10> di{};
  std::array<int, 50> counters{};
  std::array<bool, 4> serialPending{};
  std::array<int, 8> serialData{};
  bool noise = false;
  int holdOff = 0;

  // What the link makes of it.
  bool continuous = false;
  bool oneShot = false;
  int final = 0;
  int station = 0;
  int answering = 0;
  int answerStation = 0;
  bool answerSerial = false;
  int command = 0;
  int retry = 0;
  bool diChanged = false, serialRose = false, error = false, c1 = false, c2 = false;
  int chk1 = 0, chk2 = 0, mon = 0;
  std::array<int, 6> latched{};  // by board
  int noiseHits = 0;
  int noiseStation = 0;
  int intPicture = 0;
  bool scanLed = false;

  std::function<double()> draw;

  void step() {
    downward();
    upward();
  }

  void downward() {
    if (memory[0x580] != 0 && !continuous) {
      continuous = true;
      begin(memory[0x580]);
    }
    if (memory[0x581] != 0 && !oneShot) {
      oneShot = true;
      begin(memory[0x581]);
    }
    if (chk1 > 0) --chk1;
    if (chk2 > 0) --chk2;
    if (mon > 0) --mon;
    if (stands()) return;

    const int at = 2 * station;
    command = memory[at] % 16;
    retry = memory[at + 1] & 4;
    std::array<int, 4> line{};
    std::array<int, 4> out{};
    if (link[0]) line[1] = station, out[1] = 256 * memory[at + 0x81] + memory[at + 0x80];
    if (link[1]) line[2] = line[1], out[2] = out[1];
    if (link[2]) line[3] = line[2], out[3] = out[2];
    answerSerial = false;
    disturb();

    if (!resetHeld[1] && sa[0] == line[1] && clock[1] == clock[0]) {
      latch(1, out[1]);
      if (answering == 0) takeLine(1, sa[0]);
    }
    hear(2, sa[0] + 1, line[1], out[1], clock[1], bridge[0]);
    hear(3, sa[1], line[2], out[2], clock[2], true);
    hear(4, sa[1] + 1, line[2], out[2], clock[2], bridge[1]);
    hear(5, sa[2], line[3], out[3], clock[3], true);
    if (answering == 6) answering = 0;
  }

  void upward() {
    if (answering == 5) mon = 2000;
    if (stands()) return;
    const int at = 2 * station;
    if (answering == 0) {
      fail(memory[at + 1]);
    } else {
      succeed(at);
    }
    answering = 0;
    if (oneShot) {
      if (final == station) {
        oneShot = false;
        memory[0x581] = 0;
        finish();
      } else {
        ++station;
        memory[0x582] = station | 0x80;
      }
    }
    if (continuous) {
      if (final != station) {
        ++station;
        memory[0x582] = station | 0x80;
      } else if (memory[0x580] != 0) {
        station = 1;
        memory[0x582] = 0x81;
        final = memory[0x580];
        endOfCycle();
      } else {
        continuous = false;
        station = 0;
        finish();
      }
    }
  }

 private:
  bool stands() const { return (!continuous && !oneShot) || (memory[0x586] & 4) != 0; }

  void begin(int last) {
    station = 1;
    final = last;
    scanLed = true;
    clock[0] = 3 - memory[0x58E] % 4;
    diChanged = serialRose = error = false;
  }

  void disturb() {
    if (!noise || !link[1]) return;
    if (holdOff != 0) {
      if (holdOff == 500) {
        answering = 6;
        noiseHits = 0;
      }
      --holdOff;
      return;
    }
    if (noiseHits <= 10) {
      const double r = final >= 15 ? draw() * 13.0 : draw() * ((20 - final) * 13);
      // Nearest whole number is 1: from a half (which goes down to 0) to one and a half (which goes up to 2).
      if (std::fabs(r) > 0.5 && std::fabs(r) < 1.5) {
        ++noiseHits;
        answering = 6;
        noiseStation = station;
      }
    }
    if (noiseHits >= 11 && station == noiseStation) {
      ++noiseHits;
      answering = 6;
      if (noiseHits > 14) noiseHits = 0;
    }
  }

  void latch(int board, int value) {
    if (!clrHeld[board]) latched[board] = value;
  }

  void takeLine(int board, int at) {
    answering = board;
    answerStation = at;
    if (board < 5 && serialPending[board - 1]) answerSerial = true;
  }

  void hear(int board, int at, int line, int value, int itsClock, bool there) {
    if (at != line || itsClock != clock[0] || resetHeld[board] || !there) return;
    latch(board, value);
    if (answering == 0) {
      takeLine(board, at);
    } else {
      answering = 6;
    }
  }

  void fail(int& p) {
    int count = p / 16 % 8;
    if (count < 7) {
      ++count;
      p = count * 16 + p % 2;
      if (count != 7) error = true;
      if (count == 1) {
        if (memory[0x58A] < 255) ++memory[0x58A];
        chk1 = 5000;
        c1 = true;
      }
      if (count == 3) {
        if (memory[0x58C] < 255) ++memory[0x58C];
        chk2 = 5000;
        c2 = true;
      }
    }
    p |= 4;
    if (count > 2) p |= 8;
  }

  void succeed(int at) {
    const int b = answering;
    int& order = memory[at];
    const int kept = order & 0xC0;
    const int mode = order / 16 % 4;
    const bool moves = handshake[b] || retry == 0;
    int low = 0;
    int high = 0;
    if (command % 8 == 0) {
      low = di[2 * b - 2];
      high = di[2 * b - 1];
    } else if (b == 5) {
      // Neither counters nor a serial port.
    } else if (command % 8 == 7) {
      low = serialData[2 * b - 2];
      high = serialData[2 * b - 1];
      serialPending[b - 1] = false;
    } else {
      const int counter = 12 * (b - 1) + 2 * (command % 8 - 1);
      if (command > 8) counters[counter] = counters[counter + 1] = 0;
      low = counters[counter];
      high = counters[counter + 1];
    }

    if (command > 6) {
      order = kept;
    } else if (command == 6) {
      if (mode == 1 || mode == 3) order = kept;
      if (mode == 2) order = kept + 0x20;
    } else if (command != 0 || moves) {
      if (mode == 1) order = kept;
      if (mode > 1) ++order;
    }

    const int target = 0x100 + 0x80 * (command % 8) + 2 * answerStation;
    int changedLow = 0;
    int changedHigh = 0;
    if (command % 8 != 0) {
      memory[target] = low;
      memory[target + 1] = high;
    } else if (moves) {
      changedLow = memory[target] ^ low;
      changedHigh = memory[target + 1] ^ high;
      memory[target] = low;
      memory[target + 1] = high;
    }

    int& p = memory[at + 1];
    if (command % 8 == 7 || !answerSerial) {
      p = 0;
    } else {
      if (p % 2 == 0) serialRose = true;
      p = 1;
    }
    const int mask = 0x500 + 2 * answerStation;
    if ((changedLow & memory[mask]) != 0 || (changedHigh & memory[mask + 1]) != 0) {
      p |= 2;
      diChanged = true;
      if ((memory[0x587] & 1) != 0) {
        memory[0x586] |= 1;
        intLine();
      }
    }
  }

  void finish() {
    memory[0x582] = 0;
    scanLed = false;
    memory[0x586] |= memory[0x587] & 0x80;
    memory[0x588] |= memory[0x589] & 0x80;
    endOfCycle();
  }

  void endOfCycle() {
    int seen = 8;
    if (serialRose && memory[0x583] % 2 == 0) seen |= 0x10;
    if (c1) seen |= 0x20;
    if (c2) seen |= 0x40;
    memory[0x588] |= seen & memory[0x589];
    if (diChanged) seen |= 6;
    memory[0x586] |= seen & memory[0x587];
    intLine();
    memory[0x583] = (diChanged ? 1 : 0) + (serialRose ? 2 : 0) + (error ? 4 : 0);
    diChanged = serialRose = error = c1 = c2 = false;
  }

  void intLine() { intPicture = 1 + (memory[0x586] != 0 ? 1 : 0) + (memory[0x588] != 0 ? 2 : 0); }
};

}  // namespace zelvs
