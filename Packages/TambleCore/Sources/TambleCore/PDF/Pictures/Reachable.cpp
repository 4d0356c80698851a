#include <TambleCore/PDF/Pictures/Reachable.h>

#include <unordered_set>

namespace tamble::pdf {

void forEachReference(const QPDFObjectHandle& object,
                      const std::function<QPDFObjectHandle(const QPDFObjectHandle&)>& take) {
    std::vector<QPDFObjectHandle> containers{object};
    // Answers what shall stand there instead.
    const auto look = [&](QPDFObjectHandle value) {
        if (value.isIndirect()) return take(value);
        if (value.isDictionary() || value.isArray()) containers.push_back(value);
        return value;
    };
    const auto isOther = [](const QPDFObjectHandle& one, const QPDFObjectHandle& other) {
        return one.isIndirect() && one.getObjGen() != other.getObjGen();
    };
    while (!containers.empty()) {
        auto container = containers.back();
        containers.pop_back();
        if (container.isStream()) container = container.getDict();
        if (container.isDictionary()) {
            for (const auto& [key, value] : container.getDictAsMap()) {
                const auto instead = look(value);
                if (isOther(instead, value)) container.replaceKey(key, instead);
            }
        } else if (container.isArray()) {
            int index = 0;
            for (const auto& value : container.getArrayAsVector()) {
                const auto instead = look(value);
                if (isOther(instead, value)) container.setArrayItem(index, instead);
                ++index;
            }
        }
    }
}

std::vector<QPDFObjectHandle> reachableObjects(QPDF& document, const WorkContext& context) {
    std::vector<QPDFObjectHandle> reached;
    std::unordered_set<int> seen;
    const auto take = [&](const QPDFObjectHandle& object) {
        if (seen.insert(object.getObjectID()).second) reached.push_back(object);
        return object;
    };
    forEachReference(document.getTrailer(), take);
    for (std::size_t next = 0; next < reached.size(); ++next) {
        context.throwIfStopped();
        // `reached` grows.
        const QPDFObjectHandle object = reached[next];
        forEachReference(object, take);
    }
    return reached;
}

}  // namespace tamble::pdf
