#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace tamble {

/// What has to be known of an ONNX file before it is run.
struct OnnxHeader {
    std::string inputName;
    /// Of the first input that is not a stored weight; 0 for a size that is open.
    std::vector<std::int64_t> inputShape;
};

/// Reads the header of an ONNX file (a protobuf ModelProto; field numbers from the public onnx.proto) without
/// touching the weights. Throws std::invalid_argument, in English for the log, when it is damaged or has no
/// input.
OnnxHeader readOnnxHeader(std::span<const std::uint8_t> file);

}  // namespace tamble
