#pragma once

namespace zelvs {

/// Next number of the uniform generator, at least 0 and below 1.
double drawUniform();
/// Starts the generator anew from a moment that differs at each call. Queued numbers stay queued.
void reseedRandom();
void seedRandom(double seed);
/// The next draws return what was queued, in order; then the generator goes on by itself.
void queueRandom(double number);
/// Forgets what was queued and draws as before the first seed.
void clearRandom();

}  // namespace zelvs
