// The noise button on the line. Random numbers are queued, so that each draw is known.

#include <chrono>

#include "support/engineFixture.h"
#include "ui/gesture.h"

namespace zelvs {
namespace {

class NoiseTest : public EngineTest {
 protected:
  /// The button is held and its hold-off is over.
  void SetUp() override {
    EngineTest::SetUp();
    noiseHeld = kTrue;
  }

  /// True when the noise spoilt the poll of station 1 of a scan to final.
  static bool spoilt(int final, double u) {
    queueRandom(u);
    const int hits = noiseHits;
    chipMemory[kScrLow] = static_cast<std::uint8_t>(final);
    continuousScanActive = kTrue;
    finalStation = static_cast<std::int16_t>(final);
    currentStation = 1;
    report(1) = 0;
    simulationStep();
    EXPECT_EQ(noiseHits, answered(1) ? hits : hits + 1);
    return !answered(1);
  }
};

struct RangeRow {
  int final;
  double range;
};

class NoiseRangeTest : public NoiseTest, public testing::WithParamInterface<RangeRow> {};

TEST_P(NoiseRangeTest, HitsWhenTheDrawRoundsToOneWithTiesToEven) {
  const auto [final, range] = GetParam();
  const struct {
    double value;
    bool hit;
  } rows[] = {{0.0, false}, {0.25, false}, {0.499, false}, {0.501, true}, {1.0, true},
              {1.25, true}, {1.499, true}, {1.501, false}, {2.0, false},  {12.0, false}};
  for (const auto& row : rows) {
    noiseHits = 0;
    EXPECT_EQ(spoilt(final, row.value / range), row.hit) << row.value;
  }
}

INSTANTIATE_TEST_SUITE_P(Finals, NoiseRangeTest,
                         testing::Values(RangeRow{1, 19 * 13}, RangeRow{2, 18 * 13}, RangeRow{5, 15 * 13},
                                         RangeRow{14, 6 * 13}, RangeRow{15, 13}, RangeRow{16, 13}, RangeRow{63, 13}),
                         [](const auto& row) { return "Final" + std::to_string(row.param.final); });

TEST_F(NoiseTest, ExactHalvesRoundToTheEvenNeighbour) {
  // With a final station of 4 the range is 208: 1/416 and 3/416 of it are 0.5 and 1.5 to the last bit or not at all.
  const double half = 0.5 / 208;
  const double oneAndAHalf = 1.5 / 208;
  ASSERT_EQ(half * 208, 0.5);
  ASSERT_EQ(oneAndAHalf * 208, 1.5);
  EXPECT_FALSE(spoilt(4, half));
  EXPECT_FALSE(spoilt(4, oneAndAHalf));
}

TEST_F(NoiseTest, APressSpoilsItsFirstStepAndLeaves499QuietOnes) {
  noiseHeld = kFalse;
  noiseHits = 7;
  noiseStation = 4;
  gesture::press(*frmHard, &frmHard->picNoise);
  ASSERT_EQ(noiseHoldOff, 500);
  EXPECT_EQ(noiseHits, 7) << "the press itself touches the hold-off only";
  queueRandom(1.0 / 195);  // a hit for a scan of five stations, when it is drawn
  chipMemory[kScrLow] = 5;
  simulationStep();
  EXPECT_FALSE(answered(1));
  EXPECT_EQ(noiseHits, 0);
  EXPECT_EQ(noiseHoldOff, 499);
  EXPECT_EQ(noiseStation, 4);
  chipMemory[kC1crLow] = 0;
  steps(499);
  EXPECT_EQ(noiseHoldOff, 0);
  EXPECT_EQ(noiseHits, 0);
  EXPECT_EQ(int{chipMemory[kC1crLow]}, 0);
  simulationStep();
  EXPECT_EQ(noiseHits, 1) << "the queued number was not drawn before";
}

TEST_F(NoiseTest, ASecondPressInsideTheHoldOffStartsItAnew) {
  gesture::press(*frmHard, &frmHard->picNoise);
  chipMemory[kScrLow] = 5;
  steps(200);
  EXPECT_EQ(noiseHoldOff, 300);
  gesture::release(*frmHard, &frmHard->picNoise);
  steps(50);
  EXPECT_EQ(noiseHoldOff, 300) << "it does not run while the button is up";
  gesture::press(*frmHard, &frmHard->picNoise);
  EXPECT_EQ(noiseHoldOff, 500);
  chipMemory[kC1crLow] = 0;
  simulationStep();
  EXPECT_EQ(int{chipMemory[kC1crLow]}, 1);
  EXPECT_EQ(noiseHoldOff, 499);
}

TEST_F(NoiseTest, AReleaseKeepsTheHitsAndTheNextPressForgetsThem) {
  noiseHits = 6;
  gesture::press(*frmHard, &frmHard->picNoise);
  noiseHoldOff = 0;
  gesture::release(*frmHard, &frmHard->picNoise);
  EXPECT_EQ(noiseHeld, kFalse);
  EXPECT_EQ(noiseHits, 6);
  chipMemory[kScrLow] = 5;
  steps(5);
  EXPECT_EQ(noiseHits, 6);
  gesture::press(*frmHard, &frmHard->picNoise);
  simulationStep();
  EXPECT_EQ(noiseHits, 0);
}

TEST_F(NoiseTest, AnOpenLinkIntoPair2KeepsNoiseOutAndStopsTheHoldOff) {
  cutLink(1);
  noiseHoldOff = 500;
  noiseHits = 3;
  EXPECT_TRUE(answers(1));
  EXPECT_TRUE(answers(2));
  EXPECT_EQ(noiseHoldOff, 500);
  EXPECT_EQ(noiseHits, 3);
  noiseHoldOff = 0;
  queueRandom(1.0 / 13);
  EXPECT_TRUE(answers(1));
  EXPECT_EQ(drawUniform(), 1.0 / 13) << "nothing was drawn";
}

TEST_F(NoiseTest, NoiseSpoilsEveryBoardWhereverItStands) {
  for (int board = 1; board <= 5; ++board) {
    noiseHits = 0;
    queueRandom(1.0 / 13);
    EXPECT_FALSE(answers(board)) << board;
    EXPECT_EQ(noiseStation, board);
  }
}

TEST_F(NoiseTest, AFirstAndAThirdLinkThatAreOpenDoNotKeepNoiseOut) {
  cutLink(3);
  queueRandom(1.0 / 13);
  EXPECT_FALSE(answers(1));
}

/// Eleven hits scattered over the stations, the last of them at lastStation.
void scatter(int lastStation) {
  noiseHits = 10;
  noiseStation = 0;
  queueRandom(1.0 / 13);
  chipMemory[kScrLow] = 63;
  continuousScanActive = kTrue;
  finalStation = 63;
  currentStation = static_cast<std::uint8_t>(lastStation);
  simulationStep();
}

TEST_F(NoiseTest, AfterElevenHitsItSitsOnTheLastStationForFourPollsInARow) {
  scatter(3);
  EXPECT_EQ(noiseStation, 3);
  EXPECT_EQ(int{report(3)} >> 4, 1);
  // A number that would hit: nothing is drawn while the noise sits.
  queueRandom(1.0 / 13);
  for (int polled = 2; polled <= 4; ++polled) {
    poll(2);
    EXPECT_TRUE(answered(2));
    poll(4);
    EXPECT_TRUE(answered(4));
    poll(3);
    EXPECT_EQ(int{report(3)} >> 4, polled);
  }
  EXPECT_EQ(noiseHits, 0);
  EXPECT_EQ(int{chipMemory[kC1crLow]}, 1);
  EXPECT_EQ(int{chipMemory[kC2crLow]}, 1);
  // And the scatter begins anew with the number that waited.
  EXPECT_FALSE(answers(2));
  EXPECT_EQ(noiseHits, 1);
}

TEST_F(NoiseTest, WithTenHitsItStillScatters) {
  noiseHits = 10;
  queueRandom(0.5);
  EXPECT_TRUE(answers(1));
  EXPECT_EQ(noiseHits, 10);
}

TEST_F(NoiseTest, NothingIsDrawnWhileTheButtonIsUp) {
  noiseHeld = kFalse;
  queueRandom(1.0 / 13);
  for (int board = 1; board <= 5; ++board)
    EXPECT_TRUE(answers(board));
  EXPECT_EQ(drawUniform(), 1.0 / 13);
}

TEST_F(NoiseTest, AHeldButtonHitsLongScansAboutOnceInThirteenPolls) {
  constexpr int kPolls = 13000;
  int hits = 0;
  seedRandom(20240101123456.0);
  for (int i = 0; i < kPolls; ++i) {
    noiseHits = 0;
    poll(1);
    hits += noiseHits;
  }
  EXPECT_NEAR(hits, kPolls / 13, 150);
}

TEST(RandomSourceTest, NumbersLieInTheUnitRangeAndDifferWithTheSeed) {
  const auto firstOf = [](double seed) {
    seedRandom(seed);
    return drawUniform();
  };
  for (int i = 0; i < 10000; ++i) {
    const double u = drawUniform();
    ASSERT_GE(u, 0);
    ASSERT_LT(u, 1);
  }
  EXPECT_EQ(firstOf(20240101120000.0), firstOf(20240101120000.0));
  EXPECT_NE(firstOf(20240101120000.0), firstOf(20240101120001.0));
}

TEST(RandomSourceTest, AReseedLeavesQueuedNumbersInPlace) {
  queueRandom(0.25);
  queueRandom(0.75);
  reseedRandom();
  seedRandom(1);
  EXPECT_EQ(drawUniform(), 0.25);
  EXPECT_EQ(drawUniform(), 0.75);
}

TEST(RandomSourceTest, AClearedStateHasNothingQueuedAndDrawsAsAtFirst) {
  clearState();
  const double first = drawUniform();
  queueRandom(2);
  seedRandom(1);
  clearState();
  EXPECT_EQ(drawUniform(), first);
}

}  // namespace
}  // namespace zelvs
