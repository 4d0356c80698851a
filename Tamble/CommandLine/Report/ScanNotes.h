#pragma once

#include <TambleCore/Intake/ScanResult.h>

#include <string>
#include <vector>

namespace tamble {

/// What a scan left out, as sentences.
std::vector<std::string> scanNotes(const ScanResult& scan);

/// Why a scan found nothing to work on.
std::string nothingFoundSentence(const ScanResult& scan);

}  // namespace tamble
