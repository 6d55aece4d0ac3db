#pragma once

namespace zelvs {

class FrmHard;

/// Puts every control of the panel into its place, with the pictures, texts and tips that never change.
void layOutPanel(FrmHard& panel);

}  // namespace zelvs
