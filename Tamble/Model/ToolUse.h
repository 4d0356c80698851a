#pragma once

#include <chrono>
#include <string>
#include <vector>

#include <boost/describe.hpp>

namespace tamble {

/// How much a tool is used. A use counts for half after every halfLife.
struct ToolUse {
    static constexpr auto halfLife = std::chrono::days(14);

    std::string toolID;
    /// All uses as they counted at the last one, which itself counts 1.
    double count = 0;
    /// As isoDate() writes it.
    std::string last;

    double countAt(std::chrono::system_clock::time_point now) const;
    friend bool operator==(const ToolUse&, const ToolUse&) = default;
};
BOOST_DESCRIBE_STRUCT(ToolUse, (), (toolID, count, last))

/// Adds one use. Of more tools than there can be, the least used are forgotten.
void countUse(std::vector<ToolUse>& uses, const std::string& toolID,
              std::chrono::system_clock::time_point now);

}  // namespace tamble
