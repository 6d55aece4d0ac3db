// The engine beside a second, plainly written link: thousands of steps under random settings and random users, and
// the two must agree after each one. ZELVS_MODEL_STEPS asks for more of them.

#include <deque>
#include <random>

#include "support/engineFixture.h"
#include "support/modelSeeds.h"
#include "support/plainModel.h"

namespace zelvs {
namespace {

constexpr int kSteps = 6000;

class RandomUser {
 public:
  explicit RandomUser(unsigned seed) : generator_(seed) {}
  int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(generator_); }
  bool chance(int in) { return below(in) == 0; }
  double unit() { return std::uniform_real_distribution<double>(0, 1)(generator_); }

 private:
  std::mt19937 generator_;
};

class LinkModelTest : public EngineTest, public testing::WithParamInterface<unsigned> {
 protected:
  RandomUser user{GetParam()};
  PlainModel model;

  void SetUp() override {
    EngineTest::SetUp();
    for (int address = 0; address < kChipMemorySize; ++address)
      model.memory[address] = chipMemory[address];
    model.draw = [this] {
      // Numbers near the edges of a hit come often; they reach the engine through its queue.
      const double range = model.final >= 15 ? 13.0 : (20 - model.final) * 13;
      const double u = user.chance(2) ? (0.25 + 1.5 * user.unit()) / range : user.unit();
      queueRandom(u);
      ++drawn;
      return u;
    };
  }

  void put(int address, int value) {
    model.memory[address] = value;
    chipMemory[address] = static_cast<std::uint8_t>(value);
  }

  void setAddress(int pair) {
    // Near each other, so that boards collide and slaves stand beside masters.
    const int station = user.chance(8) ? 1 + user.below(63) : 1 + user.below(7);
    model.sa[pair] = station;
    saSetting[pair] = static_cast<std::int16_t>(station);
  }

  void setClock(int index) {
    const int clock = user.chance(4) ? user.below(4) : 0;
    model.clock[index] = clock;
    clockSetting[index] = static_cast<std::int16_t>(clock);
  }

  void setLink(int index) {
    constexpr int kConnector[] = {0, 1, 3};
    model.link[index] = !user.chance(4);
    frmHard->picBOARD2_RXD(kConnector[index]).Tag = model.link[index] ? "1" : user.chance(2) ? "0" : "";
  }

  void setBridge(int pair) {
    model.bridge[pair] = !user.chance(3);
    frmHard->picBridge(pair).Visible = model.bridge[pair];
  }

  void holdButton() {
    const int board = 1 + user.below(5);
    const bool held = user.chance(3);
    const bool reset = user.chance(2);
    (reset ? model.resetHeld : model.clrHeld)[board] = held;
    Flag& flag = reset ? (board == 5 ? ioBoardResetHeld : boardResetHeld[board])
                       : (board == 5 ? ioBoardClrHeld : boardClrHeld[board]);
    flag = held ? kTrue : kFalse;
  }

  void setHandshake() {
    const int board = 1 + user.below(5);
    model.handshake[board] = user.chance(2);
    frmHard->picSSB(board - 1).Tag = model.handshake[board] ? "1" : user.chance(2) ? "0" : "";
  }

  void changeInputs() {
    const int byte = user.below(10);
    model.di[byte] ^= 1 << user.below(8);
    boardDi[byte] = static_cast<std::uint8_t>(model.di[byte]);
    const int counter = user.below(50);
    model.counters[counter] = user.below(256);
    boardCounters[counter] = static_cast<std::uint8_t>(model.counters[counter]);
    if (!user.chance(4)) return;
    const int board = user.below(4);
    for (const int i : {2 * board, 2 * board + 1}) {
      model.serialData[i] = user.below(256);
      serialData[i] = static_cast<std::uint8_t>(model.serialData[i]);
    }
    model.serialPending[board] = true;
    serialPending[board] = kTrue;
  }

  void workCpu() {
    const int station = 1 + user.below(8);
    switch (user.below(8)) {
      case 0:
        put(2 * station, user.below(256));
        break;
      case 1:
        put(0x80 + 2 * station + user.below(2), user.below(256));
        break;
      case 2:
        put(0x500 + 2 * station + user.below(2), user.below(256));
        break;
      case 3:
        put(user.chance(2) ? kInt0Enable : kInt1Enable, user.below(256));
        break;
      case 4:
        put(user.chance(2) ? kInt0Status : kInt1Status, 0);
        break;
      case 5:
        put(user.chance(4) ? kScrHigh : kScrLow, user.chance(3) ? 0 : 1 + user.below(user.chance(4) ? 63 : 9));
        break;
      case 6:
        put(user.chance(2) ? kC1crLow : kC2crLow, user.chance(2) ? 254 : 0);
        break;
      default:
        put(kBcrLow, user.chance(4) ? user.below(32) : 0x13);
    }
  }

  void pressNoise() {
    model.noise = !model.noise;
    noiseHeld = model.noise ? kTrue : kFalse;
    if (!model.noise) return;
    // A full hold-off hides the scatter for long: mostly the user has held the button for a while already.
    model.holdOff = user.chance(3) ? 500 : user.below(3);
    noiseHoldOff = static_cast<std::int16_t>(model.holdOff);
  }

  void act() {
    switch (user.below(40)) {
      case 0:
        setAddress(user.below(3));
        break;
      case 1:
        setClock(1 + user.below(3));
        break;
      case 2:
        setLink(user.below(3));
        break;
      case 3:
        setBridge(user.below(2));
        break;
      case 4:
        holdButton();
        break;
      case 5:
        setHandshake();
        break;
      case 6:
        if (user.chance(4)) pressNoise();
        break;
      default:
        if (user.chance(2)) {
          changeInputs();
        } else {
          workCpu();
        }
    }
  }

  testing::AssertionResult agree() {
    for (int address = 0; address < kChipMemorySize; ++address) {
      if (model.memory[address] == chipMemory[address]) continue;
      return testing::AssertionFailure() << "byte " << std::hex << address << ": plain " << model.memory[address]
                                         << ", engine " << int{chipMemory[address]};
    }
    const auto flag = [](bool on) { return on ? kTrue : kFalse; };
    const struct {
      const char* name;
      int plain;
      int engine;
    } rows[] = {
        {"continuousScanActive", flag(model.continuous), continuousScanActive},
        {"oneShotScanActive", flag(model.oneShot), oneShotScanActive},
        {"finalStation", model.final, finalStation},
        {"currentStation", model.station, currentStation},
        {"answeringBoard", model.answering, answeringBoard},
        {"answeringStation", model.answerStation, answeringStation},
        {"answerSerialFlag", flag(model.answerSerial), answerSerialFlag},
        {"polledCommand", model.command, polledCommand},
        {"polledRetryFlag", model.retry, polledRetryFlag},
        {"diChangedThisCycle", flag(model.diChanged), diChangedThisCycle},
        {"serialRoseThisCycle", flag(model.serialRose), serialRoseThisCycle},
        {"errorThisCycle", flag(model.error), errorThisCycle},
        {"c1CountedThisCycle", flag(model.c1), c1CountedThisCycle},
        {"c2CountedThisCycle", flag(model.c2), c2CountedThisCycle},
        {"chk1LedTimer", model.chk1, chk1LedTimer},
        {"chk2LedTimer", model.chk2, chk2LedTimer},
        {"monLedTimer", model.mon, monLedTimer},
        {"clockSetting(0)", model.clock[0], clockSetting[0]},
        {"noiseHoldOff", model.holdOff, noiseHoldOff},
        {"noiseHits", model.noiseHits, noiseHits},
        {"noiseStation", model.noiseStation, noiseStation},
        {"intLinePicture", model.intPicture, intLinePicture},
        {"ioBoardDo", model.latched[5], ioBoardDo},
        {"ioBoardDoLow", model.latched[5] % 256, ioBoardDoLow},
        {"picScanLed", model.scanLed ? 1 : 0, frmHard->picScanLed.Tag == "1" ? 1 : 0},
        {"picChkLED(0)", model.chk1 > 0 ? 2 : 1, frmHard->picChkLED(0).Picture.get().image},
        {"picChkLED(1)", model.chk2 > 0 ? 2 : 1, frmHard->picChkLED(1).Picture.get().image},
        {"picB1_LED(5)", model.mon > 0 ? 2 : 1, frmHard->picB1_LED(5).Picture.get().image},
    };
    for (const auto& row : rows) {
      if (row.plain == row.engine) continue;
      return testing::AssertionFailure() << row.name << ": plain " << row.plain << ", engine " << row.engine;
    }
    for (int board = 1; board <= 4; ++board) {
      if (model.latched[board] != boardDo[board]) return testing::AssertionFailure() << "DO of board " << board;
      if (flag(model.serialPending[board - 1]) != serialPending[board - 1]) {
        return testing::AssertionFailure() << "serialPending of board " << board;
      }
    }
    for (int i = 0; i < 50; ++i) {
      if (model.counters[i] != boardCounters[i]) return testing::AssertionFailure() << "boardCounters(" << i << ")";
    }
    return testing::AssertionSuccess();
  }

  /// What hardly ran has shown little. Among thousands of sessions there are idle ones.
  static void TearDownTestSuite() {
    constexpr int kLeastPolls = kSteps / 10;
    EXPECT_GT(polls, sessions * kLeastPolls);
    EXPECT_GT(goodAnswers, sessions * kLeastPolls / 4);
  }

  int drawn = 0;
  // Of all sessions:
  static inline int sessions = 0;
  static inline int polls = 0;
  static inline int goodAnswers = 0;
};

TEST_P(LinkModelTest, TheEngineDoesAsThePlainLinkDoes) {
  ++sessions;
  for (int pair = 0; pair < 3; ++pair)
    setAddress(pair);
  for (int i = 0; i < kSteps; ++i) {
    if (user.chance(2)) act();
    // Nothing is polled for ever behind a halt or a scan that nobody starts again.
    if (user.chance(50)) put(kInt0Status, 0);
    if (!model.continuous && !model.oneShot && user.chance(10)) put(kScrLow, 1 + user.below(8));
    const int station = model.station;
    model.step();
    simulationStep();
    ASSERT_TRUE(agree()) << "after step " << i;
    if (model.station != station) ++polls;
    if (model.answerStation == station && (model.memory[2 * station + 1] & 4) == 0) ++goodAnswers;
  }
  // Every number that the plain link drew was drawn by the engine too, and no more.
  constexpr double kNext = 0.123456;
  queueRandom(kNext);
  EXPECT_EQ(drawUniform(), kNext);
}

INSTANTIATE_TEST_SUITE_P(Seeds, LinkModelTest, modelSeeds(40, kSteps));

}  // namespace
}  // namespace zelvs
