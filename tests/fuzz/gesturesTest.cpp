// Random sessions without a screen. The model's hands stand for mouse and keyboard, and the sanitizers watch.

#include "fuzz/session.h"
#include "ui/headless/headlessHands.h"

namespace zelvs {
namespace {

class ScreenlessPlatform final : public ScriptedPlatform {
 public:
  explicit ScreenlessPlatform(const Screen& screen) : screen_(screen) {}
  Screen screen() override { return screen_; }

 private:
  Screen screen_;
};

class ScreenlessStage final : public Stage {
 public:
  explicit ScreenlessStage(const Screen& screen) : platform_(screen) { setPlatform(&platform_); }
  ScriptedPlatform& platform() override { return platform_; }
  Hands& hands() override { return hands_; }

 private:
  ScreenlessPlatform platform_;
  HeadlessHands hands_;
};

class RandomGesturesTest : public SessionTest {
 protected:
  RandomGesturesTest() : SessionTest(std::chrono::seconds(20)) {}
  std::unique_ptr<Stage> stage(const Screen& screen) override { return std::make_unique<ScreenlessStage>(screen); }
};

TEST_P(RandomGesturesTest, NothingBreaks) {
  constexpr unsigned kLines = 1500;
  play(kLines);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomGesturesTest, wantedSeeds(16));

}  // namespace
}  // namespace zelvs
