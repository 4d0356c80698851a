#pragma once

#include <TambleCore/Jobs/JobEngine.h>

namespace tamble {

/// What becomes of the files that get new names; a choice of the job, as where to save is.
enum class RenameWay {
    inPlace,  ///< the files themselves are renamed, all or none
    copies,   ///< copies get the new names
};
BOOST_DESCRIBE_ENUM(RenameWay, inPlace, copies)

/// The new name of one file.
struct PlannedName {
    std::string newName;
    /// Why the file cannot have it.
    std::optional<ItemFailure> problem = {};
};

/// A tool that gives the files of a batch new names.
class FileRenamer {
  public:
    virtual ~FileRenamer() = default;

    /// One name per file, in the same order. Reads folders, changes nothing.
    virtual std::vector<PlannedName> plan(std::span<const InputFile> files, RenameWay way) const = 0;

    /// Renames the files themselves through the engine's file operations, told to its journal: all of them or
    /// none, and none as long as any has a problem. Never throws, as JobEngine::run(). A stop request counts
    /// until the first file is renamed.
    virtual JobResult renameInPlace(std::vector<InputFile> files, const JobEngine& engine,
                                    const ProgressCallback& onProgress = {},
                                    std::stop_token stop = {}) const = 0;

    /// What makes the renamed copies of these files. A name that is taken is no problem of theirs: the job
    /// settles it as it does for every output.
    virtual std::unique_ptr<FileProcessor> copier(std::span<const InputFile> files) const = 0;
};

}  // namespace tamble
