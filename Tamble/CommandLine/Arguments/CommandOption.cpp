#include <Tamble/CommandLine/Arguments/CommandOption.h>

#include <fmt/format.h>

namespace tamble {

std::string CommandOption::spelling() const {
    return letter == '\0' ? fmt::format("--{}", name) : fmt::format("-{}, --{}", letter, name);
}

std::string CommandOption::usage() const {
    return takesValue() ? fmt::format("{} {}", spelling(), value) : spelling();
}

}  // namespace tamble
