#pragma once

#include <Tamble/CommandLine/Arguments/ArgumentParser.h>

#include <TambleCore/Jobs/JobEngine.h>

namespace tamble {

/// Where to save, what to do about taken names and how many items at once. Throws UsageError.
JobConfiguration jobConfiguration(const ParsedArguments& arguments);

}  // namespace tamble
