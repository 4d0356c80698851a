#pragma once

#include <TambleCore/Intake/ScanResult.h>
#include <TambleCore/Jobs/JobEngine.h>

/// The documents that --json prints.
namespace tamble {

/// A scanned file as it is printed.
struct FileFields {
    FilePath url;
    FilePath root;
    std::string relativeFolder;
    std::int64_t byteSize = 0;
    std::optional<std::string> contentType;
};
BOOST_DESCRIBE_STRUCT(FileFields, (), (url, root, relativeFolder, byteSize, contentType))
FileFields fieldsOf(const InputFile& file);

Json scanCountsJson(const ScanResult& scan);
/// One item per input, in input order; `activityID` is empty for a job that is not in the activity log.
Json jobResultJson(const JobResult& result, const ScanResult& scan, const std::string& activityID);
/// A plan as the result of a job would be, its outcomes "planned", "skipped" or "failed".
Json jobPlanJson(std::span<const InputFile> files, const JobPlan& plan);

}  // namespace tamble
