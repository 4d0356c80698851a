#include <TambleCore/PDF/Structure/Pieces/PieceFields.h>

namespace tamble::pdf {
namespace {

/// Fields deeper than that are in a loop.
constexpr int deepest = 64;

}  // namespace

QPDFObjectHandle PieceFields::fieldsOf(const std::vector<QPDFObjectHandle>& pages) {
    for (auto page : pages) {
        auto annotations = page.getKey("/Annots");
        if (!annotations.isArray()) continue;
        for (auto& annotation : annotations.getArrayAsVector()) {
            const bool isWidget = annotation.isDictionary() && annotation.isIndirect() &&
                                  annotation.getKey("/Subtype").isNameAndEquals("/Widget");
            if (isWidget) hang(annotation, frame_.copied(annotation, take_), 0);
        }
    }
    return top_;
}

/// Into the field above, or at the top.
void PieceFields::hang(QPDFObjectHandle child, QPDFObjectHandle inFrame, int depth) {
    auto parent = child.getKey("/Parent");
    if (parent.isDictionary() && parent.isIndirect() && depth < deepest) {
        ownField(parent, depth + 1).getKey("/Kids").appendItem(inFrame);
    } else if (child.hasKey("/T") || child.hasKey("/FT")) {
        top_.appendItem(inFrame);
    }
}

QPDFObjectHandle PieceFields::ownField(QPDFObjectHandle field, int depth) {
    const auto known = own_.find(field.getObjectID());
    if (known != own_.end()) return known->second;
    const int number = writer_.reserve();
    auto copy = QPDFObjectHandle::newDictionary();
    for (const auto& [key, value] : field.getDictAsMap()) {
        if (key != "/Kids" && key != "/Parent") copy.replaceKey(key, frame_.copied(value, take_));
    }
    copy.replaceKey("/Kids", QPDFObjectHandle::newArray());
    auto own = frame_.makeObject(copy, number);
    own_.emplace(field.getObjectID(), own);
    // Its widgets know it by its new number.
    numbers_.standIns.insert_or_assign(field.getObjectID(), number);
    if (auto parent = field.getKey("/Parent");
        parent.isDictionary() && parent.isIndirect() && depth < deepest)
        own.replaceKey("/Parent", ownField(parent, depth + 1));
    hang(field, own, depth);
    return own;
}

}  // namespace tamble::pdf
