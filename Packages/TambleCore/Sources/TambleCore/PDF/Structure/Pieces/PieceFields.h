#pragma once

#include <TambleCore/PDF/Structure/Carrying/Frame.h>

namespace tamble::pdf {

/// The form fields of a piece. A field can have widgets on several pages, so the piece gets fields of its own
/// with the widgets that are on its pages, under the names of the document's.
class PieceFields {
  public:
    PieceFields(Frame& frame, Renumbering& numbers, FileWriter& writer, Frame::Take take)
        : frame_(frame), numbers_(numbers), writer_(writer), take_(std::move(take)) {}

    /// An array of the fields at the top, for the frame.
    QPDFObjectHandle fieldsOf(const std::vector<QPDFObjectHandle>& pages);

  private:
    void hang(QPDFObjectHandle child, QPDFObjectHandle inFrame, int depth);
    QPDFObjectHandle ownField(QPDFObjectHandle field, int depth);

    Frame& frame_;
    Renumbering& numbers_;
    FileWriter& writer_;
    Frame::Take take_;
    QPDFObjectHandle top_ = QPDFObjectHandle::newArray();
    /// By the number of the document's field.
    std::map<int, QPDFObjectHandle> own_;
};

}  // namespace tamble::pdf
