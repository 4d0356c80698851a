#pragma once

#include <TambleCore/PDF/Structure/Document.h>

#include <optional>
#include <unordered_map>
#include <unordered_set>

namespace tamble::pdf {

/// Inches.
struct DrawnSize {
    double width = 0;
    double height = 0;
};

/// The largest size at which each picture is drawn on any page, by the number of its object.
class DrawnPictures {
  public:
    /// Reads the content of all pages that can draw one of `pictures`, with everything that is drawn in them:
    /// forms, patterns, soft masks and the looks of annotations. Throws Cancelled.
    static DrawnPictures of(const Document& document, const std::unordered_set<int>& pictures,
                            const WorkContext& context);

    /// Empty when it is never drawn, or when how large it is drawn cannot be told.
    std::optional<DrawnSize> size(int picture) const;

    void draw(int picture, DrawnSize size);
    /// From now on its size counts as unknown.
    void pin(int picture) { pinned_.insert(picture); }

  private:
    std::unordered_map<int, DrawnSize> sizes_;
    std::unordered_set<int> pinned_;
};

}  // namespace tamble::pdf
