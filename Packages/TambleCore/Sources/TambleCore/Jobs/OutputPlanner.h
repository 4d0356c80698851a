#pragma once

#include <TambleCore/Intake/InputFile.h>
#include <TambleCore/Jobs/SaveLocation.h>

namespace tamble {

/// The original that a file is or, for an intermediate file, stands for.
const FilePath& originalOf(const InputFile& file);

/// Where outputs would go if every name were free.
struct OutputPlanner {
    SaveLocation location;

    /// The place of the output with this file name. A name that ends in "/" gives the path of a folder, which
    /// ends in
    /// "/" too; a name longer than a file system takes is shortened in its stem.
    std::filesystem::path intendedURL(const InputFile& file, const std::string& outputName) const;
};

}  // namespace tamble
