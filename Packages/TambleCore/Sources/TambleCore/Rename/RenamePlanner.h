#pragma once

#include <TambleCore/Jobs/FileRenamer.h>
#include <TambleCore/Jobs/NameResolver.h>
#include <TambleCore/Rename/RenameItem.h>
#include <TambleCore/Rename/RenamePattern.h>

#include <span>

/// Turns what people type into names. Touches nothing.
namespace tamble::RenamePlanner {

/// One item per file, in the same order, which is the order of the numbers. `exists` tells which names are
/// taken on disk. In place, those of the files themselves don't count as taken: their names become free.
std::vector<RenameItem> plan(std::span<const InputFile> files, const RenamePattern& pattern, RenameWay way,
                             const ExistsTest& exists);

/// What to ask for taken names: the folders on disk, each read once, by key. In place, without the files
/// themselves.
ExistsTest namesOnDisk(std::span<const InputFile> files, RenameWay way);

}  // namespace tamble::RenamePlanner
