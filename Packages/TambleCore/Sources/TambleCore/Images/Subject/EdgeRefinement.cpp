#include "EdgeRefinement.h"

#include <algorithm>
#include <array>

#include "PictureView.h"
#include <opencv2/imgproc.hpp>

namespace tamble {
namespace {

/// The longest side of the picture on which the coefficients are found.
constexpr int guideSide = 1024;
/// Variance of a colour (0…1) that counts as an edge: 2.5 levels of 255 squared, as flat as a clean photo's
/// noise.
constexpr double flatness = 1e-4;
/// How far, in pixels of the small mask, its outline may be wrong.
constexpr int outlineDoubt = 3;

cv::Mat boxMean(const cv::Mat& map, int radius) {
    cv::Mat mean;
    cv::boxFilter(map, mean, -1, {2 * radius + 1, 2 * radius + 1}, {-1, -1}, true, cv::BORDER_REFLECT);
    return mean;
}

cv::Mat covariance(const cv::Mat& a, const cv::Mat& b, const cv::Mat& meanA, const cv::Mat& meanB,
                   int radius) {
    return boxMean(a.mul(b), radius) - meanA.mul(meanB);
}

/// a (three) and b of the linear model mask = a · colour + b around each pixel, averaged over all windows it
/// is in.
std::array<cv::Mat, 4> guidedCoefficients(const cv::Mat& guide, const cv::Mat& mask, int radius,
                                          const WorkContext& context) {
    std::array<cv::Mat, 3> colour;
    cv::split(guide, colour.data());
    std::array<cv::Mat, 3> mean;
    std::array<cv::Mat, 3> toMask;
    const cv::Mat meanMask = boxMean(mask, radius);
    for (std::size_t i = 0; i < 3; ++i) mean[i] = boxMean(colour[i], radius);
    for (std::size_t i = 0; i < 3; ++i) toMask[i] = covariance(colour[i], mask, mean[i], meanMask, radius);
    context.throwIfStopped();
    const auto between = [&](std::size_t i, std::size_t j) {
        return covariance(colour[i], colour[j], mean[i], mean[j], radius);
    };
    const std::array<cv::Mat, 6> own{between(0, 0), between(0, 1), between(0, 2),
                                     between(1, 1), between(1, 2), between(2, 2)};
    context.throwIfStopped();

    std::array<cv::Mat, 4> result;
    for (cv::Mat& map : result) map.create(mask.size(), CV_32F);
    for (int y = 0; y < mask.rows; ++y) {
        for (int x = 0; x < mask.cols; ++x) {
            const auto at = [y, x](const cv::Mat& map) { return static_cast<double>(map.at<float>(y, x)); };
            const double s01 = at(own[1]);
            const double s02 = at(own[2]);
            const double s12 = at(own[4]);
            const cv::Matx33d spread(at(own[0]) + flatness, s01, s02, s01, at(own[3]) + flatness, s12, s02,
                                     s12, at(own[5]) + flatness);
            const cv::Vec3d slope =
                spread.solve(cv::Vec3d(at(toMask[0]), at(toMask[1]), at(toMask[2])), cv::DECOMP_CHOLESKY);
            const double offset = at(meanMask) - slope.dot({at(mean[0]), at(mean[1]), at(mean[2])});
            for (int i = 0; i < 3; ++i)
                result[static_cast<std::size_t>(i)].at<float>(y, x) = static_cast<float>(slope[i]);
            result[3].at<float>(y, x) = static_cast<float>(offset);
        }
    }
    for (cv::Mat& map : result) map = boxMean(map, radius);
    return result;
}

/// Makes the in-between values steeper around one half, so that no veil of the background remains.
float steeper(float value) {
    return std::clamp((value - 0.5F) * 1.4F + 0.5F, 0.0F, 1.0F);
}

/// Six numbers a pixel of the guide: the model's four, and the least and greatest value the mask may have
/// there.
using Model = cv::Vec<float, 6>;

cv::Mat modelOf(const cv::Mat& guide, const cv::Mat& mask, const WorkContext& context) {
    cv::Mat least;
    cv::Mat greatest;
    const cv::Mat disc =
        cv::getStructuringElement(cv::MORPH_ELLIPSE, {2 * outlineDoubt + 1, 2 * outlineDoubt + 1});
    cv::erode(mask, least, disc);
    cv::dilate(mask, greatest, disc);

    cv::Mat larger;
    for (cv::Mat* map : {&least, &greatest}) {
        cv::blur(*map, *map, {3, 3});
        cv::resize(*map, *map, guide.size(), 0, 0, cv::INTER_LINEAR);
    }
    cv::resize(mask, larger, guide.size(), 0, 0, cv::INTER_LINEAR);
    const double enlargement = static_cast<double>(guide.cols) / mask.cols;
    const int radius = std::max(2, cvRound(outlineDoubt * enlargement));
    const std::array<cv::Mat, 4> linear = guidedCoefficients(guide, larger, radius, context);
    const std::array<cv::Mat, 6> maps{linear[0], linear[1], linear[2], linear[3], least, greatest};
    cv::Mat model;
    cv::merge(maps.data(), maps.size(), model);
    return model;
}

/// Where a full-size coordinate falls between two samples of the reduced picture.
struct Between {
    int first;
    int second;
    float share;
};

Between between(int position, int fullLength, int reducedLength) {
    const float exact = (static_cast<float>(position) + 0.5F) * static_cast<float>(reducedLength) /
                            static_cast<float>(fullLength) -
                        0.5F;
    const float inside = std::clamp(exact, 0.0F, static_cast<float>(reducedLength - 1));
    const int first = static_cast<int>(inside);
    return {first, std::min(first + 1, reducedLength - 1), inside - static_cast<float>(first)};
}

}  // namespace

std::vector<std::uint8_t> refineEdges(const SubjectPicture& picture, const cv::Mat& mask,
                                      const WorkContext& context) {
    cv::Mat guide;
    reducedView(picture, guideSide).convertTo(guide, CV_32F, 1.0 / 255);
    const cv::Mat model = modelOf(guide, mask, context);

    std::vector<Between> columns;
    for (int x = 0; x < picture.width; ++x) columns.push_back(between(x, picture.width, model.cols));
    std::vector<Model> row(static_cast<std::size_t>(model.cols));
    std::vector<std::uint8_t> result(static_cast<std::size_t>(picture.width) *
                                     static_cast<std::size_t>(picture.height));
    const std::uint8_t* colour = picture.pixels.data();
    std::uint8_t* out = result.data();
    for (int y = 0; y < picture.height; ++y) {
        if (y % 64 == 0) context.throwIfStopped();
        const Between rows = between(y, picture.height, model.rows);
        const Model* above = model.ptr<Model>(rows.first);
        const Model* below = model.ptr<Model>(rows.second);
        for (std::size_t x = 0; x < row.size(); ++x) row[x] = above[x] + (below[x] - above[x]) * rows.share;
        for (const Between& column : columns) {
            const Model& left = row[static_cast<std::size_t>(column.first)];
            const Model& right = row[static_cast<std::size_t>(column.second)];
            const auto at = [&](int i) { return left[i] + (right[i] - left[i]) * column.share; };
            const float linear = (at(0) * colour[0] + at(1) * colour[1] + at(2) * colour[2]) / 255 + at(3);
            const float value = std::clamp(steeper(linear), at(4), std::max(at(4), at(5)));
            *out++ = static_cast<std::uint8_t>(value * 255 + 0.5F);
            colour += 3;
        }
    }
    return result;
}

}  // namespace tamble
