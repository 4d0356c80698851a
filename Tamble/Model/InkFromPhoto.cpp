#include <Tamble/Model/InkFromPhoto.h>

#include <algorithm>
#include <cmath>

namespace tamble {
namespace {

constexpr int opaque = 255;
/// The paper's light is measured in squares of so many to the longer side.
constexpr int squares = 16;
/// What is darker than the paper by less than `faint` is paper, by `strong` and more it is ink: shares of the
/// paper's light.
constexpr double faint = 0.16;
constexpr double strong = 0.45;
/// Of the lightest place, what the darkest shade on the paper still has.
constexpr double darkestShade = 0.35;
/// 0…255; what is darker everywhere shows no paper.
constexpr double darkestPaper = 60;
/// Alpha from which a sample counts as written.
constexpr int visible = 40;

std::size_t offset(const PreviewPicture& picture, int x, int y) {
    return (static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.width) +
            static_cast<std::size_t>(x)) *
           static_cast<std::size_t>(picture.channels);
}

/// 0…255.
double light(const PreviewPicture& picture, int x, int y) {
    const std::uint8_t* sample = &picture.samples[offset(picture, x, y)];
    return 0.299 * sample[0] + 0.587 * sample[1] + 0.114 * sample[2];
}

/// How light the paper is, here and there.
class Paper {
  public:
    explicit Paper(const PreviewPicture& photo)
        : side_(std::max(1, (std::max(photo.width, photo.height) + squares - 1) / squares)),
          columns_((photo.width + side_ - 1) / side_),
          rows_((photo.height + side_ - 1) / side_) {
        for (int row = 0; row < rows_; ++row) {
            for (int column = 0; column < columns_; ++column)
                lights_.push_back(brightest(photo, column * side_, row * side_));
        }
        // A square may be full of ink.
        for (double& square : lights_) square = std::max(square, whitest() * darkestShade);
    }

    double whitest() const { return *std::ranges::max_element(lights_); }

    /// Between the middles of the squares.
    double at(int x, int y) const {
        const double across = std::clamp((x + 0.5) / side_ - 0.5, 0.0, columns_ - 1.0);
        const double down = std::clamp((y + 0.5) / side_ - 0.5, 0.0, rows_ - 1.0);
        const int column = static_cast<int>(across);
        const int row = static_cast<int>(down);
        const auto upper = std::lerp(square(column, row), square(column + 1, row), across - column);
        const auto lower = std::lerp(square(column, row + 1), square(column + 1, row + 1), across - column);
        return std::lerp(upper, lower, down - row);
    }

  private:
    double square(int column, int row) const {
        const int at = std::min(row, rows_ - 1) * columns_ + std::min(column, columns_ - 1);
        return lights_[static_cast<std::size_t>(at)];
    }
    /// Nine in ten samples are darker.
    double brightest(const PreviewPicture& photo, int left, int top) const {
        std::vector<double> lights;
        for (int y = top; y < std::min(photo.height, top + side_); ++y) {
            for (int x = left; x < std::min(photo.width, left + side_); ++x)
                lights.push_back(light(photo, x, y));
        }
        const auto place = lights.begin() + static_cast<std::ptrdiff_t>(lights.size() * 9 / 10);
        std::ranges::nth_element(lights, place);
        return *place;
    }

    int side_;
    int columns_;
    int rows_;
    std::vector<double> lights_;
};

PreviewPicture withoutPaper(const PreviewPicture& photo, const Paper& paper) {
    PreviewPicture ink{photo.width, photo.height, 4, {}};
    ink.samples.reserve(static_cast<std::size_t>(photo.width) * static_cast<std::size_t>(photo.height) * 4);
    for (int y = 0; y < photo.height; ++y) {
        for (int x = 0; x < photo.width; ++x) {
            const double white = paper.at(x, y);
            const double alpha =
                std::clamp(((white - light(photo, x, y)) / white - faint) / (strong - faint), 0.0, 1.0);
            const std::uint8_t* sample = &photo.samples[offset(photo, x, y)];
            for (int channel = 0; channel < 3; ++channel) {
                // What the ink alone would look like.
                const double own = alpha > 0 ? (sample[channel] - (1 - alpha) * white) / alpha : 0;
                ink.samples.push_back(static_cast<std::uint8_t>(std::clamp(own, 0.0, 255.0)));
            }
            ink.samples.push_back(static_cast<std::uint8_t>(alpha * opaque));
        }
    }
    return ink;
}

bool isSeeThrough(const PreviewPicture& picture) {
    if (picture.channels != 4) return false;
    for (std::size_t at = 3; at < picture.samples.size(); at += 4) {
        if (picture.samples[at] < opaque) return true;
    }
    return false;
}

/// What is written, with a sample of room around it.
std::optional<PreviewPicture> cut(const PreviewPicture& ink) {
    int left = ink.width, top = ink.height, right = -1, bottom = -1;
    for (int y = 0; y < ink.height; ++y) {
        for (int x = 0; x < ink.width; ++x) {
            if (ink.samples[offset(ink, x, y) + 3] < visible) continue;
            left = std::min(left, x);
            right = std::max(right, x);
            top = std::min(top, y);
            bottom = std::max(bottom, y);
        }
    }
    if (right < 0) return std::nullopt;
    left = std::max(0, left - 1);
    top = std::max(0, top - 1);
    right = std::min(ink.width - 1, right + 1);
    bottom = std::min(ink.height - 1, bottom + 1);
    PreviewPicture result{right - left + 1, bottom - top + 1, 4, {}};
    for (int y = top; y <= bottom; ++y) {
        const auto row = ink.samples.begin() + static_cast<std::ptrdiff_t>(offset(ink, left, y));
        result.samples.insert(result.samples.end(), row, row + static_cast<std::ptrdiff_t>(result.width) * 4);
    }
    return result;
}

}  // namespace

std::optional<PreviewPicture> inkFromPhoto(const PreviewPicture& photo) {
    if (photo.width <= 0 || photo.height <= 0) return std::nullopt;
    if (isSeeThrough(photo)) return cut(photo);
    const Paper paper(photo);
    return paper.whitest() < darkestPaper ? std::nullopt : cut(withoutPaper(photo, paper));
}

}  // namespace tamble
