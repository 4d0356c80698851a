#pragma once

#include <TambleCore/Support/WorkContext.h>

#include <filesystem>
#include <string>

namespace tamble::pdf {

/// Has a file that was just made take this password to open: what was locked stays so. It is unlocked only
/// for this moment, in the job's private folder.
void lock(const std::filesystem::path& file, const std::string& password, const WorkContext& context);

}  // namespace tamble::pdf
