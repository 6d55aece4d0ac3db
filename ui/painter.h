#pragma once

#include <string_view>

#include "ui/control.h"

namespace zelvs {

/// How a line runs between two pixels: as it is, or on whole pixels so that all of them are alike.
enum class Stroke { Smooth, Crisp };

/// What a window is drawn on; each backend brings one. All places are twips from the left top corner of what is drawn.
class Painter {
 public:
  virtual void fill(const Area& place, Colour colour) = 0;
  /// width in pixels.
  virtual void line(double x1, double y1, double x2, double y2, Colour colour, double width, Stroke stroke) = 0;
  /// An outline of one pixel just inside the place. opacity 0 to 1; corner: its radius in pixels, 0 for square ones.
  virtual void rectangle(const Area& place, Colour colour, double opacity, double corner) = 0;
  /// One line of text from its left end on; baseline: where its letters stand. Every character is as wide as
  /// textWidth() counts it.
  virtual void text(double left, double baseline, std::string_view text, double points, bool bold, Colour colour) = 0;
  /// An image of a list fills the place; a file's picture keeps its own size from the left top on.
  virtual void image(const Picture& picture, const Area& place) = 0;

  /// Nothing is drawn outside the place, nor outside that of the clips before it, until it is taken off again.
  virtual void pushClip(const Area& place) = 0;
  virtual void popClip() = 0;

 protected:
  ~Painter() = default;
};

}  // namespace zelvs
