#include <Tamble/CommandLine/Report/NothingFound.h>
#include <Tamble/CommandLine/Text/Amounts.h>

#include <fmt/format.h>

namespace tamble {

std::string nothingFoundSentence(const ScanResult& scan) {
    if (scan.otherFileCount > 0) {
        return fmt::format("None of {} is of a kind that this tool works with.",
                           countText(scan.otherFileCount, "file", "files"));
    }
    return "The folder you chose is empty or couldn't be read.";
}

}  // namespace tamble
