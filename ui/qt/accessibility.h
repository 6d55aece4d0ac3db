#pragma once

namespace zelvs {

/// Lets screen readers see the controls that a canvas paints, under the names that scripts use. Called once.
void setUpAccessibility();

}  // namespace zelvs
