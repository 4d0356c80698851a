#pragma once

#include <TambleCore/Jobs/UndoRecord.h>

#include <variant>

/// What a journal on disk holds: one line for each message, in JSON, in the order in which they came.
namespace tamble::journal {

/// The job, always the first line.
struct Job {
    static constexpr std::string_view caseName = "job";
    /// A UUID, under which the job will be in the activity log.
    std::string id;
    std::string toolID;
    /// A short description of what is worked on.
    std::string subject;
    /// Bytes of all inputs.
    std::int64_t inputBytes = 0;
    /// When it began, in seconds since 1970.
    double started = 0;
};
BOOST_DESCRIBE_STRUCT(Job, (), (id, toolID, subject, inputBytes, started))

/// An output and where it is to go; the last line of an index counts.
struct Planned {
    static constexpr std::string_view caseName = "planned";
    std::uint64_t index = 0;
    std::filesystem::path target;
    /// What goes to the Bin for it.
    std::optional<std::filesystem::path> original = {};
    std::optional<std::filesystem::path> clashing = {};
    /// Of the output, which keeps both when it is moved to its target.
    std::uint64_t inode = 0;
    FileFingerprint fingerprint;
};
BOOST_DESCRIBE_STRUCT(Planned, (), (index, target, original, clashing, inode, fingerprint))

/// The plan is complete. Without this line nothing was changed.
struct Begun {
    static constexpr std::string_view caseName = "begun";
};
BOOST_DESCRIBE_STRUCT(Begun, (), ())

struct CreatedFolder {
    static constexpr std::string_view caseName = "createdFolder";
    std::filesystem::path value;
};
BOOST_DESCRIBE_STRUCT(CreatedFolder, (), (value))

struct Trashed {
    static constexpr std::string_view caseName = "trashed";
    TrashedItem value;
};
BOOST_DESCRIBE_STRUCT(Trashed, (), (value))

struct PutBack {
    static constexpr std::string_view caseName = "putBack";
    TrashedItem value;
};
BOOST_DESCRIBE_STRUCT(PutBack, (), (value))

struct Created {
    static constexpr std::string_view caseName = "created";
    std::filesystem::path value;
    FileFingerprint fingerprint;
};
BOOST_DESCRIBE_STRUCT(Created, (), (value, fingerprint))

/// A file that is about to be renamed in place.
struct Renaming {
    static constexpr std::string_view caseName = "renaming";
    PlannedRename value;
};
BOOST_DESCRIBE_STRUCT(Renaming, (), (value))

struct RenamedAll {
    static constexpr std::string_view caseName = "renamedAll";
};
BOOST_DESCRIBE_STRUCT(RenamedAll, (), ())

struct KeptAllNames {
    static constexpr std::string_view caseName = "keptAllNames";
};
BOOST_DESCRIBE_STRUCT(KeptAllNames, (), ())

using Line = std::variant<Job, Planned, Begun, CreatedFolder, Trashed, PutBack, Created, Renaming, RenamedAll,
                          KeptAllNames>;

}  // namespace tamble::journal
