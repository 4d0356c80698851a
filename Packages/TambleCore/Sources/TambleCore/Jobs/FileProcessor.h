#pragma once

#include <TambleCore/Intake/InputFile.h>
#include <TambleCore/Jobs/SkipReason.h>
#include <TambleCore/Jobs/WorkNeeds.h>
#include <TambleCore/Support/WorkContext.h>

#include <span>

namespace tamble {

/// A tool that makes one output of each input. Its functions are called from several threads at once.
class FileProcessor {
  public:
    virtual ~FileProcessor() = default;

    /// The extension of the files it writes, without the dot.
    virtual std::string fileExtension() const = 0;
    /// The file name of the output for this input; a name ending in "/" names a folder.
    virtual std::string outputName(const InputFile& file) const = 0;
    /// Asked before any work; an answer leaves the item alone.
    virtual std::optional<SkipReason> skipReason(const InputFile& file) const = 0;
    /// Writes exactly one file (or folder) at `destination`, which does not exist yet. Throws ProcessorSkip
    /// to leave the item alone, Cancelled after a stop request, and Failure (or any other exception) to fail
    /// it.
    virtual void process(const InputFile& file, const std::filesystem::path& destination,
                         const WorkContext& context) const = 0;
    /// A tool that answers false never takes the place of originals.
    virtual bool canReplaceOriginals() const = 0;
    /// Whether the output is the same picture, page or recording as the input, and so keeps its modification
    /// time.
    virtual bool keepsModificationTime() const { return false; }
    virtual WorkNeeds needs() const { return {}; }
};

/// A tool that makes one output of many inputs.
class FileCombiner {
  public:
    virtual ~FileCombiner() = default;

    virtual std::string fileExtension() const = 0;
    /// The file name of the one output.
    virtual std::string outputName(std::span<const InputFile> files) const = 0;
    /// Writes exactly one file at `destination`; throws as FileProcessor::process does.
    virtual void combine(std::span<const InputFile> files, const std::filesystem::path& destination,
                         const WorkContext& context) const = 0;
    virtual WorkNeeds needs() const { return {}; }
};

}  // namespace tamble
