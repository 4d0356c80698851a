#pragma once

#include <TambleCore/PDF/Structure/Assembly/PartQueue.h>
#include <TambleCore/PDF/Structure/Carrying/Frame.h>
#include <TambleCore/PDF/Structure/PageLabels.h>

#include <map>
#include <memory>
#include <set>

namespace tamble::pdf {

/// One document made of several, with everything of each: a bookmark for each with its own below it, links,
/// named places, form fields that stay apart, attachments, page labels, layers and tags. What belongs to the
/// whole stands in a frame document; the parts' objects go into the new file as they are.
class Assembly {
  public:
    /// Of so many parts, at least one, which `open` makes; it is called by several threads, and throws what
    /// writeTo() then throws.
    Assembly(std::size_t partCount, PartQueue::Open open);

    /// Writes a new file, once; several parts are read side by side, and closed when they are written. Throws
    /// PDFError::writeFailed; Cancelled.
    void writeTo(const std::filesystem::path& destination, const WorkContext& context);

  private:
    /// In the frame: a copy of a value of a part, whose objects are taken along.
    QPDFObjectHandle inFrame(AssemblyPart& part, QPDFObjectHandle value);
    QPDFObjectHandle contentInFrame(AssemblyPart& part, QPDFObjectHandle object);

    void reserveNumbers(FileWriter& writer);
    void addPart(FileWriter& writer, AssemblyPart& part, std::size_t index);
    void addNamedPlaces(AssemblyPart& part);
    void addFields(AssemblyPart& part);
    void addLabels(AssemblyPart& part);
    void addAttachments(AssemblyPart& part);
    void addLayers(AssemblyPart& part);
    void addTags(AssemblyPart& part);
    void addBookmarks();
    void finishFrame();

    std::size_t partCount_;
    PartQueue::Open open_;
    Frame frame_;
    int pagesNumber_ = 0;
    int bookmarksNumber_ = 0;
    /// Those of the parts' bookmarks follow one another.
    int firstBookmarkNumber_ = 0;
    int taggedPartsNumber_ = 0;
    QPDFObjectHandle bookmarks_;
    /// The tree of tags and its one branch, which holds those of the parts.
    QPDFObjectHandle tags_;
    QPDFObjectHandle taggedParts_;
    /// The highest of the parts.
    std::string version_;
    int pageCount_ = 0;
    int tagCount_ = 0;
    std::map<std::string, QPDFObjectHandle> namedPlaces_;
    std::set<std::string> fieldNames_;
    PageLabels labels_;
    bool hasLabels_ = false;
    std::map<std::string, QPDFObjectHandle> attachments_;
};

}  // namespace tamble::pdf
