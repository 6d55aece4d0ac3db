#pragma once

namespace zelvs {

class FrmHard;

/// Attaches what hands do to the bench to its controls, and the panel's load order to its form. Called for each panel
/// that is made.
void attachPanel(FrmHard& panel);

/// Makes the panel as wide as what it has to show, shows it anew and checks the station addresses.
void setFormWidth();
/// Moves all lists to the stored settings, once, while the panel loads.
void initCombo();
/// Warns of the first two boards on the line that have one station address. Only a start that is done warns.
void chkSADup();
/// Makes board 5's pins what ioBoardMode says; all its switches go off.
void setIOMode();

}  // namespace zelvs
