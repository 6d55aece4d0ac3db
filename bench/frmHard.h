#pragma once

#include <functional>

#include "ui/controls.h"
#include "ui/form.h"
#include "ui/timer.h"

namespace zelvs {

/// Widths of the panel in twips: the right column of boards exists only when it has something to show.
inline constexpr double kNarrowPanel = 7890;
inline constexpr double kWidePanel = 13330;

// Boards by index of picBoard that the code knows by name.
inline constexpr int kCenterBoard = 0;
inline constexpr int kIoBoard = 5;

/// Pins of a board, and the first of board 5 in picPI.
inline constexpr int kPinsOfBoard = 16;
inline constexpr int kFirstIoPin = 64;

// Image numbers.
inline constexpr int kDark = 1, kLit = 2;                  // ilsLED_R, ilsLED_G
inline constexpr int kInputOff = 1, kInputOn = 2;          // ilsDIP1
inline constexpr int kSettingLow = 3, kSettingHigh = 4;    // ilsDIP1
inline constexpr int kCounterUp = 1, kCounterDown = 2;     // ilsCount
inline constexpr int kClrUp = 3, kClrDown = 4;             // ilsCount
inline constexpr int kResetUp = 1, kResetDown = 2;         // ilsRESET
inline constexpr int kNoiseUp = 1, kNoiseDown = 2;         // ilsNOISE
inline constexpr int kUpperPulled = 1, kUpperPlugged = 2;  // ilsCable
inline constexpr int kLowerPulled = 3, kLowerPlugged = 4;  // ilsCable

/// Plugged, present, high, lit: whatever a control's Tag of "1" says of it. One that nobody has written is not.
inline bool isOn(const Control& control) {
  return control.Tag == "1";
}

/// The panel with the seven boards. Much of the simulated hardware's state lives in these controls: a cable is
/// plugged because a connector's Tag is "1", a slave is there because its cable is visible, a pin is an output
/// because its Tag begins with "O". A Tag that nobody has written is empty, which is told from "0".
///
/// Boards by index of picBoard: 0 center, 1 to 4 QVT40 (2 and 4 the slaves of 1 and 3), 5 QVT50, 6 its motor board.
/// Pins of board k: 16 (k - 1) + bit; counter buttons of board k: 6 (k - 1) + counter, counted from 0.
class FrmHard final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Child;
  FrmHard();

  // Pictures. What the panel stores is the image number.
  ImageList ilsTriangle{"ilsTriangle", 9};  // 4 (1 - motorReverse) + triangleFrame
  ImageList ilsCount{"ilsCount", 4};        // counter button up, down, CLR button up, down
  ImageList ilsInt{"ilsInt", 4};            // no line, INT0, INT1, both
  ImageList ilsJumper{"ilsJumper", 2};      // full, half
  ImageList ilsNOISE{"ilsNOISE", 2};        // up, down
  ImageList ilsRESET{"ilsRESET", 2};        // up, down
  ImageList ilsCable{"ilsCable", 4};        // upper end unplugged, plugged, lower end unplugged, plugged
  ImageList ilsLED_R{"ilsLED_R", 2};        // dark, lit
  ImageList ilsLED_G{"ilsLED_G", 2};        // dark, lit
  ImageList ilsRSW{"ilsRSW", 16};           // digit + 1
  ImageList ilsDIP1{"ilsDIP1", 4};          // input switch off, on, setting switch low, high
  ImageList ilsDIP3{"ilsDIP3", 8};          // IOS mode + 1
  ImageList ilsMotor{"ilsMotor", 11};       // 1 to 3 belt frames, 4 to 11 duty levels

  // Pictures that never change.
  ImageList ilsBoardCenter{"ilsBoardCenter", 1};
  ImageList ilsBoardMaster{"ilsBoardMaster", 1};
  ImageList ilsBoardSlave{"ilsBoardSlave", 1};
  ImageList ilsBoardIo{"ilsBoardIo", 1};
  ImageList ilsBoardMotor{"ilsBoardMotor", 1};
  ImageList ilsChip{"ilsChip", 6};      // board + 1
  ImageList ilsPart{"ilsPart", 8};      // jack, driver, transformer, terminator, crystal, three spare parts
  ImageList ilsBus{"ilsBus", 1};        // the CPU's connector
  ImageList ilsHeader{"ilsHeader", 1};  // the slave's connector
  ImageList ilsSerial{"ilsSerial", 2};  // serial input circuit, pulses on its line
  ImageList ilsStrobe{"ilsStrobe", 2};  // DO strobe, DI strobe
  ImageList ilsMode{"ilsMode", 1};      // counter mode switch
  ImageList ilsPad{"ilsPad", 1};        // a pin to measure at
  ImageList ilsDrive{"ilsDrive", 1};    // motor drive circuit
  ImageList ilsCoil{"ilsCoil", 1};      // the middle of a network cable
  ImageList ilsBridge{"ilsBridge", 1};
  ImageList ilsMotorCable{"ilsMotorCable", 1};

  // Boards
  ControlArray<Shape> picShadow{this, "picShadow", 0, 6};
  ControlArray<PictureBox> picBoard{this, "picBoard", 0, 6};
  ControlArray<Label> lblBoardName{this, "lblBoardName", {0, 1, 2, 3, 4, 5, 7}};
  ControlArray<Label> lblSatteliteNo{this, "lblSatteliteNo", 0, 4};
  ControlArray<PictureBox> picQVT{this, "picQVT", 0, 5};
  ControlArray<PictureBox> picReset{this, "picReset", 0, 5};
  ControlArray<Frame> fraCounter{this, "fraCounter", 0, 4};
  ControlArray<Frame> fraPIO{this, "fraPIO", 0, 4};

  // Settings. Clock and jumper: 0 center, 1 board 1, 2 board 3, 3 board 5.
  ControlArray<PictureBox> picClock{this, "picClock", 0, 3};
  ControlArray<ComboBox> cmbClock{this, "cmbClock", 0, 3};
  ControlArray<Label> lblClock{this, "lblClock", 0, 3};
  ControlArray<PictureBox> picJumper{this, "picJumper", 0, 3};
  ControlArray<Label> lblHF{this, "lblHF", 0, 3};
  ControlArray<ComboBox> cmbSA{this, "cmbSA", 0, 2};    // boards 1, 3, 5
  ControlArray<PictureBox> picSA{this, "picSA", 0, 5};  // high and low digit of boards 1, 3, 5
  PictureBox picCPU{this, "picCPU"};
  ComboBox cmbCPUType{this, "cmbCPUType"};
  PictureBox picIOS{this, "picIOS"};
  ComboBox cmbIOS{this, "cmbIOS"};
  PictureBox picMode{this, "picMode"};
  ComboBox cmbMode{this, "cmbMode"};
  PictureBox picBPSS{this, "picBPSS"};
  Label lblPBPSS{this, "lblPBPSS"};

  // Line. Terminators and drivers: 0 and 1 the center's two ports, 2 board 1, 3 board 3, 4 board 5.
  ControlArray<PictureBox> picTermR{this, "picTermR", 0, 4};
  ControlArray<Label> lblRt{this, "lblRt", 0, 4};
  ControlArray<PictureBox> picTRX{this, "picTRX", 0, 4};
  ControlArray<PictureBox> picPTR{this, "picPTR", 0, 9};  // the odd ones serve full duplex only
  ControlArray<PictureBox> picBOARD1_RXD{this, "picBOARD1_RXD", 0, 1};
  ControlArray<PictureBox> picBOARD2_RXD{this, "picBOARD2_RXD", 0, 5};  // 0, 1 board 1; 2, 3 board 3; 4, 5 board 5
  ControlArray<PictureBox> picFConn{this, "picFConn", 0, 3};            // slave connector of board index + 1

  // Inputs and outputs of boards 1 to 4
  ControlArray<PictureBox> picSerialInt{this, "picSerialInt", 0, 3};
  ControlArray<PictureBox> picSE{this, "picSE", 0, 3};
  ControlArray<PictureBox> picSDI{this, "picSDI", 0, 3};
  ControlArray<PictureBox> picPO{this, "picPO", 0, 63};

  // Inputs and outputs of boards 1 to 5
  ControlArray<PictureBox> picCLR{this, "picCLR", 0, 4};
  ControlArray<PictureBox> picSSA{this, "picSSA", 0, 4};
  ControlArray<PictureBox> picSSB{this, "picSSB", 0, 4};
  ControlArray<PictureBox> picSTB{this, "picSTB", 0, 9};           // DO strobe, DI strobe of each board
  ControlArray<PictureBox> picCounter{this, "picCounter", 0, 25};  // 24 count and 25 clear of board 5
  ControlArray<PictureBox> picPI{this, "picPI", 0, 79};            // 64 to 79: the pins of board 5

  // Center board
  PictureBox picScanLed{this, "picScanLed"};
  ControlArray<PictureBox> picChkLED{this, "picChkLED", 0, 1};
  ControlArray<Label> lblB1_LED{this, "lblB1_LED", {0, 1, 2, 5}};
  PictureBox picInt{this, "picInt"};
  ControlArray<Label> lblMaker{this, "lblMaker", 0, 1};

  // Board 5 and its motor board
  ControlArray<PictureBox> picB1_LED{this, "picB1_LED", {5}};
  ControlArray<PictureBox> picCW{this, "picCW", 0, 3};
  ControlArray<Label> lblPWMTitle{this, "lblPWMTitle", 0, 3};
  ControlArray<Label> lblPWMSSA{this, "lblPWMSSA", 0, 1};
  Label lblSTB2{this, "lblSTB2"};
  PictureBox picPWMBridge{this, "picPWMBridge"};
  PictureBox picPWM{this, "picPWM"};
  Image imgBelt{this, "imgBelt"};
  PictureBox picTriangle{this, "picTriangle"};
  ControlArray<PictureBox> picPower{this, "picPower", 0, 5};

  // Table
  ControlArray<PictureBox> picBridge{this, "picBridge", 0, 1};
  ControlArray<PictureBox> picCableRole{this, "picCableRole", 0, 2};
  ControlArray<PictureBox> picCableUp{this, "picCableUp", 0, 2};
  ControlArray<PictureBox> picCableDn{this, "picCableDn", 0, 2};
  PictureBox picNoise{this, "picNoise"};

  // Pin numbers and names of parts. 164 names the noise button; the others are given out as layout.cpp walks its
  // tables.
  ControlArray<Label> lblTitle{this, "lblTitle", 0, 222};

  Timer timMotor{this, "timMotor"};
  Timer timSE{this, "timSE"};
  Sound mmcBeep{this, "mmcBeep"};

  /// What hands do to the bench is attached from outside (panel/panel.h), once the controls are there: these run when
  /// the panel is loaded and each time that it is activated.
  std::function<void()> onLoad;
  std::function<void()> onActivate;

  /// A board's shadow is there when the board is.
  void showShadows();

  /// The bench stays as long as the program: its controls are the simulated hardware.
  bool hasCloseBox() const override { return false; }

 protected:
  void load() override;
  void activated() override;
};

inline FormRef<FrmHard> frmHard{"frmHard"};

/// True while the lamp of the scan is lit. What the memory windows protect hangs on the lamp, what the registers
/// protect on the scan itself (scanActive() of state/state.h).
inline bool scanLampLit() {
  return isOn(frmHard->picScanLed);
}

}  // namespace zelvs
