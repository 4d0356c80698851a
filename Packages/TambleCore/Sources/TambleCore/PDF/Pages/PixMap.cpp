#include <TambleCore/PDF/Pages/PixMap.h>

#include <charconv>
#include <cstdlib>

#include <fmt/format.h>

namespace tamble::pdf {
namespace {

constexpr int whitest = 255;

[[noreturn]] void refuse(std::string detail) {
    throw ChildFailed(ChildFailed::Reason::misbehaved, std::move(detail));
}

std::optional<char> nextCharacter(ChildProgram& child) {
    std::uint8_t byte = 0;
    if (child.read({&byte, 1}) == 0) return std::nullopt;
    return static_cast<char>(byte);
}

/// A number and the one white space behind it.
int nextNumber(ChildProgram& child) {
    constexpr std::size_t mostDigits = 9;
    std::string digits;
    while (digits.size() <= mostDigits) {
        const auto character = nextCharacter(child);
        if (!character || *character == ' ' || *character == '\n') break;
        digits += *character;
    }
    int number = -1;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc() || end != digits.data() + digits.size() || number < 1)
        refuse("Not a pixmap: " + digits);
    return number;
}

/// The program rounds sides in its own way, and may know a smaller crop box; a fraction of the page is the
/// sign of one that it could not draw.
bool isPlausible(int side, int expected) {
    return side <= expected + 1 && side >= expected / 2;
}

}  // namespace

std::optional<Raster> nextPixMap(ChildProgram& child, PagePixels expected) {
    const auto first = nextCharacter(child);
    if (!first) return std::nullopt;
    if (*first != 'P' || nextCharacter(child) != '6' || nextCharacter(child) != '\n') refuse("Not a pixmap");
    Raster picture{.width = nextNumber(child), .height = nextNumber(child), .channels = 3, .samples = {}};
    if (nextNumber(child) != whitest) refuse("Not 8 bits a sample");
    if (!isPlausible(picture.width, expected.width) || !isPlausible(picture.height, expected.height)) {
        refuse(fmt::format("{} × {} pixels in place of {} × {}", picture.width, picture.height,
                           expected.width, expected.height));
    }
    picture.samples.resize(3 * static_cast<std::size_t>(picture.width) *
                           static_cast<std::size_t>(picture.height));
    if (child.read(picture.samples) != picture.samples.size()) refuse("A picture is cut off");
    return picture;
}

}  // namespace tamble::pdf
