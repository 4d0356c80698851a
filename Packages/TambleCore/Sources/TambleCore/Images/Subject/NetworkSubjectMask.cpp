#include "NetworkSubjectMask.h"

#include <TambleCore/Images/ConversionError.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <mutex>
#include <stdexcept>

#include "EdgeRefinement.h"
#include "OnnxHeader.h"
#include "PictureView.h"
#include <opencv2/core/utils/logger.hpp>
#include <opencv2/dnn.hpp>
#include <opencv2/imgproc.hpp>

namespace tamble {
namespace {

constexpr int openSize = 320;
constexpr std::int64_t largestSize = 2048;
constexpr std::uintmax_t largestFile = 1U << 30U;
constexpr double leastShare = 0.001;

ConversionError failed(const std::string& detail) {
    return ConversionError(ConversionError::Case::backgroundRemovalFailed, detail);
}

std::vector<std::uint8_t> contents(const std::filesystem::path& file) {
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(file, error);
    if (error) throw std::invalid_argument("The model cannot be read: " + error.message());
    if (size == 0 || size > largestFile)
        throw std::invalid_argument("The model is empty or larger than 1 GiB.");
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(size));
    std::ifstream in(file, std::ios::binary);
    if (!in.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(size)))
        throw std::invalid_argument("The model cannot be read.");
    return bytes;
}

cv::Size inputSize(const OnnxHeader& header) {
    const auto& shape = header.inputShape;
    if (shape.size() != 4 || shape[0] > 1 || (shape[1] != 3 && shape[1] != 0))
        throw std::invalid_argument("The model's input is not one picture of three channels.");
    const auto length = [](std::int64_t side) {
        if (side > largestSize) throw std::invalid_argument("The model's input is too large.");
        return side == 0 ? openSize : static_cast<int>(side);
    };
    return {length(shape[3]), length(shape[2])};
}

/// The last two sides of an output that holds one map; empty for any other.
cv::Size mapSize(const cv::Mat& output) {
    if (output.dims < 2 || output.depth() != CV_32F) return {};
    const cv::Size size(output.size[output.dims - 1], output.size[output.dims - 2]);
    return output.total() == static_cast<std::size_t>(size.area()) ? size : cv::Size();
}

cv::Mat chosenMap(const std::vector<cv::Mat>& outputs, cv::Size wanted) {
    const cv::Mat* best = nullptr;
    for (const cv::Mat& output : outputs) {
        const cv::Size size = mapSize(output);
        if (size == wanted) {
            best = &output;
            break;
        }
        if (size.area() > 1 && (best == nullptr || size.area() > mapSize(*best).area())) best = &output;
    }
    if (best == nullptr) throw std::invalid_argument("None of the model's outputs is a map of one channel.");
    return best->reshape(1, mapSize(*best).height);
}

/// As probabilities, 0…1, whatever the network answers.
cv::Mat probabilities(const cv::Mat& map) {
    if (!cv::checkRange(map)) throw std::invalid_argument("The model answers numbers that are none.");
    double least = 0;
    double greatest = 0;
    cv::minMaxLoc(map, &least, &greatest);
    // Rounding may carry a probability a little beyond its limits.
    if (least >= -1e-3 && greatest <= 1 + 1e-3) return cv::min(cv::max(map, 0.0), 1.0);
    cv::Mat exponential;
    cv::exp(cv::min(-map, 60.0), exponential);
    return 1.0 / (1.0 + exponential);
}

}  // namespace

class NetworkSubjectMask::Network {
  public:
    explicit Network(const std::vector<std::uint8_t>& file) : size_(inputSize(readOnnxHeader(file))) {
        // The importer otherwise writes its findings on the terminal.
        cv::utils::logging::setLogLevel(cv::utils::logging::LOG_LEVEL_SILENT);
        network_ = cv::dnn::readNetFromONNX(file);
        if (network_.empty()) throw std::invalid_argument("The model is empty.");
        outputs_ = network_.getUnconnectedOutLayersNames();
    }

    cv::Mat run(const SubjectPicture& picture, const WorkContext& context) {
        const cv::Mat input = prepared(picture);
        const std::unique_lock lock = waitForTurn(context);
        network_.setInput(input);
        std::vector<cv::Mat> results;
        network_.forward(results, outputs_);
        // Cloned while it is ours: the next picture overwrites the network's own memory.
        return probabilities(chosenMap(results, size_).clone());
    }

  private:
    cv::Mat prepared(const SubjectPicture& picture) const {
        // Shrunk by areas first: the network's bilinear scaling alone would skip pixels of a large picture.
        cv::Mat scaled;
        cv::resize(reducedView(picture, 2 * std::max(size_.width, size_.height)), scaled, size_, 0, 0,
                   cv::INTER_LINEAR);
        scaled.convertTo(scaled, CV_32F, 1.0 / 255);
        cv::subtract(scaled, cv::Scalar(0.485, 0.456, 0.406), scaled);
        cv::divide(scaled, cv::Scalar(0.229, 0.224, 0.225), scaled);
        return cv::dnn::blobFromImage(scaled);
    }

    std::unique_lock<std::timed_mutex> waitForTurn(const WorkContext& context) {
        std::unique_lock lock(turn_, std::defer_lock);
        do context.throwIfStopped();
        while (!lock.try_lock_for(std::chrono::milliseconds(50)));
        return lock;
    }

    cv::Size size_;
    cv::dnn::Net network_;
    std::vector<cv::String> outputs_;
    std::timed_mutex turn_;
};

NetworkSubjectMask::NetworkSubjectMask(const std::filesystem::path& model) {
    try {
        network_ = std::make_unique<Network>(contents(model));
    } catch (const std::exception& error) {
        throw failed(error.what());
    }
}

NetworkSubjectMask::~NetworkSubjectMask() = default;

std::optional<std::vector<std::uint8_t>> NetworkSubjectMask::find(const SubjectPicture& picture,
                                                                  const WorkContext& context) const {
    return searching(picture, [&]() -> std::optional<std::vector<std::uint8_t>> {
        context.throwIfStopped();
        const cv::Mat map = network_->run(picture, context);
        context.report(0.8);
        if (cv::countNonZero(map > 0.5) < leastShare * static_cast<double>(map.total())) return std::nullopt;
        auto result = refineEdges(picture, map, context);
        context.report(1);
        return result;
    });
}

}  // namespace tamble
