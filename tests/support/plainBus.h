#pragma once

#include <array>
#include <string>

namespace zelvs {

/// The CPU's bus a second time, as plain integers and ladders of ifs; answers are the words themselves. Tests run it
/// beside the real one and compare the two after each access.
struct PlainBus {
  std::array<int, 2048> memory{};
  int cpu = 0;
  bool lamp = false;
  bool continuous = false;
  bool oneShot = false;
  int jumper = 16;
  int heldEven = -1;  // the write buffer, -1: empty
  int heldOdd = -1;
  std::string guide;           // of the last read
  bool readSideMoved = false;  // by the last write

  int place(int address) const { return cpu < 2 ? address : address + 1 - 2 * (address % 2); }

  int readByte(int address, std::array<int, 2>& kept) {
    const int at = place(address);
    guide = "メモリよりデータを取得しました。";
    if (cpu == 0 || cpu == 2) return memory[at];
    if (memory[0x584] % 2 == 1) {
      memory[0x584] -= 1;
      guide = "リードテンポラリバッファからデータを取得しました。";
      return kept[at % 2];
    }
    if (memory[0x584] / 16 % 2 == 0 || address < 0x80 || address > 0x4FF) return memory[at];
    kept[0] = memory[at - at % 2];
    kept[1] = memory[at - at % 2 + 1];
    memory[0x584] += 1;
    guide = "リードテンポラリバッファにデータを格納しました。";
    return kept[at % 2];
  }

  int readWord(int address) const {
    const int even = address - address % 2;
    return memory[even] + 256 * memory[even + 1];
  }

  std::string ask(int at) const {
    if (at >= 0x590) return "この番地には書き込めません。";
    if (at == 0x582 || at == 0x583) return "このレジスタはリードオンリーです。";
    if ((at == 0x58E || at == 0x58F) && (continuous || oneShot)) return "スキャン中はライトプロテクト。";
    if (at >= 0x500 || !lamp) return "";
    if (at >= 0x100) return "スキャン中はライトプロテクト";
    if (at < 0x80 && at % 2 == 1 && cpu % 2 == 1) return "スキャン中、コントロールワードの上位バイトはライトプロテクト";
    return "";
  }

  std::string writeByte(int address, int value) {
    readSideMoved = false;
    const int at = place(address);
    if (at >= 0x590) return ask(at);
    if (at >= 0x580) return at % 2 == 0 ? writeRegister(at, -1, value) : writeRegister(at - 1, value, -1);
    const bool bytes = cpu == 1 || cpu == 3;
    if (bytes && memory[0x585] / 16 % 2 == 1 && memory[0x585] % 2 == 0 && at >= 0x80 && at <= 0x4FE) {
      (at % 2 == 0 ? heldEven : heldOdd) = value;
      memory[0x585] += 1;
      return "ハザードプロテクト中。ライトテンポラリバッファへ書き込みました。";
    }
    memory[at] = value;
    if (bytes && heldOdd >= 0) memory[at - at % 2 + 1] = heldOdd;
    if (bytes && heldEven >= 0) memory[at - at % 2] = heldEven;
    emptyBuffer();
    return "";
  }

  std::string writeWord(int address, int value) {
    readSideMoved = false;
    const int even = address - address % 2;
    if (even >= 0x590) return ask(even);
    if (even >= 0x580) return writeRegister(even, value / 256, value % 256);
    emptyBuffer();
    memory[even] = value % 256;
    if (even < 0x80 && lamp && memory[even + 1] != value / 256)
      return "スキャン中、コントロールワードの上位バイトはライトプロテクト。";
    memory[even + 1] = value / 256;
    return "";
  }

  int lines() const { return (memory[0x586] > 0 ? 1 : 0) + (memory[0x588] > 0 ? 2 : 0); }

 private:
  void emptyBuffer() {
    heldEven = heldOdd = -1;
    memory[0x585] -= memory[0x585] % 2;
  }

  /// high, low: -1 when that byte is not written.
  std::string writeRegister(int even, int high, int low) {
    const int full = memory[0x58E] & 16;
    const std::string bcr = "ＢＣＲレジスタのフル/ハーフ設定がハードウェア設定と一致していません。\r\n\r\n";
    const std::string notStarted = "ハードウェアの設定を変更するか、ＢＣＲの値を変更するまで開始しません。";
    if (even == 0x580) {
      bool bad = false;
      if (high > 0 && low > 0) bad = true;
      if (high > 0 && continuous) bad = true;
      if (high > 0 && oneShot) bad = true;
      if (low > 0 && oneShot) bad = true;
      if (full != 0 && high >= 0 && high % 64 == 1) bad = true;
      if (full != 0 && low >= 0 && low % 64 == 1) bad = true;
      if (bad) return "入力された値が不適切であるため、書き込まれません。";
      if (full != jumper) {
        if (high >= 0 && low >= 0) return bcr + "ハードウェアの設定を変更するか、ＢＣＲの値を変更してください。";
        if (high >= 0) return bcr + notStarted;
        return "通信設定がハードウェア設定と一致していません。\r\n\r\n"
               "ハードウェアの設定を変更するか、レジスタの値を変更するまで停止します。";
      }
      if (low >= 0) memory[0x580] = low % 64;
      if (high >= 0) memory[0x581] = high % 64;
      return "";
    }
    if (even == 0x582) return ask(even);
    if (even == 0x584) {
      if (high >= 0) memory[0x585] = (memory[0x585] & 1) + (high & 16);
      const int before = memory[0x584];
      if (low >= 0) memory[0x584] = (memory[0x584] & 1) + (low & 16);
      readSideMoved = memory[0x584] != before;
      return "";
    }
    if (even == 0x586 || even == 0x588) {
      if (low >= 0) memory[even] &= 255 - low;
      if (high >= 0) memory[even + 1] = even == 0x586 ? high : high / 8 * 8;
      return "";
    }
    if (even == 0x58A || even == 0x58C) {
      if (low >= 0 && low % 2 == 1) memory[even] = 0;
      return "";
    }
    if (continuous || oneShot) return ask(even);
    if (high >= 0) memory[0x58F] = high % 8;
    if (low < 0) return "";
    memory[0x58E] = low & 19;
    return (low & 16) == jumper ? "" : bcr + notStarted;
  }
};

}  // namespace zelvs
