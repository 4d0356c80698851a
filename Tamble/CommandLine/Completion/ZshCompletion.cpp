#include <Tamble/CommandLine/Completion/Completion.h>

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace tamble {
namespace {

constexpr std::string_view scriptStart = R"sh(#compdef tamble
# Completion of tamble for zsh.
_tamble() {
    local -a commands
    commands=(
)sh";

constexpr std::string_view afterCommands = R"sh(    )
    if (( CURRENT == 2 )); then
        _describe -t commands 'tool or command' commands
        return
    fi
    local command=$words[2]
    shift words
    (( CURRENT-- ))
    case $command in
)sh";

constexpr std::string_view scriptEnd = R"sh(        *) _files ;;
    esac
}

if [[ $zsh_eval_context[-1] == loadautofunc ]]; then
    _tamble "$@"
else
    compdef _tamble tamble
fi
)sh";

/// With the characters that part an option's specification written as plain ones.
std::string plain(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (c == '[' || c == ']' || c == ':' || c == '\\') result += '\\';
        result += c;
    }
    return result;
}

std::string action(const CommandOption& option) {
    switch (option.completes) {
        case Completes::files:
            return "_files";
        case Completes::folders:
            return "_files -/";
        case Completes::nothing:
            break;
    }
    if (option.words.empty()) return " ";
    std::vector<std::string> words;
    for (const auto& word : option.words) words.push_back(plain(word));
    return fmt::format("({})", fmt::join(words, " "));
}

std::string specifications(const CommandOption& option) {
    std::string lines;
    for (const auto& spelling : optionSpellings(option)) {
        const bool isLong = spelling.starts_with("--");
        std::string text = fmt::format("{}{}[{}]", spelling, option.takesValue() ? (isLong ? "=" : "+") : "",
                                       plain(option.help));
        if (option.takesValue()) text += fmt::format(":{}:{}", plain(option.name), action(option));
        lines += fmt::format("                {} \\\n", shellQuoted(text));
    }
    return lines;
}

std::string operandSpecifications(const CommandDescription& command) {
    std::string text;
    if (!command.operandWords.empty()) {
        text = shellQuoted(
                   fmt::format("1:{}:({})", plain(command.operands), fmt::join(command.operandWords, " "))) +
               " ";
    }
    return text + shellQuoted(command.operandCompletes == Completes::files ? "*:file:_files" : "*: : ");
}

}  // namespace

std::string zshCompletion() {
    const auto all = completedCommands();
    std::string script(scriptStart);
    for (const auto& command : all) {
        script += fmt::format("        {}\n", shellQuoted(plain(command.name) + ":" + command.summary));
    }
    script += afterCommands;
    for (const auto& command : all) {
        script += fmt::format("        {})\n            _arguments -s \\\n", command.name);
        for (const auto& option : command.options) script += specifications(option);
        script += fmt::format("                {}\n            ;;\n", operandSpecifications(command));
    }
    return script + std::string(scriptEnd);
}

}  // namespace tamble
