#pragma once

#include <TambleCore/Support/WorkContext.h>

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace tamble {

/// An upright picture, 8-bit sRGB without alpha, rows from top to bottom: 3 · width · height bytes.
struct SubjectPicture {
    std::span<const std::uint8_t> pixels;
    int width = 0;
    int height = 0;
};

/// Finds the main subject of a picture.
class SubjectMask {
  public:
    virtual ~SubjectMask() = default;
    /// One byte a pixel, 0 outside and 255 inside the subject, soft at its edges; empty when there is no
    /// clear subject. Throws ConversionError::backgroundRemovalFailed when it could not be looked for;
    /// Cancelled after a stop request.
    virtual std::optional<std::vector<std::uint8_t>> find(const SubjectPicture& picture,
                                                          const WorkContext& context) const = 0;
};

/// The engine of the subject module, which is loaded by the first call and stays: the network in the file
/// named by TAMBLE_SUBJECT_MODEL, or in "subject-model.onnx" in the application's folder, else the one that
/// needs no model. Throws ConversionError::backgroundRemovalFailed when the module or the network cannot be
/// loaded.
const SubjectMask& subjectMask();

/// The name under which the module exports the function that answers its engine.
inline constexpr const char* subjectMaskSymbol = "tambleSubjectMask";
using SubjectMaskFunction = const SubjectMask* (*)();

}  // namespace tamble
