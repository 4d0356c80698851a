#include "PictureView.h"

#include <TambleCore/Images/ConversionError.h>

#include <algorithm>
#include <new>
#include <stdexcept>

#include <opencv2/imgproc.hpp>

namespace tamble {

cv::Mat reducedView(const SubjectPicture& picture, int longestSide) {
    // OpenCV has no view of constant pixels; nothing here writes to it.
    const cv::Mat whole(picture.height, picture.width, CV_8UC3,
                        const_cast<std::uint8_t*>(picture.pixels.data()));
    const int longest = std::max(picture.width, picture.height);
    if (longest <= longestSide) return whole;
    const auto shrunk = [&](int side) {
        return std::max(1, cvRound(static_cast<double>(side) * longestSide / longest));
    };
    cv::Mat reduced;
    cv::resize(whole, reduced, {shrunk(picture.width), shrunk(picture.height)}, 0, 0, cv::INTER_AREA);
    return reduced;
}

std::optional<std::vector<std::uint8_t>> searching(
    const SubjectPicture& picture, const std::function<std::optional<std::vector<std::uint8_t>>()>& search) {
    const auto failed = [](const char* detail) {
        return ConversionError(ConversionError::Case::backgroundRemovalFailed, detail);
    };
    if (picture.width <= 0 || picture.height <= 0 ||
        picture.pixels.size() / 3 / static_cast<std::size_t>(picture.width) !=
            static_cast<std::size_t>(picture.height))
        throw failed("The picture's size and its pixels do not fit together.");
    try {
        return search();
    } catch (const cv::Exception& error) {
        throw failed(error.what());
    } catch (const std::bad_alloc& error) {
        throw failed(error.what());
    } catch (const std::invalid_argument& error) {
        throw failed(error.what());
    }
}

}  // namespace tamble
