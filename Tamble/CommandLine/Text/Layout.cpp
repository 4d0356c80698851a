#include <Tamble/CommandLine/Text/Layout.h>
#include <Tamble/CommandLine/Text/SafeText.h>

namespace tamble {
namespace {

void wrapLine(std::string_view line, std::size_t width, std::vector<std::string>& lines) {
    std::string current;
    std::size_t used = 0;
    while (!line.empty()) {
        const std::size_t end = std::min(line.find(' '), line.size());
        const std::string_view word = line.substr(0, end);
        line.remove_prefix(std::min(end + 1, line.size()));
        if (word.empty()) continue;
        const std::size_t needed = displayWidth(word);
        if (used > 0 && used + 1 + needed > width) {
            lines.push_back(std::move(current));
            current.clear();
            used = 0;
        }
        if (used > 0) current += ' ';
        current += word;
        used += needed + (used > 0 ? 1 : 0);
    }
    lines.push_back(std::move(current));
}

}  // namespace

std::vector<std::string> wrappedLines(std::string_view text, std::size_t width) {
    std::vector<std::string> lines;
    while (true) {
        const std::size_t end = text.find('\n');
        wrapLine(text.substr(0, end), width, lines);
        if (end == std::string_view::npos) return lines;
        text.remove_prefix(end + 1);
    }
}

std::string paragraph(std::string_view text, std::size_t width, std::size_t indent) {
    std::string result;
    for (const auto& line : wrappedLines(text, width > indent ? width - indent : 1)) {
        if (!line.empty()) result.append(indent, ' ').append(line);
        result += '\n';
    }
    return result;
}

std::string padded(std::string_view text, std::size_t width) {
    std::string result(text);
    const std::size_t used = displayWidth(text);
    if (used < width) result.append(width - used, ' ');
    return result;
}

}  // namespace tamble
