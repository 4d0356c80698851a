#pragma once

#include <TambleCore/Intake/InputFile.h>
#include <TambleCore/Jobs/Isolation/JobRequest.h>
#include <TambleCore/Jobs/SkipReason.h>
#include <TambleCore/Support/ItemNote.h>

#include <span>

/// What the program and its worker processes say to each other.
namespace tamble {

/// An InputFile on its way to a worker.
struct FileMessage {
    std::filesystem::path url;
    std::optional<std::filesystem::path> root;
    /// Percent-encoded, since folder names are bytes.
    std::string relativeFolder;
    std::int64_t byteSize = 0;
    std::optional<std::string> contentType;
    std::optional<std::filesystem::path> originalURL;
    bool isLoose = false;
};
BOOST_DESCRIBE_STRUCT(FileMessage, (),
                      (url, root, relativeFolder, byteSize, contentType, originalURL, isLoose))

FileMessage messageOf(const InputFile& file);
std::vector<FileMessage> messagesOf(std::span<const InputFile> files);
/// Throws DecodeError for a folder that is wrongly encoded.
InputFile inputFile(const FileMessage& message);
std::vector<InputFile> inputFiles(std::span<const FileMessage> messages);

namespace request {
/// FileProcessor::process.
struct Process {
    static constexpr std::string_view caseName = "process";
    JobRequest job;
    /// See Secrets.
    std::string password;
    FileMessage file;
    std::filesystem::path destination;
};
BOOST_DESCRIBE_STRUCT(Process, (), (job, password, file, destination))
/// FileCombiner::combine.
struct Combine {
    static constexpr std::string_view caseName = "combine";
    JobRequest job;
    /// See Secrets.
    std::string password;
    std::vector<FileMessage> files;
    std::filesystem::path destination;
};
BOOST_DESCRIBE_STRUCT(Combine, (), (job, password, files, destination))
/// ToolDefinition::estimate.
struct Estimate {
    static constexpr std::string_view caseName = "estimate";
    JobRequest job;
    std::vector<FileMessage> files;
};
BOOST_DESCRIBE_STRUCT(Estimate, (), (job, files))
/// A stop request for the work in progress.
struct Stop {
    static constexpr std::string_view caseName = "stop";
};
BOOST_DESCRIBE_STRUCT(Stop, (), ())
}  // namespace request

using WorkerRequest = std::variant<request::Process, request::Combine, request::Estimate, request::Stop>;

namespace reply {
/// Said once, when the sandbox stands and before the first request is read.
struct Ready {
    static constexpr std::string_view caseName = "ready";
    /// Whether the kernel confines writing to the given folder.
    bool confinesFiles = false;
    /// Whether the kernel refuses network, programs and other processes.
    bool confinesCalls = false;
};
BOOST_DESCRIBE_STRUCT(Ready, (), (confinesFiles, confinesCalls))
struct Progress {
    static constexpr std::string_view caseName = "progress";
    /// 0…1.
    double value = 0;
};
BOOST_DESCRIBE_STRUCT(Progress, (), (value))

// Each request but Stop is answered by exactly one of the following.
struct Done {
    static constexpr std::string_view caseName = "done";
    std::optional<ItemNote> note = {};
};
BOOST_DESCRIBE_STRUCT(Done, (), (note))
struct Estimated {
    static constexpr std::string_view caseName = "estimated";
    std::optional<std::int64_t> value;
};
BOOST_DESCRIBE_STRUCT(Estimated, (), (value))
struct Skipped {
    static constexpr std::string_view caseName = "skipped";
    SkipReason value;
};
BOOST_DESCRIBE_STRUCT(Skipped, (), (value))
struct Cancelled {
    static constexpr std::string_view caseName = "cancelled";
};
BOOST_DESCRIBE_STRUCT(Cancelled, (), ())
/// The work threw a Failure.
struct Failed {
    static constexpr std::string_view caseName = "failed";
    std::string code;
    std::string sentence;
    std::string detail;
};
BOOST_DESCRIBE_STRUCT(Failed, (), (code, sentence, detail))
/// The work ran out of the memory that a worker may take.
struct OutOfMemory {
    static constexpr std::string_view caseName = "outOfMemory";
};
BOOST_DESCRIBE_STRUCT(OutOfMemory, (), ())
/// The work threw any other exception.
struct Threw {
    static constexpr std::string_view caseName = "threw";
    std::string value;
    /// The system's number of the error, of one that has it.
    std::optional<int> systemError;
};
BOOST_DESCRIBE_STRUCT(Threw, (), (value, systemError))
}  // namespace reply

using WorkerReply = std::variant<reply::Ready, reply::Progress, reply::Done, reply::Estimated, reply::Skipped,
                                 reply::Cancelled, reply::Failed, reply::OutOfMemory, reply::Threw>;

/// The longest message each side takes: a request may list a hundred thousand files, a reply is a few lines.
inline constexpr std::size_t longestRequest = std::size_t{256} << 20U;
inline constexpr std::size_t longestReply = std::size_t{1} << 20U;

/// A worker's last argument when it may start programs, behind the folder it may write in and its bytes of
/// memory.
inline constexpr std::string_view workerMayStartPrograms = "programs";

/// The descriptor under which a worker finds its connection to the program.
inline constexpr int workerConnection = 3;

}  // namespace tamble
