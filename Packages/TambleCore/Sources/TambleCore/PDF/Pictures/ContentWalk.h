#pragma once

#include <TambleCore/PDF/Pictures/StreamData.h>

#include <unordered_map>
#include <unordered_set>

#include <qpdf/QPDFMatrix.hh>

namespace tamble::pdf {

/// A picture, and how its unit square is placed.
struct PictureDraw {
    int picture = 0;
    QPDFMatrix matrix;
};
using PictureDraws = std::vector<PictureDraw>;

/// Thrown when content is damaged, or made to exhaust whoever reads it.
struct UnreadableContent {};

/// Finds where content draws pictures. What is drawn in many places is read once.
class ContentWalk {
  public:
    ContentWalk(const std::unordered_set<int>& pictures, const WorkContext& context)
        : pictures_(pictures), context_(context) {}

    /// What `content`, a stream or an array of streams, draws in its own space. Throws
    /// UnreadableContent; Cancelled.
    PictureDraws draws(QPDFObjectHandle content, QPDFObjectHandle resources);
    /// What a form or the cell of a pattern draws in the space in which it is placed. `outer` are the
    /// resources of a form that has none of its own.
    const PictureDraws& drawsOfForm(QPDFObjectHandle form, QPDFObjectHandle outer);

    /// All pictures that content with these resources could draw.
    std::vector<int> picturesIn(QPDFObjectHandle resources) const;
    /// Those that could be drawn in glyphs, whose size is not followed.
    std::vector<int> picturesOfGlyphs(QPDFObjectHandle resources) const;

    bool isPicture(QPDFObjectHandle object) const {
        return object.isStream() && pictures_.contains(object.getObjectID());
    }
    /// Counts against what one document may draw.
    void spend(std::size_t draws);

  private:
    void readInto(QPDFObjectHandle content, Bytes& text);

    const std::unordered_set<int>& pictures_;
    const WorkContext& context_;
    std::unordered_map<int, PictureDraws> forms_;
    std::unordered_set<int> open_;
    std::size_t bytesRead_ = 0;
    std::size_t drawsMade_ = 0;
};

}  // namespace tamble::pdf
