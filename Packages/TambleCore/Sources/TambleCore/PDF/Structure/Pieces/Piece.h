#pragma once

#include <TambleCore/PDF/Structure/Bookmarks.h>
#include <TambleCore/PDF/Structure/Carrying/Frame.h>

#include <span>

namespace tamble::pdf {

/// One piece on its way into a file.
class Piece {
  public:
    /// `numbers` are those that the source's objects get; form fields, of which a piece may have only some,
    /// get others.
    Piece(const Document& source, Renumbering& numbers, FileWriter& writer);

    /// The pages must be everything that `numbers` does not leave behind.
    void addPages(const std::vector<QPDFObjectHandle>& pages, QPDFObjectHandle parent);
    void addBookmarks(const std::vector<Bookmark>& bookmarks);
    void addLabels(std::span<const int> pages);
    void addFields(const std::vector<QPDFObjectHandle>& pages);
    void addProperties();

    void finish(const std::stop_token& stop);

  private:
    Frame::Take take();
    bool isHere(const Bookmark& bookmark) const;
    std::vector<Bookmark> own(const std::vector<Bookmark>& bookmarks);

    const Document& source_;
    Renumbering& numbers_;
    FileWriter& writer_;
    Frame frame_;
    std::vector<QPDFObjectHandle> included_;
    std::optional<int> information_;
};

}  // namespace tamble::pdf
