#include <Tamble/Model/ActivityEntry.h>
#include <Tamble/Model/ToolUse.h>

#include <algorithm>
#include <cmath>

namespace tamble {
namespace {

constexpr std::size_t mostTools = 64;
/// What a file that was changed by hand may hold at most.
constexpr double highestCount = 1e6;

}  // namespace

double ToolUse::countAt(std::chrono::system_clock::time_point now) const {
    const auto time = timeOfISODate(last);
    if (!time || !(count > 0)) return 0;
    using Days = std::chrono::duration<double, std::chrono::days::period>;
    // A clock that was put back makes nothing count more.
    const double age = std::max(Days(now - *time).count(), 0.0);
    return std::min(count, highestCount) * std::exp2(-age / Days(halfLife).count());
}

void countUse(std::vector<ToolUse>& uses, const std::string& toolID,
              std::chrono::system_clock::time_point now) {
    auto known = std::ranges::find(uses, toolID, &ToolUse::toolID);
    if (known == uses.end()) known = uses.insert(known, {.toolID = toolID});
    known->count = known->countAt(now) + 1;
    known->last = isoDate(now);
    if (uses.size() <= mostTools) return;
    uses.erase(std::ranges::min_element(uses, {}, [now](const ToolUse& use) { return use.countAt(now); }));
}

}  // namespace tamble
