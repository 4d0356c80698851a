#include "Clearness.h"

#include <algorithm>
#include <array>
#include <vector>

#include <opencv2/imgproc.hpp>

namespace tamble {
namespace {

cv::Mat disc(int radius) {
    return cv::getStructuringElement(cv::MORPH_ELLIPSE, {2 * radius + 1, 2 * radius + 1});
}

/// The share of each side of the picture that is inside: left, right, top, bottom.
std::array<double, 4> sidesTouched(const cv::Mat& mask) {
    const auto share = [](const cv::Mat& side) {
        return static_cast<double>(cv::countNonZero(side)) / static_cast<double>(side.total());
    };
    return {share(mask.col(0)), share(mask.col(mask.cols - 1)), share(mask.row(0)),
            share(mask.row(mask.rows - 1))};
}

cv::Mat colourHistogram(const cv::Mat& lab, const cv::Mat& where) {
    const std::array channels{0, 1, 2};
    const std::array bins{8, 16, 16};
    const std::array<float, 2> range{0, 256};
    std::array<const float*, 3> ranges{range.data(), range.data(), range.data()};
    cv::Mat histogram;
    cv::calcHist(&lab, 1, channels.data(), where, histogram, 3, bins.data(), ranges.data());
    cv::normalize(histogram, histogram, 1, 0, cv::NORM_L1);
    return histogram;
}

double colourSeparation(const cv::Mat& lab, const cv::Mat& mask) {
    cv::Mat wide;
    const int reach = std::max(4, std::min(mask.rows, mask.cols) / 8);
    cv::dilate(mask, wide, disc(reach));
    const cv::Mat ring = wide & ~mask;
    if (cv::countNonZero(ring) == 0) return 0;
    return cv::compareHist(colourHistogram(lab, mask), colourHistogram(lab, ring), cv::HISTCMP_BHATTACHARYYA);
}

/// The largest difference in any channel between neighbours at a pixel: CV_8U.
cv::Mat colourSteps(const cv::Mat& lab) {
    cv::Mat steps;
    cv::Mat smooth;
    cv::GaussianBlur(lab, smooth, {5, 5}, 0);
    cv::morphologyEx(smooth, steps, cv::MORPH_GRADIENT, disc(1));
    std::vector<cv::Mat> channels;
    cv::split(steps, channels);
    cv::Mat all;
    cv::add(channels[0] / 2, channels[1], all);
    cv::add(all, channels[2], all);
    return all;
}

double outlineStrength(const cv::Mat& lab, const cv::Mat& mask) {
    cv::Mat outline;
    cv::morphologyEx(mask, outline, cv::MORPH_GRADIENT, disc(1));
    const cv::Mat steps = colourSteps(lab);
    cv::Mat nearby;
    cv::dilate(outline, nearby, disc(2));
    return cv::mean(steps, outline)[0] / (2 + cv::mean(steps, ~nearby)[0]);
}

double solidity(const cv::Mat& mask) {
    std::vector<cv::Point> inside;
    cv::findNonZero(mask, inside);
    std::vector<cv::Point> hull;
    cv::convexHull(inside, hull);
    const double around = cv::contourArea(hull);
    return around > 0 ? static_cast<double>(inside.size()) / around : 0;
}

}  // namespace

Clearness measure(const cv::Mat& lab, const cv::Mat& saliency, const cv::Mat& mask) {
    const int inside = cv::countNonZero(mask);
    if (inside == 0 || inside == mask.rows * mask.cols) return {};
    const auto [left, right, top, bottom] = sidesTouched(mask);
    return {
        .area = static_cast<double>(inside) / (mask.rows * mask.cols),
        .borderTouched =
            ((left + right) * mask.rows + (top + bottom) * mask.cols) / (2 * (mask.rows + mask.cols)),
        .spans = std::max(std::min(left, right), std::min(top, bottom)),
        .standsOut = cv::mean(saliency, mask)[0] - cv::mean(saliency, ~mask)[0],
        .colourSeparation = colourSeparation(lab, mask),
        .outlineStrength = outlineStrength(lab, mask),
        .solidity = solidity(mask),
    };
}

bool isClearSubject(const Clearness& clearness) {
    const bool sensible = clearness.area >= 0.004 && clearness.area <= 0.8 &&
                          clearness.borderTouched <= 0.35 && clearness.spans <= 0.15 &&
                          clearness.solidity >= 0.25;
    // Each has a least value below which nothing makes up for it, and a middling one that counts as 1.
    const bool setApart = clearness.standsOut >= 0.25 && clearness.colourSeparation >= 0.6 &&
                          clearness.outlineStrength >= 2 &&
                          clearness.standsOut / 0.3 * (clearness.colourSeparation / 0.75) *
                                  (std::min(clearness.outlineStrength, 6.0) / 3) >=
                              1;
    return sensible && setApart;
}

}  // namespace tamble
