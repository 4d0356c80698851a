#include "Saliency.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include <opencv2/imgproc.hpp>

namespace tamble {
namespace {

/// The state of one raster scan: the distance so far, and the highest and lowest value on the path it was
/// found by.
struct Barrier {
    cv::Mat distance;
    cv::Mat high;
    cv::Mat low;
};

void relax(const cv::Mat& values, Barrier& barrier, cv::Point at, cv::Point from) {
    const float value = values.at<float>(at);
    const float high = std::max(barrier.high.at<float>(from), value);
    const float low = std::min(barrier.low.at<float>(from), value);
    if (high - low >= barrier.distance.at<float>(at)) return;
    barrier.distance.at<float>(at) = high - low;
    barrier.high.at<float>(at) = high;
    barrier.low.at<float>(at) = low;
}

cv::Mat barrierDistance(const cv::Mat& values, const WorkContext& context) {
    Barrier barrier{cv::Mat(values.size(), CV_32F, std::numeric_limits<float>::max()), values.clone(),
                    values.clone()};
    cv::rectangle(barrier.distance, {0, 0, values.cols, values.rows}, 0.0F);
    // Two rounds there and back reach nearly every winding path; more change little.
    for (int round = 0; round < 2; ++round) {
        context.throwIfStopped();
        for (int y = 1; y < values.rows - 1; ++y) {
            for (int x = 1; x < values.cols - 1; ++x) {
                relax(values, barrier, {x, y}, {x - 1, y});
                relax(values, barrier, {x, y}, {x, y - 1});
            }
        }
        for (int y = values.rows - 2; y > 0; --y) {
            for (int x = values.cols - 2; x > 0; --x) {
                relax(values, barrier, {x, y}, {x + 1, y});
                relax(values, barrier, {x, y}, {x, y + 1});
            }
        }
    }
    return barrier.distance;
}

/// Distance of every pixel to the colours of one strip, with its largest value at 1.
cv::Mat strangeness(const cv::Mat& lab, cv::Rect strip) {
    const cv::Mat samples = lab(strip).clone().reshape(1, strip.area());
    cv::Mat covariance;
    cv::Mat mean;
    cv::calcCovarMatrix(samples, covariance, mean, cv::COVAR_NORMAL | cv::COVAR_ROWS | cv::COVAR_SCALE,
                        CV_32F);
    // Noise of a few levels in every channel keeps a strip of one colour from making all others infinitely
    // far.
    covariance += cv::Mat::eye(3, 3, CV_32F) * 20.0;
    const cv::Matx33f inverse(cv::Mat(covariance.inv(cv::DECOMP_CHOLESKY)).ptr<float>());
    const cv::Vec3f centre(mean.ptr<float>());

    cv::Mat result(lab.size(), CV_32F);
    for (int y = 0; y < lab.rows; ++y) {
        for (int x = 0; x < lab.cols; ++x) {
            const cv::Vec3f offset = lab.at<cv::Vec3f>(y, x) - centre;
            result.at<float>(y, x) = std::sqrt(std::max(0.0F, offset.dot(inverse * offset)));
        }
    }
    return result;
}

cv::Mat borderStrangeness(const cv::Mat& lab) {
    const int depth = std::max(1, std::min(lab.cols, lab.rows) / 12);
    const std::array strips{cv::Rect(0, 0, lab.cols, depth), cv::Rect(0, lab.rows - depth, lab.cols, depth),
                            cv::Rect(0, 0, depth, lab.rows), cv::Rect(lab.cols - depth, 0, depth, lab.rows)};
    cv::Mat sum(lab.size(), CV_32F, 0.0F);
    cv::Mat greatest(lab.size(), CV_32F, 0.0F);
    for (const cv::Rect& strip : strips) {
        cv::Mat one = strangeness(lab, strip);
        // Beyond six deviations a colour is simply foreign.
        cv::min(one, 6.0, one);
        sum += one;
        cv::max(greatest, one, greatest);
    }
    return sum - greatest;
}

void stretchToOne(cv::Mat& map) {
    double greatest = 0;
    cv::minMaxLoc(map, nullptr, &greatest);
    if (greatest > 0) map /= greatest;
}

/// 1 in the middle, falling to 0.5 in the corners: photographers rarely put the subject there.
void favourCentre(cv::Mat& map) {
    const float middleX = static_cast<float>(map.cols - 1) / 2;
    const float middleY = static_cast<float>(map.rows - 1) / 2;
    for (int y = 0; y < map.rows; ++y) {
        for (int x = 0; x < map.cols; ++x) {
            const float dx = (static_cast<float>(x) - middleX) / std::max(1.0F, middleX);
            const float dy = (static_cast<float>(y) - middleY) / std::max(1.0F, middleY);
            map.at<float>(y, x) *= 1 - 0.25F * (dx * dx + dy * dy);
        }
    }
}

/// Removes what is finer than `radius` and gives back the outlines of the rest, as opening and closing by
/// reconstruction do; the median does it well enough in one step.
void calm(cv::Mat& map) {
    cv::Mat bytes;
    map.convertTo(bytes, CV_8U, 255);
    const int size = std::max(3, std::min(map.cols, map.rows) / 24) | 1;
    cv::medianBlur(bytes, bytes, size);
    bytes.convertTo(map, CV_32F, 1.0 / 255);
}

}  // namespace

cv::Mat saliency(const cv::Mat& lab, const WorkContext& context) {
    cv::Mat values;
    lab.convertTo(values, CV_32F);
    std::vector<cv::Mat> channels;
    cv::split(values, channels);
    cv::Mat barriers(lab.size(), CV_32F, 0.0F);
    for (const cv::Mat& channel : channels) barriers += barrierDistance(channel, context);
    stretchToOne(barriers);

    cv::Mat strange = borderStrangeness(values);
    context.throwIfStopped();
    stretchToOne(strange);

    cv::Mat map = barriers + strange;
    favourCentre(map);
    stretchToOne(map);
    calm(map);
    stretchToOne(map);
    return map;
}

}  // namespace tamble
