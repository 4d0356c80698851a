#include "Segmentation.h"

#include <algorithm>
#include <vector>

#include <opencv2/imgproc.hpp>

namespace tamble {
namespace {

/// GrabCut draws its first colour clusters with the random numbers of the thread: they start from the same
/// place for every picture, and whoever else uses them goes on undisturbed.
class FixedRandomNumbers {
  public:
    FixedRandomNumbers() : before_(cv::theRNG()) { cv::theRNG() = cv::RNG(1); }
    ~FixedRandomNumbers() { cv::theRNG() = before_; }
    FixedRandomNumbers(const FixedRandomNumbers&) = delete;
    FixedRandomNumbers& operator=(const FixedRandomNumbers&) = delete;

  private:
    cv::RNG before_;
};

/// The threshold that parts a map best in two (Otsu), in its own unit.
double bestThreshold(const cv::Mat& map) {
    cv::Mat bytes;
    map.convertTo(bytes, CV_8U, 255);
    return cv::threshold(bytes, bytes, 0, 255, cv::THRESH_BINARY | cv::THRESH_OTSU) / 255;
}

/// What GrabCut starts from: the surely foreign as subject, the surely common as background, the rest to be
/// found out.
cv::Mat firstGuess(const cv::Mat& saliency) {
    const double middle = bestThreshold(saliency);
    cv::Mat labels(saliency.size(), CV_8U, cv::Scalar(cv::GC_PR_BGD));
    labels.setTo(cv::GC_BGD, saliency < middle * 0.25);
    labels.setTo(cv::GC_PR_FGD, saliency >= middle);
    labels.setTo(cv::GC_FGD, saliency >= middle + 0.6 * (1 - middle));
    return labels;
}

bool hasBothSides(const cv::Mat& labels) {
    const int inside = cv::countNonZero((labels == cv::GC_FGD) | (labels == cv::GC_PR_FGD));
    // The colour models have five clusters each and need at least as many pixels.
    return inside >= 32 && labels.rows * labels.cols - inside >= 32;
}

/// Keeps the largest piece and those of at least a fifth of its size.
cv::Mat largePieces(const cv::Mat& mask) {
    cv::Mat labels;
    cv::Mat statistics;
    cv::Mat centroids;
    const int count = cv::connectedComponentsWithStats(mask, labels, statistics, centroids, 4);
    int largest = 0;
    for (int i = 1; i < count; ++i) largest = std::max(largest, statistics.at<int>(i, cv::CC_STAT_AREA));
    cv::Mat kept(mask.size(), CV_8U, cv::Scalar(0));
    for (int i = 1; i < count; ++i) {
        if (statistics.at<int>(i, cv::CC_STAT_AREA) * 5 >= largest) kept.setTo(255, labels == i);
    }
    return kept;
}

/// Background that the subject encloses becomes subject when it is small; a large hole, such as a handle's,
/// stays.
void fillSmallHoles(cv::Mat& mask) {
    cv::Mat labels;
    cv::Mat statistics;
    cv::Mat centroids;
    const int count = cv::connectedComponentsWithStats(255 - mask, labels, statistics, centroids, 4);
    const int subject = cv::countNonZero(mask);
    for (int i = 1; i < count; ++i) {
        const int* box = statistics.ptr<int>(i);
        const bool atBorder = box[cv::CC_STAT_LEFT] == 0 || box[cv::CC_STAT_TOP] == 0 ||
                              box[cv::CC_STAT_LEFT] + box[cv::CC_STAT_WIDTH] == mask.cols ||
                              box[cv::CC_STAT_TOP] + box[cv::CC_STAT_HEIGHT] == mask.rows;
        if (!atBorder && box[cv::CC_STAT_AREA] * 20 < subject) mask.setTo(255, labels == i);
    }
}

}  // namespace

cv::Mat segment(const cv::Mat& picture, const cv::Mat& saliency, const WorkContext& context) {
    cv::Mat labels = firstGuess(saliency);
    const FixedRandomNumbers fixed;
    cv::Mat background;
    cv::Mat foreground;
    for (int iteration = 0; iteration < 5; ++iteration) {
        context.throwIfStopped();
        if (!hasBothSides(labels)) return cv::Mat(picture.size(), CV_8U, cv::Scalar(0));
        // One iteration at a time, so that a stop request is obeyed between them.
        cv::grabCut(picture, labels, {}, background, foreground, 1,
                    iteration == 0 ? cv::GC_INIT_WITH_MASK : cv::GC_EVAL);
    }
    cv::Mat mask = ((labels == cv::GC_FGD) | (labels == cv::GC_PR_FGD));
    // Threads of a pixel or two are noise; opening cuts them off before the pieces are counted.
    cv::morphologyEx(mask, mask, cv::MORPH_OPEN, cv::getStructuringElement(cv::MORPH_ELLIPSE, {3, 3}));
    mask = largePieces(mask);
    fillSmallHoles(mask);
    return mask;
}

}  // namespace tamble
