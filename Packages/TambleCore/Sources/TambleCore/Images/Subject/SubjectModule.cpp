#include <TambleCore/Platform/StandardFolders.h>

#include <cstdlib>
#include <memory>

#include "ContrastSubjectMask.h"
#include "NetworkSubjectMask.h"
#include <opencv2/core/utility.hpp>

namespace tamble {
namespace {

/// The file that the user has named or put in its place; empty when there is none.
std::filesystem::path modelFile() {
    if (const char* named = std::getenv("TAMBLE_SUBJECT_MODEL"); named != nullptr && *named != '\0')
        return named;
    auto usual = folders::applicationSupport() / "subject-model.onnx";
    std::error_code ignored;
    return std::filesystem::exists(usual, ignored) ? usual : std::filesystem::path();
}

std::unique_ptr<const SubjectMask> chosenEngine() {
    if (const auto model = modelFile(); !model.empty()) return std::make_unique<NetworkSubjectMask>(model);
    // Several pictures are looked at side by side; threads within each would only fight.
    cv::setNumThreads(1);
    return std::make_unique<ContrastSubjectMask>();
}

}  // namespace
}  // namespace tamble

extern "C" const tamble::SubjectMask* tambleSubjectMask() {
    static const std::unique_ptr<const tamble::SubjectMask> engine = tamble::chosenEngine();
    return engine.get();
}
