// Every shared variable of the simulator, one row each: its type, name and, for arrays, the first and last index.
// The rows make the variables themselves (state/state.h) and the table by which the script reaches them by name
// (state/variableNames.cpp). All start at 0. Flags hold kTrue or kFalse.
//
// No include guard: whoever includes this file defines SHARED and SHARED_ARRAY first.

// ---- The chip's memory and what the windows last showed of it

// The whole address space of the center chip: 0x000 to 0x57F data, 0x580 to 0x58F registers, 0x590 to 0x595 name.
SHARED_ARRAY(std::uint8_t, chipMemory, 0, kChipMemorySize - 1)
SHARED_ARRAY(std::uint8_t, chipMemoryShown, 0, kChipMemorySize - 1)  // as the memory windows last painted it
SHARED_ARRAY(std::uint8_t, registerLowShown, 1, 8)                   // index: row of frmRegister
SHARED_ARRAY(std::uint8_t, registerHighShown, 1, 8)
SHARED(Flag, forceMemoryRepaint)  // true: the next refresh repaints every cell

// ---- Application

SHARED(Flag, startupDone)             // false during start-up and restart
SHARED(std::int16_t, runMode)         // RunMode
SHARED(std::int16_t, processStep)     // 0 to 8, progress of the splash, never reset
SHARED(Flag, beepDeviceOpen)          // the wave device has opened the beep sound
SHARED(std::int32_t, mdiClientHandle) // the frame's client area, taken from the parent of frmDumpCDIO
SHARED(std::int16_t, kairozuCurrent)  // schematic that frmKAIROZU shows, a board index
SHARED(std::int16_t, serialEditBoard) // 0 to 3: board whose serial input frmEditSerial edits

// ---- Settings, from the configuration file

SHARED(std::int16_t, cableConnection)          // 1 plugs all cables when the panel loads
SHARED(std::int16_t, memoryClear)              // not 0 clears the memory at start, 0 fills it with random bytes
SHARED(std::int16_t, cpuType)                  // 0 to 3; bit 0: 8-bit bus, bit 1: big endian
// [0] boards 1 and 2, [1] boards 3 and 4, [2] board 5. A list position (station - 1) as read from the file; the
// panel replaces it by the station number, 1 to 63, when it loads.
SHARED_ARRAY(std::int16_t, saSetting, 0, 2)
SHARED_ARRAY(std::int16_t, clockSetting, 0, 3)     // 0 48MHz, 1 24MHz, 2 12MHz; [0] QVT60, then boards 1, 3, 5
SHARED_ARRAY(std::int16_t, cascadeSetting, 1, 2)   // 1: boards 1 and 2, 3 and 4 cascaded
SHARED_ARRAY(std::int16_t, transferSetting, 0, 4)  // 0 full duplex, 1 half; [1] to [4] are copies of [0]
SHARED_ARRAY(std::int16_t, openWindow, 1, 5)       // frmRegister, frmHint, frmDumpCDIO, frmDumpC17, frmDumpDRC
SHARED(std::int16_t, ioBoardMode)                  // 0 to 7, IOS mode of board 5
SHARED(std::int16_t, ioBoardCounterMode)           // 0 to 3, counter mode of board 5
SHARED(std::uint8_t, boardFullHalf)                // the jumper as BCR bit 4: 16 full duplex, 0 half

// ---- Scan state of the center chip

SHARED(Flag, continuousScanActive)
SHARED(Flag, oneShotScanActive)
SHARED(std::int16_t, finalStation)        // last station of the running scan
SHARED(std::uint8_t, currentStation)      // station being polled, 1 to finalStation, 0 when idle
SHARED(std::int16_t, controlWordAddress)  // currentStation times 2
SHARED(std::int16_t, polledStation)       // station number on the line in this step
SHARED(std::uint8_t, polledCommand)       // low nibble of the control word's low byte
SHARED(std::uint8_t, polledRetryFlag)     // 4 or 0: bit 2 of the report byte as it stood at poll time
SHARED(std::int16_t, answeringBoard)      // 0 nobody, 1 to 5 that board, 6 the line is unusable
SHARED(std::int16_t, answeringStation)    // station number of the answering board
SHARED(Flag, answerSerialFlag)            // the answering board holds serial data
SHARED(Flag, diChangedThisCycle)          // a masked DI change was seen
SHARED(Flag, serialRoseThisCycle)         // a station's serial flag rose
SHARED(Flag, errorThisCycle)              // a failure raised an error count to less than 7
SHARED(Flag, c1CountedThisCycle)
SHARED(Flag, c2CountedThisCycle)
SHARED(std::int16_t, intLinePictureShown) // image last put on the interrupt line indicator
SHARED(std::int16_t, intLinePicture)      // wanted image: 1 none, 2 INT0, 3 INT1, 4 both
SHARED(std::int16_t, chk1LedTimer)        // steps left until the LED goes dark
SHARED(std::int16_t, chk2LedTimer)
SHARED(std::int16_t, monLedTimer)

// ---- Write buffer of the 8-bit CPU bus

SHARED(Flag, writeTempHighValid)          // the buffer holds an odd-address byte
SHARED(Flag, writeTempLowValid)           // the buffer holds an even-address byte
SHARED(std::uint8_t, writeTempHighByte)
SHARED(std::uint8_t, writeTempLowByte)

// ---- Inputs and outputs of the boards

SHARED_ARRAY(std::int32_t, boardDo, 0, 4)        // DO word latched by board 1 to 4, index is the board
SHARED(std::int32_t, ioBoardDo)                  // DO word latched by board 5
SHARED(std::uint8_t, ioBoardDoLow)               // its low byte; bits 6 and 7 drive the motor
SHARED_ARRAY(Flag, boardClrHeld, 0, 4)           // CLR held, index is the board
SHARED(Flag, ioBoardClrHeld)
SHARED_ARRAY(Flag, boardResetHeld, 0, 4)         // RESET held, index is the board
SHARED(Flag, ioBoardResetHeld)
SHARED_ARRAY(std::uint8_t, boardDi, 0, 9)        // DI of board k: low byte at 2(k-1), high byte behind it
SHARED_ARRAY(std::uint8_t, boardCounters, 0, 49) // counter j (1 to 6) of board k: low byte at 12(k-1) + 2(j-1)
SHARED_ARRAY(Flag, serialPending, 0, 3)          // board 1 to 4 holds serial data that the center has not read
SHARED_ARRAY(std::uint8_t, serialData, 0, 7)     // serial word of board k: low byte at 2(k-1)

// ---- Noise and motor

SHARED(Flag, noiseHeld)              // the noise button is down
SHARED(std::int16_t, noiseHoldOff)   // quiet steps left after a press
SHARED(std::int16_t, noiseHits)
SHARED(std::int16_t, noiseStation)   // station of the last scattered hit
SHARED(std::int16_t, beltFrame)      // 1 to 3
SHARED(std::int16_t, triangleFrame)  // 1 to 4
SHARED(std::int16_t, motorReverse)   // 0 or 1
