#pragma once

#include <TambleCore/Jobs/Journal/JournalLine.h>

#include <map>
#include <string_view>

namespace tamble {

/// What the lines of a journal add up to.
struct JournalText {
    journal::Job job;
    /// By index: the places that were meant last.
    std::map<std::uint64_t, journal::Planned> planned;
    bool hasBegun = false;
    /// What is known to have been changed.
    UndoRecord record;
    std::vector<PlannedRename> renames;
    /// How the renames ended, if they did.
    bool areAllRenamed = false;
    bool areAllNamesKept = false;

    /// Never throws: lines that are not whole, or no lines of a journal, are left out.
    static JournalText of(std::string_view content);
};

}  // namespace tamble
