#pragma once

#include <opencv2/core.hpp>

namespace tamble {

/// What tells a real subject from a chance outline. All fractions are 0…1.
struct Clearness {
    /// Of the picture's pixels.
    double area = 0;
    /// Of the picture's outermost pixels.
    double borderTouched = 0;
    /// The lesser of the shares of two opposite sides that are inside, for whichever pair it is larger.
    double spans = 0;
    /// Mean saliency inside less that outside.
    double standsOut = 0;
    /// How little the colours inside and those in a ring around it have in common.
    double colourSeparation = 0;
    /// Mean step in colour across the outline, over the mean step anywhere else.
    double outlineStrength = 0;
    /// The area over that of its convex hull.
    double solidity = 0;
};

/// `lab` CV_8UC3, `saliency` CV_32F, `mask` CV_8U (0 or 255), of one size.
Clearness measure(const cv::Mat& lab, const cv::Mat& saliency, const cv::Mat& mask);

/// Whether it is a subject at all: of sensible size, not a band across the picture, not scattered specks, and
/// with saliency, colours and outline that together set it apart. The limits were chosen by eye on some
/// ninety photographs.
bool isClearSubject(const Clearness& clearness);

}  // namespace tamble
