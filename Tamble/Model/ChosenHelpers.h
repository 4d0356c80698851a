#pragma once

#include <Tamble/Model/PreferencesStore.h>

#include <TambleCore/Jobs/Isolation/WorkerPool.h>

namespace tamble {

/// The environment in which workers use the helpers that the user chose, as far as their files are there;
/// what the environment of this program names goes first.
Environment chosenHelpers(const PreferencesStore& preferences);

}  // namespace tamble
