#include <Tamble/Model/ChosenHelpers.h>

#include <cstdlib>

namespace tamble {

Environment chosenHelpers(const PreferencesStore& preferences) {
    constexpr const char* subjectModel = "TAMBLE_SUBJECT_MODEL";
    if (std::getenv(subjectModel) != nullptr) return {};
    const auto chosen = preferences.subjectModel();
    std::error_code ignored;
    if (!std::filesystem::exists(chosen, ignored)) return {};
    return {{subjectModel, chosen.native()}};
}

}  // namespace tamble
