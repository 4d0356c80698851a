#pragma once

#include <TambleCore/Support/WorkContext.h>

#include <opencv2/core.hpp>

namespace tamble {

/// How much each pixel of a small picture stands out from the picture's border: CV_32F, 0…1, of the picture's
/// size. `lab` is CV_8UC3 in CIE L*a*b*, at most a few hundred pixels a side.
///
/// Two measures are added: the minimum barrier distance to the border (the least range of values that any
/// path from the border has to cross; Zhang et al., "Minimum barrier salient object detection at 80 FPS",
/// ICCV 2015), and the Mahalanobis distance to the colours of each of the four border strips, less the
/// largest of the four, so that a subject may touch one side. A mild centre prior follows. All zero for a
/// picture of one colour.
cv::Mat saliency(const cv::Mat& lab, const WorkContext& context);

}  // namespace tamble
