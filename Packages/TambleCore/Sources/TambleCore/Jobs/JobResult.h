#pragma once

#include <TambleCore/Intake/InputFile.h>
#include <TambleCore/Jobs/SkipReason.h>
#include <TambleCore/Jobs/UndoRecord.h>
#include <TambleCore/Support/ItemNote.h>

namespace tamble {

/// Why an item has no output.
struct ItemFailure {
    enum class Stage { processing, saving };
    BOOST_DESCRIBE_NESTED_ENUM(Stage, processing, saving)

    Stage stage = Stage::processing;
    /// A short machine word.
    std::string code;
    /// The cause as people read it.
    std::string detail;
    friend bool operator==(const ItemFailure&, const ItemFailure&) = default;
};
BOOST_DESCRIBE_STRUCT(ItemFailure, (), (stage, code, detail))

namespace outcome {
struct Done {
    static constexpr std::string_view caseName = "done";
    /// Where the output is.
    FilePath value;
    std::optional<ItemNote> note = {};
    friend bool operator==(const Done&, const Done&) = default;
};
BOOST_DESCRIBE_STRUCT(Done, (), (value, note))
struct Skipped {
    static constexpr std::string_view caseName = "skipped";
    SkipReason value;
    friend bool operator==(const Skipped&, const Skipped&) = default;
};
BOOST_DESCRIBE_STRUCT(Skipped, (), (value))
struct Failed {
    static constexpr std::string_view caseName = "failed";
    ItemFailure value;
    friend bool operator==(const Failed&, const Failed&) = default;
};
BOOST_DESCRIBE_STRUCT(Failed, (), (value))
struct Cancelled {
    static constexpr std::string_view caseName = "cancelled";
    friend bool operator==(const Cancelled&, const Cancelled&) = default;
};
BOOST_DESCRIBE_STRUCT(Cancelled, (), ())
}  // namespace outcome

using ItemOutcome = std::variant<outcome::Done, outcome::Skipped, outcome::Failed, outcome::Cancelled>;

/// What became of one input.
struct ItemResult {
    InputFile file;
    ItemOutcome outcome;
};

/// What became of a job: one result per input, in input order.
struct JobResult {
    std::vector<ItemResult> items;
    bool wasCancelled = false;
    UndoRecord undo;
    /// Seconds from start to end of the run.
    double duration = 0;
};

}  // namespace tamble
