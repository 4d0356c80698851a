#include <TambleCore/PDF/Pictures/Duplicates.h>
#include <TambleCore/PDF/Pictures/Reachable.h>
#include <TambleCore/PDF/Pictures/StreamData.h>

#include <algorithm>
#include <array>
#include <functional>
#include <string_view>
#include <unordered_map>

namespace tamble::pdf {
namespace {

/// Equal soft masks make equal pictures, those equal forms, and so on; nothing is nested deeper in practice.
constexpr int mostRounds = 6;
/// Longer texts of dictionaries and arrays are not compared.
constexpr int mostItems = 2000;

std::string_view view(const Buffer& data) {
    return {reinterpret_cast<const char*>(const_cast<Buffer&>(data).getBuffer()), data.getSize()};
}

bool isOneOf(QPDFObjectHandle name, std::initializer_list<const char*> names) {
    return name.isName() &&
           std::any_of(names.begin(), names.end(), [&](const char* each) { return name.getName() == each; });
}

bool isShareable(QPDFObjectHandle object) {
    if (object.isDictionary()) {
        return isOneOf(object.getKey("/Type"), {"/Font", "/FontDescriptor", "/ExtGState", "/Encoding"}) ||
               object.hasKey("/FunctionType") || object.hasKey("/ShadingType");
    }
    if (!object.isArray() || object.getArrayNItems() == 0 || object.getArrayNItems() > mostItems)
        return false;
    if (isOneOf(object.getArrayItem(0),
                {"/ICCBased", "/Indexed", "/CalRGB", "/CalGray", "/Lab", "/Separation", "/DeviceN"}))
        return true;
    // The widths of characters.
    const auto items = object.getArrayAsVector();
    return std::all_of(items.begin(), items.end(), [](const QPDFObjectHandle& item) {
        return !item.isIndirect() && QPDFObjectHandle(item).isNumber();
    });
}

/// Equal for streams that may be equal.
std::string textOf(QPDFObjectHandle stream) {
    auto dictionary = stream.getDict().shallowCopy();
    auto length = dictionary.getKey("/Length");
    // The length may stand in an object of its own.
    dictionary.replaceKey("/Length",
                          QPDFObjectHandle::newInteger(length.isInteger() ? length.getIntValue() : -1));
    return dictionary.unparse();
}

class Round {
  public:
    Round(QPDF& document, const WorkContext& context)
        : objects_(reachableObjects(document, context)), document_(document), context_(context) {}

    /// Whether anything was merged.
    bool merge() {
        std::unordered_map<std::string, std::vector<QPDFObjectHandle>> alike;
        for (auto& object : objects_) {
            context_.throwIfStopped();
            if (object.isStream()) {
                alike[textOf(object)].push_back(object);
            } else if (isShareable(object)) {
                const auto first = others_.try_emplace(object.unparseResolved(), object).first->second;
                if (first.getObjectID() != object.getObjectID()) merged_.emplace(object.getObjectID(), first);
            }
        }
        for (const auto& [text, streams] : alike) {
            if (streams.size() > 1) mergeStreams(streams);
        }
        if (merged_.empty()) return false;
        const auto instead = [this](const QPDFObjectHandle& object) {
            const auto found = merged_.find(object.getObjectID());
            return found == merged_.end() ? object : found->second;
        };
        forEachReference(document_.getTrailer(), instead);
        for (const auto& object : objects_) {
            context_.throwIfStopped();
            forEachReference(object, instead);
        }
        return true;
    }

    const std::vector<QPDFObjectHandle>& objects() const { return objects_; }

  private:
    void mergeStreams(const std::vector<QPDFObjectHandle>& streams) {
        std::unordered_map<std::size_t, QPDFObjectHandle> firsts;
        for (const auto& stream : streams) {
            context_.throwIfStopped();
            const auto data = codedData(stream);
            if (data == nullptr) continue;
            const auto [first, isNew] =
                firsts.try_emplace(std::hash<std::string_view>()(view(*data)), stream);
            if (isNew) continue;
            const auto other = codedData(first->second);
            if (other != nullptr && view(*other) == view(*data))
                merged_.emplace(stream.getObjectID(), first->second);
        }
    }

    std::vector<QPDFObjectHandle> objects_;
    QPDF& document_;
    const WorkContext& context_;
    std::unordered_map<std::string, QPDFObjectHandle> others_;
    std::unordered_map<int, QPDFObjectHandle> merged_;
};

}  // namespace

std::vector<QPDFObjectHandle> mergeDuplicates(QPDF& document, const WorkContext& context) {
    for (int round = 0; round < mostRounds; ++round) {
        Round merging(document, context);
        if (!merging.merge()) return merging.objects();
    }
    return reachableObjects(document, context);
}

}  // namespace tamble::pdf
