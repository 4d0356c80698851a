#pragma once

#include <TambleCore/Support/WorkContext.h>

#include <filesystem>
#include <functional>
#include <string>

namespace tamble::pdf {

/// Has `write` make a file, which then takes this password to open: what was locked stays so. It is unlocked
/// only for that moment, in the job's private folder.
void writeLocked(const std::filesystem::path& destination, const std::string& password,
                 const WorkContext& context, const std::function<void(const std::filesystem::path&)>& write);

}  // namespace tamble::pdf
