#pragma once

namespace zelvs {

class FrmHard;

// What the panel's load is made of, each in the file of what it belongs to.

// layout.cpp
void layOutPanel(FrmHard& panel);

// lists.cpp: addresses, clocks and modes
void attachLists(FrmHard& panel);
void initSACombo();
void initCPUCombo();
void initIOSCombo();
void initModeCombo();

// cabling.cpp: cables, slaves, jumpers, noise
void attachCabling(FrmHard& panel);
void applyDefaults();

// pins.cpp: inputs, outputs, buttons
void attachPins(FrmHard& panel);
void initIntPicture();
void initSwitches();

// panelLook.cpp
void initMousePointers();
void printRXDLabels();

}  // namespace zelvs
