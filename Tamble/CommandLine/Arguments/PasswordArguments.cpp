#include <Tamble/CommandLine/Arguments/PasswordArguments.h>
#include <Tamble/CommandLine/Arguments/UsageError.h>
#include <Tamble/CommandLine/Text/HiddenInput.h>

#include <fstream>
#include <iostream>

#include <fmt/format.h>

namespace tamble {
namespace {

/// Without the carriage return of files that were written elsewhere.
std::optional<std::string> firstLine(std::istream& stream) {
    std::string line;
    if (!std::getline(stream, line)) return std::nullopt;
    if (line.ends_with('\r')) line.pop_back();
    return line;
}

std::string fromFile(const std::string& file, const ParsedArguments& arguments, std::istream& standardInput) {
    std::optional<std::string> line;
    if (file == "-") {
        if (arguments.has("null")) {
            throw UsageError("--password-file: Standard input can't hold both the password and the paths.");
        }
        line = firstLine(standardInput);
    } else {
        std::ifstream stream(file);
        line = firstLine(stream);
    }
    if (!line) throw UsageError(fmt::format("--password-file: “{}” holds no password.", file));
    return *std::move(line);
}

std::string typed(PasswordUse use) {
    const auto answer = askHidden("Password: ");
    if (!answer)
        throw UsageError("There is no terminal to ask for the password on; use --password-file FILE.");
    if (use == PasswordUse::isNew && askHidden("The same again: ") != answer) {
        throw UsageError("The two passwords differ.");
    }
    return *answer;
}

}  // namespace

std::span<const CommandOption> passwordOptions(PasswordUse use) {
    static const std::vector<CommandOption> options{
        {.name = "password-file",
         .value = "FILE",
         .help = "Read the password from the first line of a file, or of standard input for -",
         .completes = Completes::files},
        {.name = "ask-password", .help = "Ask for the password of locked PDFs on the terminal"}};
    if (use == PasswordUse::none) return {};
    // A tool that is about a password asks without being told to.
    return std::span(options).first(use == PasswordUse::opensInputs ? 2 : 1);
}

Secrets secretsFrom(const ToolDefinition& tool, const ParsedArguments& arguments,
                    std::istream& standardInput) {
    const PasswordUse use = tool.password;
    if (use == PasswordUse::none) return {};
    if (const auto file = arguments.value("password-file"))
        return {.password = fromFile(*file, arguments, standardInput)};
    if (use != PasswordUse::opensInputs || arguments.has("ask-password")) return {.password = typed(use)};
    return {};
}

}  // namespace tamble
