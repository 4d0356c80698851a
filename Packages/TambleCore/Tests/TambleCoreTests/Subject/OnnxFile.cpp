#include "OnnxFile.h"

#include <bit>

namespace tamble {
namespace {

std::string varint(std::uint64_t value) {
    std::string bytes;
    for (; value >= 0x80; value >>= 7) bytes += static_cast<char>((value & 0x7F) | 0x80);
    return bytes + static_cast<char>(value);
}

std::string number(std::uint64_t field, std::int64_t value) {
    return varint(field << 3) + varint(static_cast<std::uint64_t>(value));
}

std::string message(std::uint64_t field, const std::string& bytes) {
    return varint(field << 3 | 2) + varint(bytes.size()) + bytes;
}

constexpr std::int64_t floatType = 1;

std::string valueInfo(const std::string& name, const std::vector<std::int64_t>& shape) {
    std::string dimensions;
    for (const std::int64_t size : shape)
        dimensions += message(1, size == 0 ? message(2, "open") : number(1, size));
    return message(1, name) + message(2, message(1, number(1, floatType) + message(2, dimensions)));
}

std::string intsAttribute(const std::string& name, std::int64_t both) {
    constexpr std::int64_t intsType = 7;
    return message(5, message(1, name) + number(8, both) + number(8, both) + number(20, intsType));
}

}  // namespace

void OnnxFile::addInput(const std::string& name, const std::vector<std::int64_t>& shape) {
    graph_ += message(11, valueInfo(name, shape));
}

void OnnxFile::addOutput(const std::string& name) {
    graph_ += message(12, valueInfo(name, {}));
}

void OnnxFile::addNode(const std::string& operation, const std::vector<std::string>& inputs,
                       const std::string& output, std::int64_t window) {
    std::string node;
    for (const std::string& input : inputs) node += message(1, input);
    node += message(2, output) + message(4, operation);
    if (window > 0) node += intsAttribute("kernel_shape", window) + intsAttribute("strides", window);
    graph_ += message(1, node);
}

void OnnxFile::addWeights(const std::string& name, const std::vector<std::int64_t>& shape,
                          const std::vector<float>& values) {
    std::string tensor;
    for (const std::int64_t size : shape) tensor += number(1, size);
    tensor += number(2, floatType) + message(8, name);
    std::string raw;
    for (const float value : values) {
        const auto bits = std::bit_cast<std::uint32_t>(value);
        for (unsigned shift = 0; shift < 32; shift += 8) raw += static_cast<char>(bits >> shift & 0xFF);
    }
    graph_ += message(5, tensor + message(9, raw));
}

std::string OnnxFile::bytes() const {
    constexpr std::int64_t irVersion = 7;
    constexpr std::int64_t operatorSet = 11;
    return number(1, irVersion) + message(7, graph_ + message(2, "test")) +
           message(8, number(2, operatorSet));
}

}  // namespace tamble
