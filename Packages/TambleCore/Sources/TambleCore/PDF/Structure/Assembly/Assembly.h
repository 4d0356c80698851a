#pragma once

#include <TambleCore/PDF/Structure/Assembly/AssemblyPart.h>
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
    /// Parts are used until writeTo() returns. There is at least one.
    explicit Assembly(std::vector<std::unique_ptr<AssemblyPart>> parts);

    /// Writes a new file; the parts are read side by side. Reports `from` … 1 of the work. Throws
    /// PDFError::writeFailed; Cancelled.
    void writeTo(const std::filesystem::path& destination, const WorkContext& context, double from);

  private:
    /// In the frame: a copy of a value of a part, whose objects are taken along.
    QPDFObjectHandle inFrame(AssemblyPart& part, QPDFObjectHandle value);
    QPDFObjectHandle contentInFrame(AssemblyPart& part, QPDFObjectHandle object);

    void addPart(FileWriter& writer, AssemblyPart& part);
    void addNamedPlaces(AssemblyPart& part);
    void addFields(AssemblyPart& part);
    void addLabels(AssemblyPart& part);
    void addAttachments(AssemblyPart& part);
    void addLayers(AssemblyPart& part);
    void addTags(AssemblyPart& part);
    void joinBookmarks();
    void finishFrame();
    std::string version() const;

    std::vector<std::unique_ptr<AssemblyPart>> parts_;
    Frame frame_;
    int pagesNumber_ = 0;
    int bookmarksNumber_ = 0;
    int taggedPartsNumber_ = 0;
    QPDFObjectHandle bookmarks_;
    /// The tree of tags and its one branch, which holds those of the parts.
    QPDFObjectHandle tags_;
    QPDFObjectHandle taggedParts_;
    int pageCount_ = 0;
    int tagCount_ = 0;
    std::map<std::string, QPDFObjectHandle> namedPlaces_;
    std::set<std::string> fieldNames_;
    PageLabels labels_;
    bool hasLabels_ = false;
    std::map<std::string, QPDFObjectHandle> attachments_;
};

}  // namespace tamble::pdf
