#pragma once

#include <TambleCore/Intake/ScanResult.h>

#include <string>

namespace tamble {

/// Why a scan found nothing to work on.
std::string nothingFoundSentence(const ScanResult& scan);

}  // namespace tamble
