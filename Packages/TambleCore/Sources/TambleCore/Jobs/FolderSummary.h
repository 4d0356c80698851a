#pragma once

#include <TambleCore/Jobs/JobResult.h>

#include <span>

namespace tamble {

/// What became of the files of one source folder.
struct FolderSummary {
    std::string id;
    /// The folder's name; none for loose files.
    std::optional<std::string> name;
    std::filesystem::path folderURL;
    /// 0 for a dropped folder itself.
    int depth = 0;
    int total = 0;
    int done = 0;
    /// Includes those counted in alreadyInFormat.
    int skipped = 0;
    int alreadyInFormat = 0;
    int failed = 0;
};
BOOST_DESCRIBE_STRUCT(FolderSummary, (),
                      (id, name, folderURL, depth, total, done, skipped, alreadyInFormat, failed))

/// One row per source folder, in the order of their first files; loose files of one folder are a row of their
/// own.
std::vector<FolderSummary> folderSummaries(std::span<const ItemResult> items);

}  // namespace tamble
