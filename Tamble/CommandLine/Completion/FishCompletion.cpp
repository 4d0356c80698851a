#include <Tamble/CommandLine/Completion/Completion.h>

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace tamble {
namespace {

/// The text in single quotes as fish reads it.
std::string fishQuoted(std::string_view text) {
    std::string result = "'";
    for (const char c : text) {
        if (c == '\'' || c == '\\') result += '\\';
        result += c;
    }
    return result + "'";
}

std::string optionLines(const CommandOption& option, const std::string& condition) {
    std::string line = fmt::format("complete -c tamble -n {} -l {}", condition, option.name);
    if (option.letter != '\0') line += fmt::format(" -s {}", option.letter);
    if (option.takesValue()) {
        line += option.completes == Completes::nothing ? " -x" : " -r";
        std::string values = fmt::format("{}", fmt::join(option.words, " "));
        if (option.completes == Completes::folders) values += " (__fish_complete_directories)";
        if (!values.empty()) line += fmt::format(" -a {}", fishQuoted(values));
        // Folders come from the list above; other files would only be in the way.
        if (option.completes == Completes::folders) line += " -f";
    }
    line += fmt::format(" -d {}\n", fishQuoted(option.help));
    if (option.isSwitch) {
        line += fmt::format("complete -c tamble -n {} -l no-{} -d {}\n", condition, option.name,
                            fishQuoted("Not: " + option.help));
    }
    return line;
}

std::string commandLines(const CommandDescription& command) {
    const std::string condition = fishQuoted("__fish_seen_subcommand_from " + command.name);
    std::string lines = fmt::format("complete -c tamble -n __fish_use_subcommand -f -a {} -d {}\n",
                                    command.name, fishQuoted(command.summary));
    const bool takesFiles = command.operandCompletes == Completes::files;
    if (!takesFiles || !command.operandWords.empty()) {
        lines += fmt::format("complete -c tamble -n {}{}", condition, takesFiles ? "" : " -f");
        if (!command.operandWords.empty()) {
            lines +=
                fmt::format(" -a {}", fishQuoted(fmt::format("{}", fmt::join(command.operandWords, " "))));
        }
        lines += '\n';
    }
    for (const auto& option : command.options) lines += optionLines(option, condition);
    return lines;
}

}  // namespace

std::string fishCompletion() {
    std::string script = "# Completion of tamble for fish.\n";
    for (const auto& command : completedCommands()) script += commandLines(command);
    return script;
}

}  // namespace tamble
