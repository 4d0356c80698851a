#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/PDF/Structure/Assembly/Assembly.h>
#include <TambleCore/PDF/Structure/Assembly/PartQueue.h>

#include <algorithm>
#include <utility>

namespace tamble::pdf {

Assembly::Assembly(std::vector<std::unique_ptr<AssemblyPart>> parts) : parts_(std::move(parts)) {
    tags_ = frame_.document().qpdf().makeIndirectObject(QPDFObjectHandle::newDictionary());
}

QPDFObjectHandle Assembly::inFrame(AssemblyPart& part, QPDFObjectHandle value) {
    return frame_.copied(value, [&part](QPDFObjectHandle object) { return part.include(object); });
}

QPDFObjectHandle Assembly::contentInFrame(AssemblyPart& part, QPDFObjectHandle object) {
    return frame_.copiedContent(object, [&part](QPDFObjectHandle held) { return part.include(held); });
}

void Assembly::addPart(FileWriter& writer, AssemblyPart& part) {
    const bool isTagged = part.document().root().getKey("/StructTreeRoot").isDictionary();
    part.setFirstNumber(writer.reserve(part.numberCount()));
    part.hangInto(pagesNumber_, bookmarksNumber_);
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

void Assembly::joinBookmarks() {
    const auto numberOf = [this](std::size_t index) {
        return parts_[index]->numberOf(parts_[index]->bookmark());
    };
    for (std::size_t i = 0; i < parts_.size(); ++i) {
        const bool isLast = i + 1 == parts_.size();
        parts_[i]->setNeighbours(i > 0 ? std::optional(numberOf(i - 1)) : std::nullopt,
                                 isLast ? std::nullopt : std::optional(numberOf(i + 1)));
    }
    bookmarks_.replaceKey("/Type", QPDFObjectHandle::newName("/Outlines"));
    bookmarks_.replaceKey("/First", inFrame(*parts_.front(), parts_.front()->bookmark()));
    bookmarks_.replaceKey("/Last", inFrame(*parts_.back(), parts_.back()->bookmark()));
    bookmarks_.replaceKey("/Count", QPDFObjectHandle::newInteger(static_cast<long long>(parts_.size())));
    frame_.root().replaceKey("/Outlines", bookmarks_);
}

void Assembly::finishFrame() {
    frame_.pages().replaceKey("/Count", QPDFObjectHandle::newInteger(pageCount_));
    joinBookmarks();
    setNamedDestinations(frame_.document(), namedPlaces_);
    setNames(frame_.document(), "/EmbeddedFiles", attachments_);
    if (hasLabels_) setLabels(frame_.document(), labels_);
    for (const auto& part : parts_) {
        auto language = part->document().root().getKey("/Lang");
        if (language.isString() && !frame_.root().hasKey("/Lang"))
            frame_.root().replaceKey("/Lang", language.unsafeShallowCopy());
    }
}

std::string Assembly::version() const {
    // Packed objects came with 1.5; what everybody reads is 1.7.
    std::string version = "1.7";
    for (const auto& part : parts_) version = std::max(version, part->document().qpdf().getPDFVersion());
    return version;
}

void Assembly::writeTo(const std::filesystem::path& destination, const WorkContext& context, double from) {
    try {
        FileWriter writer(destination, version());
        pagesNumber_ = writer.reserve();
        frame_.give(frame_.pages(), pagesNumber_);
        bookmarksNumber_ = writer.reserve();
        bookmarks_ = frame_.makeObject(QPDFObjectHandle::newDictionary(), bookmarksNumber_);
        taggedPartsNumber_ = writer.reserve();
        taggedParts_ = frame_.makeObject(QPDFObjectHandle::newDictionary(), taggedPartsNumber_);
        for (const auto& part : parts_) addPart(writer, *part);
        finishFrame();
        PartQueue queue(parts_, context.stop);
        for (std::size_t i = 0; i < parts_.size(); ++i) {
            queue.next().writeTo(writer);
            queue.discard(std::move(parts_[i]));
            context.report(from +
                           (1 - from) * static_cast<double>(i + 1) / static_cast<double>(parts_.size()));
        }
        frame_.finish(writer, context.stop);
    } catch (const std::filesystem::filesystem_error& error) {
        throw PDFError(PDFError::Case::writeFailed, error.what());
    }
}

}  // namespace tamble::pdf
