#pragma once

#include <Tamble/Model/ActivityEntry.h>

namespace tamble {

/// As much of an entry's id as is shown and typed.
std::string shortID(const ActivityEntry& entry);

/// "2026-11-13 10:41", in local time.
std::string localDate(const ActivityEntry& entry);

}  // namespace tamble
