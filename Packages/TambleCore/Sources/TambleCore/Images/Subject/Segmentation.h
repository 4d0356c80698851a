#pragma once

#include <TambleCore/Support/WorkContext.h>

#include <opencv2/core.hpp>

namespace tamble {

/// Parts a small picture into subject (255) and background (0) by GrabCut, started from a saliency map, then
/// keeps the large pieces and fills holes. `picture` is CV_8UC3, `saliency` CV_32F 0…1, both of one size; the
/// answer is CV_8U, all 0 when nothing stands out. The same input always gives the same answer. Stops within
/// one iteration.
cv::Mat segment(const cv::Mat& picture, const cv::Mat& saliency, const WorkContext& context);

}  // namespace tamble
