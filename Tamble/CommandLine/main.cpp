#include <Tamble/CommandLine/CommandLine.h>

#include <vector>

int main(int argumentCount, char** arguments) {
    const std::vector<std::string> words(arguments + (argumentCount > 0 ? 1 : 0), arguments + argumentCount);
    return static_cast<int>(tamble::runCommandLine(words));
}
