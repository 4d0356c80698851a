// The records that are kept on disk: the activity log and what undo needs. The journal's lines belong here as
// well.
#include <Tamble/Model/ActivityEntry.h>

#include "Property.h"

namespace {

using namespace tamble;

template <typename Record>
void checkRoundTrip(const Json& document) {
    try {
        const auto record = decodeJson<Record>(document);
        const Json written = encodeJson(record);
        const Json again = encodeJson(decodeJson<Record>(parseJson(writeIndentedJson(written))));
        fuzz::require(written == again, "a record that decodes comes back as it was");
    } catch (const DecodeError&) {
    }
}

void checkDates(const Json& document) {
    if (!document.is_array()) return;
    for (const Json& entry : document) {
        const auto date = entry.is_object() ? entry.find("date") : entry.end();
        if (!entry.is_object() || date == entry.end() || !date->is_string()) continue;
        const auto text = date->get<std::string>();
        const auto time = timeOfISODate(text);
        // A leap second is the next minute's first.
        if (time && !text.ends_with(":60Z"))
            fuzz::require(isoDate(*time) == text, "a date is written as it was read");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const Json document = parseJson(fuzz::textOf({data, size}));
        checkRoundTrip<std::vector<ActivityEntry>>(document);
        checkRoundTrip<UndoRecord>(document);
        checkDates(document);
    } catch (const DecodeError&) {
    }
    return 0;
}
