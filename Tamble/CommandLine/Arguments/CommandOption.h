#pragma once

#include <string>
#include <vector>

namespace tamble {

/// What a shell offers for a value, beside the fixed words.
enum class Completes { nothing, files, folders };

/// One option of a command: what parsing, help, the man page and completion need to know of it.
struct CommandOption {
    /// Without the dashes.
    std::string name;
    /// The one-letter form; '\0' for none.
    char letter = '\0';
    /// How its value is written, as "NUMBER" or "next|replace|DIR"; empty for one that takes none.
    std::string value = {};
    std::string help = {};
    /// The values that are fixed words.
    std::vector<std::string> words = {};
    Completes completes = Completes::nothing;
    /// A setting that is on or off: may be followed by "true" or "false", and has a "no-" form.
    bool isSwitch = false;

    bool takesValue() const { return !value.empty(); }
    /// "--jobs", or "-j, --jobs" with its letter.
    std::string spelling() const;
    /// The spelling with the value behind it.
    std::string usage() const;
};

/// A command or a tool, as it is described to people and shells.
struct CommandDescription {
    std::string name;
    /// How its operands are written, as "PATH…"; empty for none.
    std::string operands = {};
    std::string summary = {};
    std::vector<CommandOption> options = {};
    std::vector<std::string> operandWords = {};
    Completes operandCompletes = Completes::nothing;
};

}  // namespace tamble
