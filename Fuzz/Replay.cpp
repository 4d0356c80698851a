// Feeds files, and all files of folders, to a target once each.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "Property.h"

namespace {

void feed(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(file), {}};
    if (!file) {
        std::fprintf(stderr, "Cannot be read: %s\n", path.c_str());
        std::exit(2);
    }
    // Named first, so that it is known when the target does not come back.
    std::fprintf(stderr, "%s\n", path.filename().c_str());
    // In a block of exactly its size, where a sanitizer sees a step beyond the end.
    const std::vector<std::uint8_t> bytes(content.begin(), content.end());
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
}

}  // namespace

int main(int count, char** words) {
    std::size_t fed = 0;
    for (const std::filesystem::path path : std::span(words, static_cast<std::size_t>(count)).subspan(1)) {
        if (!std::filesystem::is_directory(path)) {
            feed(path);
            ++fed;
            continue;
        }
        for (const auto& entry : std::filesystem::directory_iterator(path)) {
            feed(entry.path());
            ++fed;
        }
    }
    std::fprintf(stderr, "%zu files fed\n", fed);
    return fed == 0 ? 2 : 0;
}
