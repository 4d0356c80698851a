#pragma once

#include <Tamble/CommandLine/Arguments/CommandOption.h>

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tamble {

/// What was typed after a command's name.
struct ParsedArguments {
    struct Given {
        /// The option's name without dashes; a switch that was turned off by its "no-" form keeps that form.
        std::string option;
        /// Empty for an option without a value.
        std::string value;
    };
    /// In the order in which they were typed.
    std::vector<Given> options;
    std::vector<std::string> operands;

    bool has(std::string_view option) const;
    /// The value given last.
    std::optional<std::string> value(std::string_view option) const;
};

/// Everything after the first "--" is an operand. Throws UsageError for an option that the command does not
/// have, naming the nearest one, and for a value that is missing or not wanted.
ParsedArguments parseArguments(const CommandDescription& command, std::span<const std::string> arguments);

}  // namespace tamble
