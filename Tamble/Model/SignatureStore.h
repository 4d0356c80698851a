#pragma once

#include <TambleCore/Support/Json/JsonCoding.h>

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tamble {

/// A point of a stroke; places are shares of the drawing area's width, from its upper left corner.
struct InkPoint {
    double x = 0;
    double y = 0;
    /// Of the pen there.
    double width = 0;
    friend bool operator==(const InkPoint&, const InkPoint&) = default;
};
BOOST_DESCRIBE_STRUCT(InkPoint, (), (x, y, width))

using InkStroke = std::vector<InkPoint>;

struct SavedSignature {
    /// A UUID.
    std::string id;
    /// When it was saved: seconds since 1970.
    double saved = 0;
    /// The bytes of a PNG file.
    std::vector<std::byte> imagePNG;
    /// Empty when it was not drawn.
    std::vector<InkStroke> strokes;
    friend bool operator==(const SavedSignature&, const SavedSignature&) = default;
};
BOOST_DESCRIBE_STRUCT(SavedSignature, (), (id, saved, imagePNG, strokes))

/// The user's signatures, each in a private file of its own.
class SignatureStore {
  public:
    explicit SignatureStore(std::filesystem::path folder = defaultFolder());

    static std::filesystem::path defaultFolder();
    static constexpr std::size_t maximum = 12;
    /// Bytes of a signature's file.
    static constexpr std::size_t maximumBytes = std::size_t{16} << 20U;

    /// The newest first. One that cannot be read is left out, and stays on disk.
    std::vector<SavedSignature> all() const;

    /// What was saved, without points that are nowhere; nothing when there are as many as there may be, or
    /// the bytes are no PNG file or too many. Throws std::filesystem::filesystem_error when it cannot be
    /// written.
    std::optional<SavedSignature> add(std::vector<std::byte> imagePNG, std::vector<InkStroke> strokes = {});
    /// Forgets it for good; nothing happens when there is none. Throws std::filesystem::filesystem_error.
    void remove(const std::string& id);

  private:
    std::filesystem::path fileOf(const std::string& id) const;

    std::filesystem::path folder_;
};

}  // namespace tamble
