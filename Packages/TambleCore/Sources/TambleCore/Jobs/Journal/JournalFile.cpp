#include <TambleCore/Jobs/Journal/JournalFile.h>
#include <TambleCore/Platform/AtomicFile.h>
#include <TambleCore/Platform/FileProperties.h>
#include <TambleCore/Platform/SystemError.h>
#include <TambleCore/Support/Json/JsonText.h>

#include <cerrno>
#include <utility>

#include <unistd.h>

namespace tamble {
namespace {

/// Of a plan that is collected before it is written.
constexpr std::size_t bufferSize = 1U << 16U;

}  // namespace

JournalFile::JournalFile(std::filesystem::path folder, journal::Job job)
    : file_(std::move(folder) / (job.id + std::string(fileExtension))), job_(std::move(job)) {}

JournalFile::~JournalFile() = default;

void JournalFile::forget() {
    if (!lock_) return;
    ::unlink(file_.c_str());
    lock_.reset();
}

void JournalFile::willSave(const PlannedSave& save) {
    if (!lock_) open();
    const auto fingerprint = FileFingerprint::of(save.staged);
    add(journal::Planned{.index = save.index,
                         .target = save.placement.target,
                         .original = save.placement.original,
                         .clashing = save.placement.clashing,
                         .inode = inodeOf(save.staged).value_or(0),
                         .fingerprint = fingerprint.value_or(FileFingerprint{})});
}

void JournalFile::willBeginSaving() {
    if (!lock_) return;
    add(journal::Begun{});
    flush();
    if (::fdatasync(lock_->fileNumber()) != 0) throwLastError("cannot write", file_);
    syncFolder(file_.parent_path());
    hasBegun_ = true;
}

void JournalFile::didCreateFolder(const std::filesystem::path& folder) {
    add(journal::CreatedFolder{folder});
}

void JournalFile::didTrash(const TrashedItem& item) {
    add(journal::Trashed{item});
}

void JournalFile::didPutBack(const TrashedItem& item) {
    add(journal::PutBack{item});
}

void JournalFile::didCreate(const std::filesystem::path& output, const FileFingerprint& fingerprint) {
    add(journal::Created{output, fingerprint});
}

void JournalFile::willRename(const PlannedRename& rename) {
    if (!lock_) open();
    add(journal::Renaming{rename});
}

void JournalFile::didRenameAll() {
    add(journal::RenamedAll{});
}

void JournalFile::didKeepAllNames() {
    add(journal::KeptAllNames{});
}

/// A file that somebody tidied away between its making and its locking is no use.
void JournalFile::open() {
    std::filesystem::create_directories(file_.parent_path());
    do {
        lock_ = FileLock::waitFor(file_);
    } while (!lock_->isStillAt(file_));
    add(job_);
}

void JournalFile::add(const journal::Line& line) {
    // The break comes first: behind a line of which a full disk took a part, the next one still is its own.
    unwritten_ += '\n';
    appendJson(unwritten_, line);
    if (hasBegun_ || unwritten_.size() >= bufferSize) flush();
}

void JournalFile::flush() {
    const std::string text = std::exchange(unwritten_, {});
    writeAll(lock_->fileNumber(), text, file_);
}

}  // namespace tamble
