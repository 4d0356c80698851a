#pragma once

#include <TambleCore/Images/SubjectMask.h>

#include <functional>

#include <opencv2/core.hpp>

namespace tamble {

/// The picture shrunk so that its longest side is at most `longestSide` pixels: CV_8UC3, in RGB order. Shares
/// the pixels of a picture that is small enough already.
cv::Mat reducedView(const SubjectPicture& picture, int longestSide);

/// Runs `search`, with every failure of OpenCV, of memory or of a model (std::invalid_argument) turned into
/// ConversionError::backgroundRemovalFailed. Refuses a picture whose size and bytes do not fit together in
/// the same way.
std::optional<std::vector<std::uint8_t>> searching(
    const SubjectPicture& picture, const std::function<std::optional<std::vector<std::uint8_t>>()>& search);

}  // namespace tamble
