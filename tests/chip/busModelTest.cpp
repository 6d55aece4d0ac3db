// The bus beside a second, plainly written one: thousands of random accesses by two readers under random CPU types,
// scans and settings, and the two must agree on every byte and every word of theirs after each one. ZELVS_MODEL_STEPS
// asks for more of them.

#include <map>
#include <random>

#include "chip/bus.h"
#include "support/modelSeeds.h"
#include "support/plainBus.h"
#include "support/program.h"

namespace zelvs {
namespace {

constexpr int kAccesses = 20000;

class BusModelTest : public ProgramTest, public testing::WithParamInterface<unsigned> {
 protected:
  void SetUp() override {
    start();
    for (int index = 0; index < kChipMemorySize; ++index)
      put(index, below(256));
    for (int index = kHprLow; index <= kHprHigh; ++index)
      put(index, 0x10);
    put(kBcrLow, 0x13);
  }

  int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(generator_); }
  bool chance(int in) { return below(in) == 0; }

  void put(int index, int value) {
    model.memory[index] = value;
    chipMemory[index] = static_cast<std::uint8_t>(value);
  }

  /// What stands behind the CPU's back: its type, the scan, the jumpers, the engine.
  void changeTheBench() {
    switch (below(5)) {
      case 0:
        model.cpu = below(4);
        cpuType = static_cast<std::int16_t>(model.cpu);
        break;
      case 1:
        model.lamp = chance(2);
        frmHard->picScanLed.Tag = model.lamp ? "1" : chance(2) ? "0" : "";
        break;
      case 2:
        model.continuous = chance(3);
        model.oneShot = chance(3);
        continuousScanActive = model.continuous ? kTrue : kFalse;
        oneShotScanActive = model.oneShot ? kTrue : kFalse;
        break;
      case 3:
        model.jumper = chance(3) ? 0 : 16;
        boardFullHalf = static_cast<std::uint8_t>(model.jumper);
        break;
      default:
        put(chance(2) ? 0x580 + below(16) : below(0x580), below(256));
        for (const int half : {kHprLow, kHprHigh})
          put(half, model.memory[half] & 0x11);
    }
  }

  int someAddress() {
    // Edges of areas and ranges, registers, a few words that meet again and again, and anywhere.
    constexpr int kEdges[] = {0x000, 0x07E, 0x080, 0x0FE, 0x100, 0x17E, 0x180,
                              0x4FC, 0x4FE, 0x500, 0x57E, 0x590, 0x7FE};
    switch (below(4)) {
      case 0:
        return kEdges[below(13)] + below(2);
      case 1:
        return 0x580 + below(16);
      case 2:
        return 0x100 + below(4);
      default:
        return below(kChipMemorySize);
    }
  }

  /// Small numbers, station 1 and single bits come often.
  int someByte() { return chance(3) ? below(256) : chance(2) ? below(3) : 1 << below(8); }

  void read(int address) {
    const int reader = below(2);
    const ByteRead byte = readByte(address, buffers[reader]);
    ASSERT_EQ(byte.value, model.readByte(address, plainBuffers[reader]));
    ASSERT_EQ(wordsOf(byte.source), model.guide);
    ++seen[model.guide];
    ASSERT_EQ(readWord(address), model.readWord(address));
  }

  void write(int address) {
    const bool asWord = model.cpu % 2 == 0 && chance(2);
    const int index = asWord ? address & ~1 : indexOfAddress(address);
    const Answer first = askWrite(index);
    ASSERT_EQ(wordsOf(first), model.ask(index));
    ++seen[model.ask(index)];
    if (chance(2) && first != Answer::Ok) return;
    const int value = asWord ? (chance(2) ? 0 : someByte()) * 256 + someByte() : someByte();
    const Written written = asWord ? writeWord(address, static_cast<std::uint16_t>(value))
                                   : writeByte(address, static_cast<std::uint8_t>(value));
    const std::string words = asWord ? model.writeWord(address, value) : model.writeByte(address, value);
    ASSERT_EQ(wordsOf(written.answer), words);
    ASSERT_EQ(written.readSideChanged, model.readSideMoved);
    ASSERT_EQ(toldInBox(written.answer), words.find('\n') != std::string::npos) << "what the box tells has two parts";
    ++seen[words];
  }

  void compare() {
    for (int index = 0; index < kChipMemorySize; ++index)
      ASSERT_EQ(chipMemory[index], model.memory[index]) << std::hex << index;
    ASSERT_EQ(writeTempLowValid != kFalse, model.heldEven >= 0);
    ASSERT_EQ(writeTempHighValid != kFalse, model.heldOdd >= 0);
    if (model.heldEven >= 0) {
      ASSERT_EQ(writeTempLowByte, model.heldEven);
    }
    if (model.heldOdd >= 0) {
      ASSERT_EQ(writeTempHighByte, model.heldOdd);
    }
    ASSERT_EQ(interruptLines(), model.lines());
  }

  PlainBus model;
  ReadBuffer buffers[2]{};
  std::array<int, 2> plainBuffers[2]{};
  std::map<std::string, int> seen;

 private:
  std::mt19937 generator_{GetParam()};
};

TEST_P(BusModelTest, AgreesWithThePlainBus) {
  for (int access = 0; access < kAccesses; ++access) {
    SCOPED_TRACE(access);
    if (chance(8)) changeTheBench();
    const int address = someAddress();
    if (chance(3)) {
      read(address);
    } else {
      write(address);
    }
    compare();
    if (HasFatalFailure()) return;
  }
  // Thirteen answers, two of them with the same words, and three places that a byte comes from.
  EXPECT_EQ(seen.size(), 12u + 3u);
  for (const auto& [words, times] : seen)
    EXPECT_GT(times, 10) << words;
}

INSTANTIATE_TEST_SUITE_P(Seeds, BusModelTest, modelSeeds(8, kAccesses));

}  // namespace
}  // namespace zelvs
