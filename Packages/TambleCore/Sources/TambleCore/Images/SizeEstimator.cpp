#include <TambleCore/Images/ImageProcessor.h>
#include <TambleCore/Images/SizeEstimator.h>
#include <TambleCore/Intake/FileTypes.h>

#include <cmath>

namespace tamble::SizeEstimator {
namespace {

/// Photos whose sizes change alike.
struct Group {
    std::vector<const InputFile*> files;
    double totalBytes = 0;

    void add(const InputFile& file) {
        files.push_back(&file);
        totalBytes += static_cast<double>(file.byteSize);
    }
};

/// `count` files spread evenly over the group, each from the middle of its stretch.
std::vector<const InputFile*> samples(const Group& group, std::size_t count) {
    count = std::min(count, group.files.size());
    std::vector<const InputFile*> picked;
    for (std::size_t i = 0; i < count; ++i)
        picked.push_back(group.files[(2 * i + 1) * group.files.size() / (2 * count)]);
    return picked;
}

/// The size of one photo after the job; empty when it cannot be encoded.
std::optional<double> sizeAfter(const InputFile& file, const ImageJobSettings& settings,
                                std::stop_token stop) {
    try {
        const auto data = ImageConverter().encodedData(
            file.url, settings, targetFormat(file.contentType, settings), {.stop = std::move(stop)});
        const auto size = static_cast<double>(data.size());
        return settings.skipIfNotSmaller ? std::min(size, static_cast<double>(file.byteSize)) : size;
    } catch (const ConversionError&) {
        return std::nullopt;
    }
}

/// New bytes for each old byte; empty when no sample could be encoded.
std::optional<double> ratio(const Group& group, std::size_t count, const ImageJobSettings& settings,
                            const std::stop_token& stop) {
    double before = 0;
    double after = 0;
    for (const InputFile* file : samples(group, count)) {
        WorkContext{.stop = stop}.throwIfStopped();
        if (const auto size = sizeAfter(*file, settings, stop)) {
            before += static_cast<double>(file->byteSize);
            after += *size;
        }
    }
    return before > 0 ? std::optional(after / before) : std::nullopt;
}

}  // namespace

std::optional<std::int64_t> estimateImages(std::span<const InputFile> files, const ImageJobSettings& settings,
                                           int sampleCount, std::stop_token stop) {
    const ImageProcessor processor(settings);
    Group raws;
    Group others;
    double estimate = 0;
    for (const auto& file : files) {
        if (processor.skipReason(file)) {
            estimate += static_cast<double>(file.byteSize);
        } else {
            (FileTypes::isRawImage(file.contentType) ? raws : others).add(file);
        }
    }
    const auto total = static_cast<std::size_t>(std::max(sampleCount, 0));
    // Where both kinds are there, each gets its share of the samples, but at least one.
    std::size_t rawSamples = raws.files.empty() ? 0 : total;
    if (!raws.files.empty() && !others.files.empty()) {
        const std::size_t share = total * raws.files.size() / (raws.files.size() + others.files.size());
        rawSamples = total < 2 ? 0 : std::clamp<std::size_t>(share, 1, total - 1);
    }
    try {
        const auto rawRatio = ratio(raws, rawSamples, settings, stop);
        const auto otherRatio = ratio(others, total - rawSamples, settings, stop);
        if (!rawRatio && !otherRatio && !(raws.files.empty() && others.files.empty())) return std::nullopt;
        estimate += raws.totalBytes * rawRatio.value_or(otherRatio.value_or(0));
        estimate += others.totalBytes * otherRatio.value_or(rawRatio.value_or(0));
    } catch (const Cancelled&) {
        return std::nullopt;
    }
    return std::llround(estimate);
}

}  // namespace tamble::SizeEstimator
