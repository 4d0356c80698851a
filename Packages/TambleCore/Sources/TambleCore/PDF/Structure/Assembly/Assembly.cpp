#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/PDF/Structure/Assembly/Assembly.h>

#include <algorithm>
#include <utility>

namespace tamble::pdf {
namespace {

/// Packed objects came with 1.5; what everybody reads is 1.7.
const std::string usualVersion = "1.7";

}  // namespace

Assembly::Assembly(std::size_t partCount, PartQueue::Open open)
    : partCount_(partCount), open_(std::move(open)) {
    tags_ = frame_.document().qpdf().makeIndirectObject(QPDFObjectHandle::newDictionary());
}

void Assembly::reserveNumbers(FileWriter& writer) {
    pagesNumber_ = writer.reserve();
    frame_.give(frame_.pages(), pagesNumber_);
    bookmarksNumber_ = writer.reserve();
    bookmarks_ = frame_.makeObject(QPDFObjectHandle::newDictionary(), bookmarksNumber_);
    taggedPartsNumber_ = writer.reserve();
    taggedParts_ = frame_.makeObject(QPDFObjectHandle::newDictionary(), taggedPartsNumber_);
    firstBookmarkNumber_ = writer.reserve(static_cast<int>(partCount_));
}

QPDFObjectHandle Assembly::inFrame(AssemblyPart& part, QPDFObjectHandle value) {
    return frame_.copied(value, [&part](QPDFObjectHandle object) { return part.include(object); });
}

QPDFObjectHandle Assembly::contentInFrame(AssemblyPart& part, QPDFObjectHandle object) {
    return frame_.copiedContent(object, [&part](QPDFObjectHandle held) { return part.include(held); });
}

void Assembly::addPart(FileWriter& writer, AssemblyPart& part, std::size_t index) {
    auto root = part.document().root();
    const bool isTagged = root.getKey("/StructTreeRoot").isDictionary();
    part.setFirstNumber(writer.reserve(part.numberCount()));
    const int bookmark = firstBookmarkNumber_ + static_cast<int>(index);
    part.hangInto(pagesNumber_, bookmarksNumber_, bookmark);
    part.setNeighbours(index > 0 ? std::optional(bookmark - 1) : std::nullopt,
                       index + 1 < partCount_ ? std::optional(bookmark + 1) : std::nullopt);
    version_ = std::max(version_, part.document().qpdf().getPDFVersion());
    if (auto language = root.getKey("/Lang"); language.isString() && !frame_.root().hasKey("/Lang"))
        frame_.root().replaceKey("/Lang", language.unsafeShallowCopy());
    frame_.pages().getKey("/Kids").appendItem(inFrame(part, part.pages()));
    addNamedPlaces(part);
    addFields(part);
    addLabels(part);
    addAttachments(part);
    addLayers(part);
    // The keys of a part without tags must not find those of another.
    constexpr std::int64_t nobodys = std::int64_t{1} << 30U;
    part.setTagOffset(isTagged ? tagCount_ : nobodys);
    if (isTagged) addTags(part);
    pageCount_ += part.document().pageCount();
}

void Assembly::addBookmarks() {
    bookmarks_.replaceKey("/Type", QPDFObjectHandle::newName("/Outlines"));
    bookmarks_.replaceKey("/First", frame_.standIn(firstBookmarkNumber_));
    bookmarks_.replaceKey("/Last", frame_.standIn(firstBookmarkNumber_ + static_cast<int>(partCount_) - 1));
    bookmarks_.replaceKey("/Count", QPDFObjectHandle::newInteger(static_cast<long long>(partCount_)));
    frame_.root().replaceKey("/Outlines", bookmarks_);
}

void Assembly::finishFrame() {
    frame_.pages().replaceKey("/Count", QPDFObjectHandle::newInteger(pageCount_));
    addBookmarks();
    setNamedDestinations(frame_.document(), namedPlaces_);
    setNames(frame_.document(), "/EmbeddedFiles", attachments_);
    if (hasLabels_) setLabels(frame_.document(), labels_);
    if (version_ > usualVersion)
        frame_.root().replaceKey("/Version", QPDFObjectHandle::newName("/" + version_));
}

void Assembly::writeTo(const std::filesystem::path& destination, const WorkContext& context) {
    try {
        FileWriter writer(destination, usualVersion);
        reserveNumbers(writer);
        PartQueue queue(partCount_, open_, context.stop);
        std::size_t added = 0;
        for (std::size_t i = 0; i < partCount_; ++i) {
            for (; added < std::min(partCount_, i + queue.lead()); ++added) {
                addPart(writer, queue.opened(added), added);
                queue.collect(added);
            }
            queue.objects(i).writeTo(writer);
            queue.discard(i);
            context.report(static_cast<double>(i + 1) / static_cast<double>(partCount_));
        }
        finishFrame();
        frame_.finish(writer, context.stop);
    } catch (const std::filesystem::filesystem_error& error) {
        throw PDFError(PDFError::Case::writeFailed, error.what());
    }
}

}  // namespace tamble::pdf
