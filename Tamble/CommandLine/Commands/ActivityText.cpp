#include <Tamble/CommandLine/Commands/ActivityText.h>
#include <Tamble/CommandLine/Text/SafeText.h>

#include <fmt/chrono.h>

namespace tamble {

std::string shortID(const ActivityEntry& entry) {
    constexpr std::size_t length = 8;
    return safeText(entry.id.substr(0, length));
}

std::string localDate(const ActivityEntry& entry) {
    const auto time = timeOfISODate(entry.date);
    if (!time) return safeText(entry.date);
    return fmt::format("{:%Y-%m-%d %H:%M}", fmt::localtime(std::chrono::system_clock::to_time_t(*time)));
}

}  // namespace tamble
