#include <Tamble/CommandLine/Arguments/ArgumentParser.h>
#include <Tamble/CommandLine/Arguments/UsageError.h>

#include <TambleCore/Support/Text.h>

#include <algorithm>
#include <map>
#include <ranges>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

namespace tamble {
namespace {

constexpr std::string_view offPrefix = "no-";

const CommandOption* optionSpelled(const CommandDescription& command, std::string_view argument) {
    const auto found = std::ranges::find_if(command.options, [argument](const CommandOption& option) {
        return argument == "--" + option.name ||
               (option.letter != '\0' && argument == std::string{'-', option.letter});
    });
    return found == command.options.end() ? nullptr : &*found;
}

/// The parser would take any next word for the value of an option whose value may be left out, so a switch
/// and the "true" or "false" behind it become one word first.
std::vector<std::string> withSwitchValuesJoined(const CommandDescription& command,
                                                std::span<const std::string> arguments) {
    std::vector<std::string> joined;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (argument.size() > 3 && argument.starts_with("--") && argument.ends_with('=')) {
            throw UsageError(fmt::format("{} has no value behind its “=”.", argument));
        }
        const CommandOption* option = optionSpelled(command, argument);
        const bool hasValue = option != nullptr && option->isSwitch && i + 1 < arguments.size() &&
                              (arguments[i + 1] == "true" || arguments[i + 1] == "false");
        joined.push_back(hasValue ? argument + "=" + arguments[++i] : argument);
    }
    return joined;
}

std::string unknownOption(const CommandDescription& command, std::string_view argument) {
    const std::string_view typed = argument.substr(0, argument.find('='));
    std::vector<std::string> known;
    for (const auto& option : command.options) {
        known.push_back("--" + option.name);
        if (option.isSwitch) known.push_back(fmt::format("--{}{}", offPrefix, option.name));
    }
    const std::string nearest = typed.starts_with("--") ? nearestWord(typed, known) : std::string();
    return fmt::format("{} has no option {}.{}", command.name, typed,
                       nearest.empty() ? "" : fmt::format(" Did you mean {}?", nearest));
}

/// One option of the command as the borrowed parser knows it; `found` collects in the order of typing.
class BorrowedParser {
  public:
    explicit BorrowedParser(const CommandDescription& command) : command_(command) {
        app_.set_help_flag();
        app_.allow_extras();
        for (const auto& option : command.options) add(option);
    }

    void parse(std::vector<std::string> arguments) {
        const std::string last = arguments.empty() ? std::string() : arguments.back();
        // It takes the words from the back.
        std::ranges::reverse(arguments);
        try {
            app_.parse(std::move(arguments));
        } catch (const CLI::ParseError& error) {
            const CommandOption* option = optionSpelled(command_, last);
            throw UsageError(option == nullptr
                                 ? std::string(error.what())
                                 : fmt::format("--{} needs a value: {}.", option->name, option->value));
        }
    }

    ParsedArguments result() const {
        ParsedArguments parsed;
        std::map<const CLI::Option*, std::size_t> taken;
        for (const CLI::Option* option : app_.parse_order()) {
            const auto& [name, takesValue] = names_.at(option);
            const std::string value = option->results().at(taken[option]++);
            const bool isBare = !takesValue && value == "true" && !isSwitch(name);
            if (!takesValue && !isSwitch(name) && !isBare) {
                throw UsageError(fmt::format("--{} takes no value.", name));
            }
            parsed.options.push_back({name, isBare ? std::string() : value});
        }
        for (const auto& word : app_.remaining()) {
            if (word.size() > 1 && word.starts_with('-')) throw UsageError(unknownOption(command_, word));
            parsed.operands.push_back(word);
        }
        return parsed;
    }

  private:
    void add(const CommandOption& option) {
        const std::string spelling =
            option.letter == '\0' ? "--" + option.name : fmt::format("-{},--{}", option.letter, option.name);
        const auto keep = [](const CLI::results_t&) { return true; };
        CLI::Option* added = option.takesValue() ? app_.add_option(spelling, keep) : app_.add_flag(spelling);
        if (option.takesValue()) added->expected(1);
        added->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
        names_[added] = {option.name, option.takesValue()};
        if (option.isSwitch) {
            const std::string off = std::string(offPrefix) + option.name;
            names_[app_.add_flag("--" + off)->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)] = {off,
                                                                                                       false};
        }
    }

    bool isSwitch(const std::string& name) const {
        return std::ranges::any_of(command_.options, [&](const CommandOption& option) {
            return option.isSwitch && option.name == name;
        });
    }

    const CommandDescription& command_;
    CLI::App app_;
    std::map<const CLI::Option*, std::pair<std::string, bool>> names_;
};

}  // namespace

bool ParsedArguments::has(std::string_view option) const {
    return std::ranges::find(options, option, &Given::option) != options.end();
}

std::optional<std::string> ParsedArguments::value(std::string_view option) const {
    const auto reversed = options | std::views::reverse;
    const auto found = std::ranges::find(reversed, option, &Given::option);
    return found == reversed.end() ? std::nullopt : std::optional(found->value);
}

ParsedArguments parseArguments(const CommandDescription& command, std::span<const std::string> arguments) {
    const auto end = std::ranges::find(arguments, "--");
    const auto beforeEnd = static_cast<std::size_t>(end - arguments.begin());
    BorrowedParser parser(command);
    parser.parse(withSwitchValuesJoined(command, arguments.first(beforeEnd)));
    ParsedArguments parsed = parser.result();
    if (end != arguments.end()) parsed.operands.insert(parsed.operands.end(), end + 1, arguments.end());
    return parsed;
}

}  // namespace tamble
