#pragma once

#include <Tamble/CommandLine/Arguments/CommandOption.h>
#include <Tamble/CommandLine/Text/Terminal.h>

#include <span>
#include <string>
#include <vector>

namespace tamble {

/// A line of a help page: what is typed, and what it does.
struct HelpEntry {
    std::string term;
    std::string text;
};

struct HelpSection {
    std::string heading;
    std::string text = {};
    std::vector<HelpEntry> entries = {};
    /// Stands after the entries.
    std::string note = {};
};

/// A page of help, apart from how it looks: on the terminal, or as a part of the manual page.
struct HelpPage {
    std::string summary;
    /// The ways to call it, without the word "Usage".
    std::vector<std::string> usage;
    std::vector<HelpSection> sections;
};

HelpSection optionSection(std::string heading, std::span<const CommandOption> options);

/// The page as it stands on the terminal, in lines of at most 100 cells.
std::string rendered(const HelpPage& page, const Terminal& terminal);

}  // namespace tamble
