#pragma once

#include <Tamble/Model/JobTotals.h>

#include <TambleCore/Jobs/JobEngine.h>

#include <string>
#include <vector>

namespace tamble {

/// The one line that closes a job: saved, skipped with reasons, failed with sentences, bytes before and
/// after, how to undo. `undoCommand` is empty for a job that left nothing to undo.
std::string closingLine(const JobResult& result, const std::string& undoCommand);

/// One line for each file that failed, with its sentence, and for each that was saved otherwise than asked.
std::vector<std::string> problemLines(const JobResult& result);

/// One line for each input of a plan, then the line that closes it.
std::vector<std::string> planLines(std::span<const InputFile> files, const JobPlan& plan);

/// The path as people read it: relative to the current folder for what is in it.
std::string shownPath(const std::filesystem::path& path);

}  // namespace tamble
