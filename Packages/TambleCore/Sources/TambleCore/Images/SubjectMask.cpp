#include <TambleCore/Images/ConversionError.h>
#include <TambleCore/Images/SubjectMask.h>
#include <TambleCore/Support/LoadedModule.h>

namespace tamble {

const SubjectMask& subjectMask() {
    static const SubjectMask* const engine = [] {
        try {
            return reinterpret_cast<SubjectMaskFunction>(
                moduleSymbol("libTambleSubject.so", subjectMaskSymbol))();
        } catch (const std::runtime_error& error) {
            throw ConversionError(ConversionError::Case::backgroundRemovalFailed, error.what());
        }
    }();
    return *engine;
}

}  // namespace tamble
