#include "ContrastSubjectMask.h"

#include <algorithm>

#include "Clearness.h"
#include "EdgeRefinement.h"
#include "PictureView.h"
#include "Saliency.h"
#include "Segmentation.h"
#include <opencv2/imgproc.hpp>

namespace tamble {
namespace {

/// Fine enough for limbs and stalks, small enough for an iteration of GrabCut within a tenth of a second.
constexpr int workingSide = 320;
constexpr int leastSide = 16;

std::optional<std::vector<std::uint8_t>> search(const SubjectPicture& picture, const WorkContext& context) {
    if (std::min(picture.width, picture.height) < leastSide) return std::nullopt;
    context.throwIfStopped();
    cv::Mat small = reducedView(picture, workingSide);
    cv::Mat lab;
    cv::cvtColor(small, lab, cv::COLOR_RGB2Lab);
    cv::Mat calm;
    cv::medianBlur(lab, calm, 3);
    context.report(0.1);

    const cv::Mat map = saliency(calm, context);
    context.report(0.3);
    const cv::Mat mask = segment(lab, map, context);
    context.report(0.7);
    if (!isClearSubject(measure(lab, map, mask))) return std::nullopt;

    cv::Mat soft;
    mask.convertTo(soft, CV_32F, 1.0 / 255);
    auto result = refineEdges(picture, soft, context);
    context.report(1);
    return result;
}

}  // namespace

std::optional<std::vector<std::uint8_t>> ContrastSubjectMask::find(const SubjectPicture& picture,
                                                                   const WorkContext& context) const {
    return searching(picture, [&] { return search(picture, context); });
}

}  // namespace tamble
