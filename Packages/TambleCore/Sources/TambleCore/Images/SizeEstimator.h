#pragma once

#include <TambleCore/Images/ImageJobSettings.h>
#include <TambleCore/Intake/InputFile.h>

#include <span>
#include <stop_token>

namespace tamble::SizeEstimator {

/// How many photos a screen has sampled: enough for a steady ratio, few enough to answer in a second or two.
inline constexpr int defaultSampleCount = 4;

/// What the photos of a batch will take after a job, in bytes: photos that the job leaves alone count as they
/// are. At most `sampleCount` photos, spread over the batch, are encoded into memory; their ratio of new to
/// old bytes stands for the rest, camera raw apart from other photos. Empty when cancelled or when no sample
/// could be encoded.
std::optional<std::int64_t> estimateImages(std::span<const InputFile> files, const ImageJobSettings& settings,
                                           int sampleCount, std::stop_token stop = {});

}  // namespace tamble::SizeEstimator
