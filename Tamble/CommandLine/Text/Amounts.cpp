#include <Tamble/CommandLine/Text/Amounts.h>

#include <array>
#include <cmath>

#include <fmt/format.h>

namespace tamble {
namespace {

std::string grouped(std::int64_t number) {
    std::string digits = std::to_string(number);
    const std::size_t first = number < 0 ? 1 : 0;
    for (std::size_t at = digits.size(); at > first + 3;) {
        at -= 3;
        digits.insert(at, ",");
    }
    return digits;
}

}  // namespace

std::string sizeText(std::int64_t bytes) {
    if (std::abs(bytes) < 1000) return countText(bytes, "byte", "bytes");
    constexpr std::array<std::string_view, 6> units{"kB", "MB", "GB", "TB", "PB", "EB"};
    double amount = static_cast<double>(bytes) / 1000;
    std::size_t unit = 0;
    // 999.95 and more would be written as 1000.0 of the smaller unit.
    while (std::abs(amount) >= 999.95 && unit + 1 < units.size()) {
        amount /= 1000;
        ++unit;
    }
    return fmt::format("{:.1f} {}", amount, units[unit]);
}

std::string countText(std::int64_t count, std::string_view one, std::string_view many) {
    return fmt::format("{} {}", grouped(count), count == 1 ? one : many);
}

std::string durationText(double seconds) {
    const auto whole = static_cast<std::int64_t>(std::ceil(std::max(0.0, seconds)));
    if (whole < 60) return fmt::format("{} s", whole);
    if (whole < 3600) return fmt::format("{} min {} s", whole / 60, whole % 60);
    return fmt::format("{} h {} min", whole / 3600, whole % 3600 / 60);
}

std::string changeText(std::int64_t bytesBefore, std::int64_t bytesAfter) {
    if (bytesBefore <= 0 || bytesBefore == bytesAfter) return "the same size";
    const double change =
        100.0 * static_cast<double>(bytesAfter - bytesBefore) / static_cast<double>(bytesBefore);
    const std::string_view direction = change < 0 ? "smaller" : "larger";
    const double percent = std::abs(change);
    if (percent < 1) return fmt::format("less than 1% {}", direction);
    // "100% smaller" would say that nothing is left.
    return fmt::format("{:.0f}% {}", change < 0 ? std::min(percent, 99.0) : percent, direction);
}

}  // namespace tamble
