// What a journal adds up to, whatever a power cut or a dying program left of its lines.
#include <TambleCore/Jobs/Journal/JournalText.h>

#include "Property.h"

namespace {

using namespace tamble;

/// Everything that was read, to compare.
Json written(const JournalText& text) {
    Json planned = Json::array();
    for (const auto& [index, line] : text.planned) planned.push_back(encodeJson(line));
    return {encodeJson(text.job), planned, text.hasBegun, encodeJson(text.record)};
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string content(fuzz::textOf({data, size}));
    const JournalText text = JournalText::of(content);
    const Json whole = written(text);
    fuzz::require(written(JournalText::of(content + "\n{\"begun\":")) == whole,
                  "a line that was not finished changes nothing");
    const Json record = encodeJson(text.record);
    fuzz::require(encodeJson(decodeJson<UndoRecord>(parseJson(writeJson(record)))) == record,
                  "the record comes back as it was");
    return 0;
}
