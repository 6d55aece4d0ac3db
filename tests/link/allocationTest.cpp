// The step runs thousands of times a second: it must not go to the heap.

#include <cstdlib>
#include <new>

#include "support/engineFixture.h"

namespace {

bool theCounting = false;
long theAllocations = 0;

void* allocate(std::size_t size) {
  if (theCounting) ++theAllocations;
  if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
  throw std::bad_alloc();
}

}  // namespace

void* operator new(std::size_t size) {
  return allocate(size);
}
void* operator new[](std::size_t size) {
  return allocate(size);
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete[](void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
  std::free(memory);
}

namespace zelvs {
namespace {

class AllocationTest : public EngineTest {};

TEST_F(AllocationTest, TheCountItselfWorks) {
  theAllocations = 0;
  theCounting = true;
  const auto text = std::make_unique<std::string>(100, 'x');
  theCounting = false;
  EXPECT_GE(theAllocations, 2) << text->size();
}

TEST_F(AllocationTest, TenThousandStepsOfAllKindsAllocateNothing) {
  for (const int station : {2, 4})
    chipMemory[0x500 + 2 * station] = 0xFF;
  chipMemory[kInt0Enable] = chipMemory[kInt1Enable] = 0xFB;
  chipMemory[kScrLow] = 8;
  ioBoardMode = 7;
  theAllocations = 0;
  theCounting = true;
  for (int i = 0; i < 10000; ++i) {
    // DO and DI change, serial data comes, orders sweep, addresses collide, boards fall silent, noise strikes.
    for (int station = 1; station <= 6; ++station) {
      putDo(station, i * 0x1357 + station);
      order(station) = static_cast<std::uint8_t>(i + station);
    }
    for (int board = 1; board <= 5; ++board)
      putDi(board, i / 3 * board);
    serialPending[i % 4] = kTrue;
    saSetting[1] = static_cast<std::int16_t>(i / 64 % 3 + 1);
    clockSetting[3] = static_cast<std::int16_t>(i / 128 % 2);
    boardResetHeld[2] = i / 32 % 4 == 0 ? kTrue : kFalse;
    noiseHeld = i / 256 % 2 == 0 ? kTrue : kFalse;
    if (i % 1024 == 0) noiseHoldOff = 3;
    if (i % 700 == 0) chipMemory[kInt0Status] = chipMemory[kInt1Status] = 0;
    if (i % 2000 == 0) chk1LedTimer = chk2LedTimer = monLedTimer = 3;
    simulationStep();
  }
  theCounting = false;
  EXPECT_EQ(theAllocations, 0);
  EXPECT_GT(chipMemory[kC1crLow], 100) << "there were failures";
  EXPECT_NE(boardDo[1], 0);
  EXPECT_NE(ioBoardDo, 0);
}

}  // namespace
}  // namespace zelvs
