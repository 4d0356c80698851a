#pragma once

#include <Tamble/Model/SignatureStore.h>

#include <span>

namespace tamble {

/// Follows a hand: a stroke gets thinner where the hand is faster, and loses what trembles. Places are shares
/// of the drawing area's width, times are in seconds.
class InkPen {
  public:
    void begin(double x, double y, double time);
    void add(double x, double y, double time);
    /// Where the hand was lifted.
    void end(double x, double y, double time);
    const InkStroke& stroke() const { return stroke_; }

  private:
    InkStroke stroke_;
    double lastX_ = 0;
    double lastY_ = 0;
    double lastTime_ = 0;
};

/// The stroke as a round line: many points through which straight lines look bent.
InkStroke smoothed(const InkStroke& stroke);

struct InkBounds {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
};
/// What the strokes cover, with the width of the pen; nothing without points.
std::optional<InkBounds> boundsOf(std::span<const InkStroke> strokes);

}  // namespace tamble
