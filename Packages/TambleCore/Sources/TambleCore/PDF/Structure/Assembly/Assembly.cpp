#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/PDF/Structure/Assembly/Assembly.h>
#include <TambleCore/PDF/Structure/Assembly/PartQueue.h>

#include <algorithm>
#include <utility>

namespace tamble::pdf {

Assembly::Assembly(std::vector<std::unique_ptr<AssemblyPart>> parts) : parts_(std::move(parts)) {
    bookmarks_ = frame_.qpdf().makeIndirectObject(QPDFObjectHandle::newDictionary());
    tags_ = frame_.qpdf().makeIndirectObject(QPDFObjectHandle::newDictionary());
    taggedParts_ = frame_.qpdf().makeIndirectObject(QPDFObjectHandle::newDictionary());
    frame_.root().getKey("/Pages").replaceKey("/Kids", QPDFObjectHandle::newArray());
}

QPDFObjectHandle Assembly::inFrame(AssemblyPart& part, QPDFObjectHandle object) {
    if (object.isIndirect()) {
        part.include(object);
        const int number = part.numberOf(object);
        const auto known = standIns_.find(number);
        if (known != standIns_.end()) return known->second;
        auto standIn = frame_.qpdf().makeIndirectObject(QPDFObjectHandle::newDictionary());
        frameNumbers_.standIns.emplace(standIn.getObjectID(), number);
        return standIns_.emplace(number, standIn).first->second;
    }
    if (object.isArray()) {
        auto copy = QPDFObjectHandle::newArray();
        for (const auto& item : object.getArrayAsVector()) copy.appendItem(inFrame(part, item));
        return copy;
    }
    if (object.isDictionary()) {
        auto copy = QPDFObjectHandle::newDictionary();
        for (const auto& [key, value] : object.getDictAsMap()) copy.replaceKey(key, inFrame(part, value));
        return copy;
    }
    return object.unsafeShallowCopy();
}

void Assembly::addPart(FileWriter& writer, AssemblyPart& part) {
    const bool isTagged = part.document().root().getKey("/StructTreeRoot").isDictionary();
    part.setFirstNumber(writer.reserve(part.numberCount()));
    part.hangInto(frameNumbers_.numberOf(frame_.root().getKey("/Pages").getObjectID()),
                  frameNumbers_.numberOf(bookmarks_.getObjectID()));
    frame_.root().getKey("/Pages").getKey("/Kids").appendItem(inFrame(part, part.pages()));
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
    frame_.root().getKey("/Pages").replaceKey("/Count", QPDFObjectHandle::newInteger(pageCount_));
    joinBookmarks();
    setNamedDestinations(frame_, namedPlaces_);
    setNames(frame_, "/EmbeddedFiles", attachments_);
    if (hasLabels_) setLabels(frame_, labels_);
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
        for (const auto& object : {frame_.root().getKey("/Pages"), bookmarks_, taggedParts_})
            frameNumbers_.given.emplace(object.getObjectID(), writer.reserve());
        for (const auto& part : parts_) addPart(writer, *part);
        finishFrame();
        frameNumbers_.base = writer.reserve(static_cast<int>(frame_.qpdf().getObjectCount()) + 1);
        PartQueue queue(parts_, context.stop);
        for (std::size_t i = 0; i < parts_.size(); ++i) {
            queue.next().writeTo(writer);
            parts_[i].reset();
            context.report(from +
                           (1 - from) * static_cast<double>(i + 1) / static_cast<double>(parts_.size()));
        }
        CarriedObjects::reachable(frame_, {frame_.root()}, frameNumbers_, context.stop).writeTo(writer);
        writer.finish(frameNumbers_.numberOf(frame_.root().getObjectID()));
    } catch (const std::filesystem::filesystem_error& error) {
        throw PDFError(PDFError::Case::writeFailed, error.what());
    }
}

}  // namespace tamble::pdf
