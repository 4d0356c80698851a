#include <TambleCore/PDF/Structure/PageLabels.h>
#include <TambleCore/PDF/Structure/Pieces/Piece.h>
#include <TambleCore/PDF/Structure/Pieces/PieceFields.h>

namespace tamble::pdf {

Piece::Piece(const Document& source, Renumbering& numbers, FileWriter& writer)
    : source_(source), numbers_(numbers), writer_(writer) {}

Frame::Take Piece::take() {
    return [this](QPDFObjectHandle object) {
        included_.push_back(object);
        return numbers_.numberOf(object.getObjectID());
    };
}

void Piece::addPages(const std::vector<QPDFObjectHandle>& pages, QPDFObjectHandle parent) {
    const int number = writer_.reserve();
    frame_.give(frame_.pages(), number);
    numbers_.standIns.insert_or_assign(parent.getObjectID(), number);
    for (const auto& page : pages) frame_.pages().getKey("/Kids").appendItem(frame_.copied(page, take()));
    frame_.pages().replaceKey("/Count", QPDFObjectHandle::newInteger(static_cast<long long>(pages.size())));
}

bool Piece::isHere(const Bookmark& bookmark) const {
    return bookmark.place && !numbers_.nothing.contains(bookmark.pageNumber);
}

std::vector<Bookmark> Piece::own(const std::vector<Bookmark>& bookmarks) {
    std::vector<Bookmark> found;
    const auto inFrame = [this](const std::optional<QPDFObjectHandle>& value) {
        return value ? std::optional(frame_.copiedContent(*value, take())) : std::nullopt;
    };
    for (const Bookmark& bookmark : bookmarks) {
        auto below = own(bookmark.children);
        const bool leadsOut = !bookmark.place && bookmark.action;
        if (!isHere(bookmark) && !leadsOut && below.empty()) continue;
        found.push_back({.title = bookmark.title,
                         .place = isHere(bookmark) ? inFrame(bookmark.place) : std::nullopt,
                         .action = inFrame(bookmark.action),
                         .colour = inFrame(bookmark.colour),
                         .style = inFrame(bookmark.style),
                         .isOpen = bookmark.isOpen,
                         .children = std::move(below)});
    }
    return found;
}

void Piece::addBookmarks(const std::vector<Bookmark>& bookmarks) {
    setBookmarks(frame_.document(), own(bookmarks));
}

void Piece::addLabels(std::span<const int> pages) {
    PageLabels labels;
    appendLabels(source_, pages, 0, labels);
    for (auto& label : labels) label = frame_.copiedContent(label, take());
    setLabels(frame_.document(), labels);
}

void Piece::addFields(const std::vector<QPDFObjectHandle>& pages) {
    auto form = source_.root().getKey("/AcroForm");
    if (!form.isDictionary()) return;
    auto fields = PieceFields(frame_, numbers_, writer_, take()).fieldsOf(pages);
    if (fields.getArrayNItems() == 0) return;
    auto copy = QPDFObjectHandle::newDictionary();
    copy.replaceKey("/Fields", fields);
    for (const char* key : {"/DR", "/DA", "/Q", "/NeedAppearances"}) {
        if (form.hasKey(key)) copy.replaceKey(key, frame_.copied(form.getKey(key), take()));
    }
    frame_.root().replaceKey("/AcroForm", copy);
}

void Piece::addProperties() {
    auto information = source_.qpdf().getTrailer().getKey("/Info");
    if (information.isDictionary())
        information_ = frame_.addObject(frame_.copiedContent(information, take()), writer_);
    for (const char* key : {"/Metadata", "/Lang", "/ViewerPreferences", "/PageLayout", "/PageMode",
                            "/OCProperties", "/OutputIntents"}) {
        if (source_.root().hasKey(key))
            frame_.root().replaceKey(key, frame_.copied(source_.root().getKey(key), take()));
    }
}

void Piece::finish(const std::stop_token& stop) {
    CarriedObjects::reachable(source_, included_, numbers_, stop).writeTo(writer_);
    frame_.finish(writer_, stop, information_);
}

}  // namespace tamble::pdf
