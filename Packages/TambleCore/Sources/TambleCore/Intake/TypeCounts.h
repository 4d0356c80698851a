#pragma once

#include <TambleCore/Intake/InputFile.h>

#include <span>
#include <vector>

namespace tamble {

/// How many files are of one type; files of a drop are many, their types few.
struct TypeCount {
    std::optional<ContentType> type;
    int files = 0;
};

/// In the order in which the types are first met.
std::vector<TypeCount> typeCounts(std::span<const InputFile> files);

}  // namespace tamble
