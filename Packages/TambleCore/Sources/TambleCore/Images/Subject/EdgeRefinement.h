#pragma once

#include <TambleCore/Images/SubjectMask.h>

#include <vector>

#include <opencv2/core.hpp>

namespace tamble {

/// Brings a small mask to the picture's size with soft edges that follow the photo. `mask` is CV_32F, 0…1, of
/// any size; the answer holds one byte a pixel.
///
/// The guided filter (He, Sun, Tang: "Guided image filtering", 2010) with the three colours as its guide, in
/// its fast form: its coefficients are found on a reduced picture and used on the full one, which costs one
/// byte a pixel.
std::vector<std::uint8_t> refineEdges(const SubjectPicture& picture, const cv::Mat& mask,
                                      const WorkContext& context);

}  // namespace tamble
