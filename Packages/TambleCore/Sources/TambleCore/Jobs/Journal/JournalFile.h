#pragma once

#include <TambleCore/Jobs/Journal/JobJournal.h>
#include <TambleCore/Jobs/Journal/JournalLine.h>
#include <TambleCore/Platform/FileLock.h>

namespace tamble {

/// The journal of one job on disk. It is locked while its writer lives, so that others see when the job died;
/// what it then tells is read by InterruptedJob.
///
/// The plan is synced to the disk before the first change; the lines after it are only written, since what a
/// power cut may take of them can be found out from the plan and the disk.
class JournalFile final : public JobJournal {
  public:
    static constexpr std::string_view fileExtension = ".journal";

    /// Writes nothing before the first output is planned.
    JournalFile(std::filesystem::path folder, journal::Job job);
    /// Leaves the file of a job that was not forgotten.
    ~JournalFile() override;

    /// Removes the file: the job is remembered elsewhere now, or left nothing to remember.
    void forget();

    void willSave(const PlannedSave& save) override;
    void willBeginSaving() override;
    void didCreateFolder(const std::filesystem::path& folder) override;
    void didTrash(const TrashedItem& item) override;
    void didPutBack(const TrashedItem& item) override;
    void didCreate(const std::filesystem::path& output, const FileFingerprint& fingerprint) override;
    void willRename(const PlannedRename& rename) override;
    void didRenameAll() override;
    void didKeepAllNames() override;

  private:
    void open();
    void add(const journal::Line& line);
    void flush();

    std::filesystem::path file_;
    journal::Job job_;
    std::optional<FileLock> lock_;
    std::string unwritten_;
    bool hasBegun_ = false;
};

}  // namespace tamble
