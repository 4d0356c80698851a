#pragma once

#include <TambleCore/Images/SubjectMask.h>

namespace tamble {

/// Finds a subject without a trained network: what stands out from the picture's border is parted from the
/// rest by its colours. Good for one subject before a calm background; answers empty where no such subject
/// shows. Takes pictures of any size; holds one byte a pixel at full size, and a fixed amount for the reduced
/// ones.
class ContrastSubjectMask final : public SubjectMask {
  public:
    std::optional<std::vector<std::uint8_t>> find(const SubjectPicture& picture,
                                                  const WorkContext& context) const override;
};

}  // namespace tamble
