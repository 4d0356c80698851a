#include "OnnxHeader.h"

#include <algorithm>
#include <optional>
#include <stdexcept>

namespace tamble {
namespace {

using Bytes = std::span<const std::uint8_t>;

/// One field of a protobuf message: a number, or bytes that hold a text or another message.
struct Field {
    std::uint64_t id = 0;
    std::uint64_t number = 0;
    Bytes bytes;
};

class Message {
  public:
    explicit Message(Bytes bytes) : rest_(bytes) {}

    std::optional<Field> next() {
        if (rest_.empty()) return std::nullopt;
        const std::uint64_t tag = varint();
        Field field{.id = tag >> 3};
        switch (tag & 7) {
            case 0:
                field.number = varint();
                break;
            case 1:
                take(8);
                break;
            case 2:
                field.bytes = take(varint());
                break;
            case 5:
                take(4);
                break;
            default:
                throw std::invalid_argument("The model is damaged: unknown kind of field.");
        }
        return field;
    }

  private:
    std::uint64_t varint() {
        std::uint64_t value = 0;
        for (unsigned shift = 0; shift < 64; shift += 7) {
            const std::uint8_t byte = take(1)[0];
            value |= std::uint64_t{byte & 0x7FU} << shift;
            if ((byte & 0x80U) == 0) return value;
        }
        throw std::invalid_argument("The model is damaged: a number without end.");
    }

    Bytes take(std::uint64_t count) {
        if (count > rest_.size()) throw std::invalid_argument("The model is damaged: it ends too early.");
        const Bytes taken = rest_.first(static_cast<std::size_t>(count));
        rest_ = rest_.subspan(taken.size());
        return taken;
    }

    Bytes rest_;
};

/// The last field of that number in a message, as protobuf reads fields that occur once; empty when there is
/// none.
Bytes bytesOf(Bytes message, std::uint64_t id) {
    Bytes found;
    Message fields(message);
    while (const auto field = fields.next()) {
        if (field->id == id) found = field->bytes;
    }
    return found;
}

std::string textOf(Bytes message, std::uint64_t id) {
    const Bytes bytes = bytesOf(message, id);
    return {bytes.begin(), bytes.end()};
}

std::int64_t dimension(Bytes bytes) {
    Message fields(bytes);
    std::int64_t value = 0;
    while (const auto field = fields.next()) {
        // dim_value; a dim_param (2) names a size that is open.
        if (field->id == 1) value = static_cast<std::int64_t>(field->number);
    }
    return std::max<std::int64_t>(0, value);
}

/// ValueInfoProto.type (2) . tensor_type (1) . shape (2) . dim (1)
std::vector<std::int64_t> shapeOf(Bytes valueInfo) {
    std::vector<std::int64_t> shape;
    Message dimensions(bytesOf(bytesOf(bytesOf(valueInfo, 2), 1), 2));
    while (const auto field = dimensions.next()) {
        if (field->id == 1) shape.push_back(dimension(field->bytes));
    }
    return shape;
}

}  // namespace

OnnxHeader readOnnxHeader(std::span<const std::uint8_t> file) {
    constexpr std::uint64_t graphField = 7;
    constexpr std::uint64_t nameField = 1;
    constexpr std::uint64_t weightField = 5;
    constexpr std::uint64_t weightNameField = 8;
    constexpr std::uint64_t inputField = 11;

    std::vector<Bytes> inputs;
    std::vector<std::string> weights;
    Message graph(bytesOf(file, graphField));
    while (const auto field = graph.next()) {
        if (field->id == inputField) inputs.push_back(field->bytes);
        if (field->id == weightField) weights.push_back(textOf(field->bytes, weightNameField));
    }
    for (const Bytes& input : inputs) {
        std::string name = textOf(input, nameField);
        if (std::ranges::find(weights, name) == weights.end()) return {std::move(name), shapeOf(input)};
    }
    throw std::invalid_argument("The model has no input.");
}

}  // namespace tamble
