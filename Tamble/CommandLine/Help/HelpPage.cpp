#include <Tamble/CommandLine/Help/HelpPage.h>
#include <Tamble/CommandLine/Text/Layout.h>
#include <Tamble/CommandLine/Text/SafeText.h>

#include <algorithm>

namespace tamble {
namespace {

constexpr std::size_t indent = 2;
constexpr std::size_t gap = 2;
constexpr std::size_t widestTerm = 26;
/// Longer lines are hard to read.
constexpr std::size_t widestPage = 100;
constexpr std::size_t narrowestPage = 40;

/// The column where the texts begin: behind the longest term that is not too long for it.
std::size_t textColumn(const HelpPage& page) {
    std::size_t longest = 0;
    for (const auto& section : page.sections) {
        for (const auto& entry : section.entries) {
            const std::size_t width = displayWidth(entry.term);
            if (width <= widestTerm) longest = std::max(longest, width);
        }
    }
    return indent + longest + gap;
}

std::string renderedEntry(const HelpEntry& entry, std::size_t column, std::size_t width) {
    const std::string start = std::string(indent, ' ') + entry.term;
    const auto lines = wrappedLines(entry.text, width > column ? width - column : 1);
    std::string result;
    auto next = lines.begin();
    if (next != lines.end() && displayWidth(start) + gap <= column) {
        result = padded(start, next->empty() ? 0 : column) + *next;
        ++next;
    } else {
        result = start;
    }
    result += '\n';
    for (; next != lines.end(); ++next) result += std::string(column, ' ') + *next + '\n';
    return result;
}

}  // namespace

HelpSection optionSection(std::string heading, std::span<const CommandOption> options) {
    HelpSection section{.heading = std::move(heading)};
    for (const auto& option : options) section.entries.push_back({option.usage(), option.help});
    return section;
}

std::string rendered(const HelpPage& page, const Terminal& terminal) {
    const std::size_t width = std::clamp(terminal.width(), narrowestPage, widestPage);
    // A column of texts that leaves them little room is worse than no column.
    const std::size_t column = std::min(textColumn(page), width / 2);
    std::string result = paragraph(page.summary, width);
    if (!page.usage.empty()) {
        result += '\n' + terminal.strong("Usage") + '\n';
        for (const auto& line : page.usage) result += paragraph(line, width, indent);
    }
    for (const auto& section : page.sections) {
        result += '\n';
        for (const auto& line : wrappedLines(section.heading, width)) {
            if (!line.empty()) result += terminal.strong(line) + '\n';
        }
        if (!section.text.empty()) result += paragraph(section.text, width, indent);
        for (const auto& entry : section.entries) result += renderedEntry(entry, column, width);
        if (!section.note.empty()) result += paragraph(section.note, width, indent);
    }
    return result;
}

}  // namespace tamble
