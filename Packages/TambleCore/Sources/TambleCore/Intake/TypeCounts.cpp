#include <TambleCore/Intake/TypeCounts.h>

#include <algorithm>

namespace tamble {

std::vector<TypeCount> typeCounts(std::span<const InputFile> files) {
    std::vector<TypeCount> counts;
    for (const InputFile& file : files) {
        auto known = std::ranges::find(counts, file.contentType, &TypeCount::type);
        if (known == counts.end()) known = counts.insert(known, {.type = file.contentType});
        ++known->files;
    }
    return counts;
}

}  // namespace tamble
