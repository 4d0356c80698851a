#include <Tamble/CommandLine/Completion/Completion.h>

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace tamble {
namespace {

/// Bash splits words at ":" and "=", so the word is taken from the line, and what stands before its last ":"
/// is cut off from the answers again.
constexpr std::string_view scriptStart = R"sh(# Completion of tamble for bash.
_tamble_words() {
    local answers
    mapfile -t answers < <(compgen -W "$1" -- "$word")
    local cut=
    if [[ $word == *:* && $COMP_WORDBREAKS == *:* ]]; then
        cut=${word%"${word##*:}"}
    fi
    COMPREPLY=("${answers[@]#"$cut"}")
}

_tamble() {
    local line=${COMP_LINE:0:COMP_POINT}
    local word=${line##*[[:space:]]}
    local before=${line%"$word"}
    local previous
    read -r -a previous <<<"$before"
    local option=${previous[-1]}
    COMPREPLY=()
    if [[ $word == --*=* ]]; then
        option=${word%%=*}
        word=${word#*=}
    fi
    local command=${COMP_WORDS[1]}
    # Behind its tool, an estimate takes what the tool takes.
    if [[ $command == estimate ]] && ((COMP_CWORD > 2)); then
        command=${COMP_WORDS[2]}
    fi
    if ((COMP_CWORD == 1)); then
)sh";

constexpr std::string_view scriptEnd = R"sh(    esac
    if [[ $word == -* ]]; then
        _tamble_words "$options"
    elif [[ -n $operands ]]; then
        _tamble_words "$operands"
    fi
}

complete -o bashdefault -o default -F _tamble tamble
)sh";

/// The lines that answer for the values of one option.
std::string valueLines(const CommandOption& option) {
    if (!option.takesValue()) return {};
    std::string lines = fmt::format("                {})", fmt::join(optionSpellings(option), "|"));
    if (!option.words.empty())
        lines +=
            fmt::format(" _tamble_words {};", shellQuoted(fmt::format("{}", fmt::join(option.words, " "))));
    if (option.completes == Completes::folders) lines += " compopt -o plusdirs 2>/dev/null;";
    // Without words the shell's own completion of file names takes over.
    return lines + " return 0 ;;\n";
}

std::string commandLines(const CommandDescription& command, std::string_view name) {
    std::string lines = fmt::format("        {})\n            case $option in\n", name);
    std::vector<std::string> spellings;
    for (const auto& option : command.options) {
        lines += valueLines(option);
        const auto own = optionSpellings(option);
        spellings.insert(spellings.end(), own.begin(), own.end());
    }
    lines += fmt::format("            esac\n            options='{}'\n", fmt::join(spellings, " "));
    if (!command.operandWords.empty()) {
        lines += fmt::format("            operands='{}'\n", fmt::join(command.operandWords, " "));
    }
    return lines + "            ;;\n";
}

}  // namespace

std::string bashCompletion() {
    const auto all = completedCommands();
    std::vector<std::string> names;
    for (const auto& command : all) names.push_back(command.name);
    std::string script(scriptStart);
    script += fmt::format("        _tamble_words '{} --help --version'\n        return\n    fi\n",
                          fmt::join(names, " "));
    script += "    local options= operands=\n    case $command in\n";
    for (const auto& command : all) script += commandLines(command, command.name);
    return script + std::string(scriptEnd);
}

}  // namespace tamble
