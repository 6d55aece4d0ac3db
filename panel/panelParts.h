#pragma once

namespace zelvs {

class FrmHard;

// What the panel's load is made of, each in the file of what it belongs to.

// lists.cpp: addresses, clocks and modes
void attachLists(FrmHard& panel);
void initSACombo();
void initCPUCombo();
void initIOSCombo();
void initModeCombo();

// cabling.cpp: cables, slaves, jumpers
void attachCabling(FrmHard& panel);
void applyDefaults();

// pins.cpp: inputs and outputs
void attachPins(FrmHard& panel);

// buttons.cpp: counters, CLR, RESET, NOISE
void attachButtons(FrmHard& panel);

// switches.cpp: setting switches and their explanation
void attachSwitches(FrmHard& panel);
void initSwitches();

// serialInput.cpp: words for the boards' serial inputs
void attachSerialInput(FrmHard& panel);

// panelLook.cpp: pointers, the ports' names
void initIntPicture();
void initMousePointers();
void printRXDLabels();

}  // namespace zelvs
