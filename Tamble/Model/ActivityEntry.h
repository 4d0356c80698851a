#pragma once

#include <TambleCore/Jobs/JobResult.h>
#include <TambleCore/Jobs/Journal/JournalLine.h>

#include <chrono>
#include <span>

namespace tamble {

/// A finished job, as the activity log keeps it.
struct ActivityEntry {
    /// A UUID.
    std::string id;
    /// When the job finished: ISO 8601 in UTC, as in "2026-11-13T09:41:00Z".
    std::string date;
    std::string toolID;
    /// A short description of what was worked on.
    std::string subject;
    int doneCount = 0;
    int skippedCount = 0;
    int failedCount = 0;
    /// Bytes of all inputs, and of all outputs.
    std::int64_t inputBytes = 0;
    std::int64_t outputBytes = 0;
    std::vector<FilePath> outputFiles;
    UndoRecord undo;
    bool undone = false;
};
BOOST_DESCRIBE_STRUCT(ActivityEntry, (),
                      (id, date, toolID, subject, doneCount, skippedCount, failedCount, inputBytes,
                       outputBytes, outputFiles, undo, undone))

/// A job that begins now, under a new id.
journal::Job startedJob(std::string toolID, std::span<const InputFile> files);

/// What a job works on: the name of the one dropped folder, or the first file's name and how many others
/// there are, as in "beach.jpg and 11 others".
std::string activitySubject(std::span<const InputFile> files);

/// The entry of a job that finished just now.
ActivityEntry activityEntry(const journal::Job& job, const JobResult& result);
/// The entry of a job whose program died then while it saved.
ActivityEntry activityEntry(const journal::Job& job, UndoRecord undo,
                            std::chrono::system_clock::time_point died);

/// "2026-11-13T09:41:00Z".
std::string isoDate(std::chrono::system_clock::time_point time);
/// Empty when the text is not such a date.
std::optional<std::chrono::system_clock::time_point> timeOfISODate(std::string_view text);

/// Whether the job renamed files in place and did nothing else.
bool isOfRenames(const UndoRecord& record);

/// What the undo of a job did, as people read it.
std::string undoSentence(const UndoReport& report, const UndoRecord& record);

}  // namespace tamble
