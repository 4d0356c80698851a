#pragma once

#include <TambleCore/Intake/InputFile.h>
#include <TambleCore/Jobs/SkipReason.h>
#include <TambleCore/Previews/PreviewPlace.h>
#include <TambleCore/Support/ItemNote.h>

#include <optional>
#include <string>
#include <vector>

namespace tamble {

/// What a tool made of one file, or why it left it alone. The files are in a private folder and go with the
/// value.
class PreviewResult {
  public:
    explicit PreviewResult(SkipReason reason);
    /// Of what the tool wrote at the place: a file, or a folder of files.
    PreviewResult(PreviewPlace place, std::string name, std::optional<ItemNote> note);

    /// Empty when there is an output.
    const std::optional<SkipReason>& skipped() const noexcept { return skipped_; }
    /// The name that a job would give to the output if it is free; it ends in "/" for a folder.
    const std::string& name() const noexcept { return name_; }
    /// The one file, or those of the folder in the order of their names; none when it was left alone. They
    /// can be shown as any other files.
    const std::vector<InputFile>& files() const noexcept { return files_; }
    /// Of all files together.
    std::int64_t byteSize() const;
    const std::optional<ItemNote>& note() const noexcept { return note_; }

  private:
    std::optional<SkipReason> skipped_;
    std::optional<PreviewPlace> place_;
    std::string name_;
    std::vector<InputFile> files_;
    std::optional<ItemNote> note_;
};

}  // namespace tamble
