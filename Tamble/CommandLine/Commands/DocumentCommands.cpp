#include <Tamble/CommandLine/Arguments/UsageError.h>
#include <Tamble/CommandLine/Commands/Commands.h>
#include <Tamble/CommandLine/Completion/Completion.h>
#include <Tamble/CommandLine/Help/ManPage.h>
#include <Tamble/CommandLine/Text/Terminal.h>

#include <TambleCore/Support/Text.h>

#include <array>

#include <fmt/format.h>

namespace tamble {

ExitStatus printCompletion(const ParsedArguments& arguments) {
    constexpr std::array<std::string_view, 3> shells{"bash", "zsh", "fish"};
    if (arguments.operands.size() != 1) throw UsageError("completion needs one shell: bash, zsh or fish.");
    const std::string& shell = arguments.operands.front();
    if (shell == "bash") {
        printOutput(bashCompletion());
    } else if (shell == "zsh") {
        printOutput(zshCompletion());
    } else if (shell == "fish") {
        printOutput(fishCompletion());
    } else {
        const std::string nearest = nearestWord(shell, shells);
        throw UsageError(fmt::format("completion: “{}” is not bash, zsh or fish.{}", shell,
                                     nearest.empty() ? "" : fmt::format(" Did you mean {}?", nearest)));
    }
    return ExitStatus::allDone;
}

ExitStatus printManPage() {
    printOutput(manPage());
    return ExitStatus::allDone;
}

}  // namespace tamble
