#include <TambleCore/PDF/PDFJobSettings.h>
#include <TambleCore/PDF/SignatureText.h>
#include <TambleCore/Platform/AtomicFile.h>
#include <TambleCore/Support/Text.h>
#include <TambleCore/Support/UUID.h>

#include <array>
#include <charconv>

namespace tamble {
namespace {

constexpr NormalizedRect lowerRightCorner{.x = 0.6, .y = 0.8, .width = 0.32, .height = 0.12};
constexpr std::string_view pngSignature = "\x89PNG\r\n\x1a\n";
/// A drawn or photographed signature; whoever has a larger one has the wrong file.
constexpr std::uintmax_t largestPicture = 32U << 20U;

template <typename Number>
std::optional<Number> numberOf(std::string_view text) {
    text = trimmed(text);
    Number value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

NormalizedRect rectOf(std::string_view text) {
    std::array<double, 4> shares{};
    for (std::size_t i = 0; i < shares.size(); ++i) {
        const auto comma = text.find(',');
        const bool isLast = i + 1 == shares.size();
        const auto percent = numberOf<double>(text.substr(0, comma));
        const bool isShare = percent && *percent >= 0 && *percent <= 100;
        if (!isShare || isLast != (comma == std::string_view::npos)) {
            throw SettingError("The place is written as four percentages, as in 60,80,30,10.");
        }
        shares[i] = *percent / 100;
        text.remove_prefix(isLast ? text.size() : comma + 1);
    }
    return {.x = shares[0], .y = shares[1], .width = shares[2], .height = shares[3]};
}

/// What stands behind the last "@", when it reads like a place.
struct Place {
    int page = 0;
    NormalizedRect rect = lowerRightCorner;
};

std::optional<Place> placeOf(std::string_view text) {
    const auto colon = text.find(':');
    const auto page = numberOf<int>(text.substr(0, colon));
    if (!page) return std::nullopt;
    if (*page < 1) throw SettingError("Pages are counted from 1.");
    Place place{.page = *page - 1};
    if (colon != std::string_view::npos) place.rect = rectOf(text.substr(colon + 1));
    return place;
}

std::vector<std::byte> pictureIn(const std::filesystem::path& file) {
    std::error_code error;
    const auto size = std::filesystem::file_size(file, error);
    if (error || size > largestPicture) {
        throw SettingError(fmt::format("The picture “{}” can't be read.", printable(file.native())));
    }
    std::string content;
    try {
        content = readWholeFile(file);
    } catch (const std::filesystem::filesystem_error&) {
        throw SettingError(fmt::format("The picture “{}” can't be read.", printable(file.native())));
    }
    if (!content.starts_with(pngSignature)) {
        throw SettingError(fmt::format("“{}” is not a PNG picture.", printable(file.native())));
    }
    const auto bytes = std::as_bytes(std::span(content));
    return {bytes.begin(), bytes.end()};
}

}  // namespace

Json withSignature(std::string_view text, const Json& present) {
    const auto at = text.rfind('@');
    const auto place = at == std::string_view::npos ? std::nullopt : placeOf(text.substr(at + 1));
    const auto [page, rect] = place.value_or(Place{});
    Json list = present.is_array() ? present : Json::array();
    list.push_back(encodeJson(SignaturePlacement{.id = newUUID(),
                                                 .page = page,
                                                 .rect = rect,
                                                 .imagePNG = pictureIn(place ? text.substr(0, at) : text)}));
    return list;
}

}  // namespace tamble
