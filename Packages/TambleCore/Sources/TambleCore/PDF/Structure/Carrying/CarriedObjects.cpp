#include <TambleCore/PDF/Structure/Carrying/CarriedObjects.h>

#include <unordered_set>

#include <qpdf/Buffer.hh>

namespace tamble::pdf {
namespace {

/// Longer data stay in their file until they are written.
constexpr long long longData = 256 << 10U;

std::string_view textOf(Buffer& buffer) {
    return {reinterpret_cast<const char*>(buffer.getBuffer()), buffer.getSize()};
}

}  // namespace

CarriedObjects CarriedObjects::reachable(const Document& document, const std::vector<QPDFObjectHandle>& from,
                                         const Renumbering& numbers, const std::stop_token& stop) {
    CarriedObjects carried;
    std::unordered_set<int> seen;
    std::vector<QPDFObjGen> waiting;
    for (const auto& object : from) waiting.push_back(object.getObjGen());
    while (!waiting.empty()) {
        if (stop.stop_requested()) throw Cancelled();
        const QPDFObjGen next = waiting.back();
        waiting.pop_back();
        if (numbers.standIns.contains(next.getObj()) || !seen.insert(next.getObj()).second) continue;
        carried.add(document.qpdf().getObject(next), numbers, waiting);
    }
    carried.closePack();
    return carried;
}

void CarriedObjects::add(QPDFObjectHandle object, const Renumbering& numbers,
                         std::vector<QPDFObjGen>& references) {
    // What is missing is nothing in the new file, too.
    if (object.isNull()) return;
    const int number = numbers.numberOf(object.getObjectID());
    if (object.isStream()) return addStream(object, number, numbers, references);
    if (packs_.empty() || packs_.back().isFull()) {
        closePack();
        packs_.emplace_back();
    }
    std::string body;
    appendRenumbered(body, object.unparseResolved(), ObjectKind::ordinary, numbers, references);
    packs_.back().add(number, body);
}

void CarriedObjects::addStream(QPDFObjectHandle stream, int number, const Renumbering& numbers,
                               std::vector<QPDFObjGen>& references) {
    Stream carried{.number = number};
    auto dictionary = stream.getDict();
    appendRenumbered(carried.dictionary, dictionary.unparseResolved(), ObjectKind::streamDictionary, numbers,
                     references);
    carried.dictionary.resize(carried.dictionary.rfind(">>"));
    auto length = dictionary.getKey("/Length");
    if (length.isInteger() && length.getIntValue() > longData) {
        carried.stored = stream;
    } else {
        carried.data = textOf(*stream.getRawStreamData());
    }
    streams_.push_back(std::move(carried));
}

void CarriedObjects::closePack() {
    if (!packs_.empty()) packs_.back().close();
}

void CarriedObjects::writeTo(FileWriter& writer) const {
    for (const Stream& stream : streams_) {
        if (!stream.stored) {
            writer.addStream(stream.number, stream.dictionary, stream.data);
        } else {
            auto stored = *stream.stored;
            writer.addStream(stream.number, stream.dictionary, textOf(*stored.getRawStreamData()));
        }
    }
    for (const ObjectPack& pack : packs_) writer.addPack(pack);
}

}  // namespace tamble::pdf
