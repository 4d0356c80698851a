#include <TambleCore/PDF/Structure/Carrying/Frame.h>

namespace tamble::pdf {

Frame::Frame() {
    pages().replaceKey("/Kids", QPDFObjectHandle::newArray());
}

QPDFObjectHandle Frame::makeObject(QPDFObjectHandle object, int number) {
    auto made = document_.qpdf().makeIndirectObject(object);
    give(made, number);
    return made;
}

int Frame::addObject(QPDFObjectHandle object, FileWriter& writer) {
    const int number = writer.reserve();
    others_.push_back(makeObject(object, number));
    return number;
}

void Frame::give(QPDFObjectHandle object, int number) {
    numbers_.given.insert_or_assign(object.getObjectID(), number);
}

QPDFObjectHandle Frame::standIn(int number) {
    const auto known = standIns_.find(number);
    if (known != standIns_.end()) return known->second;
    // Not null: a key with nothing is no key.
    auto made = document_.qpdf().makeIndirectObject(QPDFObjectHandle::newDictionary());
    numbers_.standIns.emplace(made.getObjectID(), number);
    return standIns_.emplace(number, made).first->second;
}

QPDFObjectHandle Frame::copied(QPDFObjectHandle value, const Take& take) {
    return value.isIndirect() ? standIn(take(value)) : copiedContent(value, take);
}

QPDFObjectHandle Frame::copiedContent(QPDFObjectHandle object, const Take& take) {
    if (object.isArray()) {
        auto copy = QPDFObjectHandle::newArray();
        for (const auto& item : object.getArrayAsVector()) copy.appendItem(copied(item, take));
        return copy;
    }
    if (object.isDictionary()) {
        auto copy = QPDFObjectHandle::newDictionary();
        for (const auto& [key, value] : object.getDictAsMap()) copy.replaceKey(key, copied(value, take));
        return copy;
    }
    return object.unsafeShallowCopy();
}

void Frame::finish(FileWriter& writer, const std::stop_token& stop, std::optional<int> information) {
    numbers_.base = writer.reserve(static_cast<int>(document_.qpdf().getObjectCount()) + 1);
    std::vector<QPDFObjectHandle> from = others_;
    from.push_back(root());
    CarriedObjects::reachable(document_, from, numbers_, stop).writeTo(writer);
    writer.finish(numbers_.numberOf(root().getObjectID()), information);
}

}  // namespace tamble::pdf
