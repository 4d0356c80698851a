#include <TambleCore/Jobs/OutputPlanner.h>
#include <TambleCore/Jobs/WatchedInput.h>
#include <TambleCore/Support/Text.h>

namespace tamble {
namespace {

using Kind = InputFailure::Kind;

/// The user may have dropped a link, and meant the file that it leads to.
std::optional<FileState> stateOf(const std::filesystem::path& path) {
    return FileState::of(path, FileState::Links::follow);
}

}  // namespace

InputFailure::InputFailure(Kind kind, const std::string& subject)
    : Failure(kind == Kind::missing ? "inputMissing" : "inputChanged",
              subject + (kind == Kind::missing ? " is no longer there."
                                               : " changed while it was being worked on.")) {}

WatchedInput::WatchedInput(const InputFile& file, Subject subject)
    : file_(file),
      subject_(subject == Subject::thisFile ? "This file"
                                            : "“" + printable(file.url.filename().native()) + "”"),
      input_(stateOf(file.url)),
      original_(file.originalURL ? stateOf(originalOf(file)) : input_) {
    if (!input_) throw InputFailure(Kind::missing, subject_);
}

void WatchedInput::throwIfChanged() const {
    tamble::throwIfChanged(file_.url, input_, subject_);
}

void throwIfChanged(const std::filesystem::path& path, const std::optional<FileState>& before,
                    const std::string& subject) {
    const auto now = stateOf(path);
    if (!now) throw InputFailure(Kind::missing, subject);
    if (now != before) throw InputFailure(Kind::changed, subject);
}

}  // namespace tamble
