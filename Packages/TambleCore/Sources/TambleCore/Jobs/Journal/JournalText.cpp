#include <TambleCore/Jobs/Journal/JournalText.h>

#include <algorithm>
#include <iterator>
#include <ranges>

namespace tamble {
namespace {

class Reader {
  public:
    explicit Reader(JournalText& text) : text_(text) {}

    void operator()(journal::Job& line) { text_.job = std::move(line); }
    void operator()(journal::Planned& line) {
        const std::uint64_t index = line.index;
        text_.planned.insert_or_assign(index, std::move(line));
    }
    void operator()(journal::Begun&) { text_.hasBegun = true; }
    void operator()(journal::CreatedFolder& line) {
        if (!record().createdFolders) record().createdFolders.emplace();
        record().createdFolders->push_back(std::move(line.value));
    }
    void operator()(journal::Trashed& line) { record().trashedItems.push_back(std::move(line.value)); }
    void operator()(journal::PutBack& line) {
        // It went there a moment ago.
        auto& items = record().trashedItems;
        const auto found = std::ranges::find(items | std::views::reverse, line.value);
        if (found != items.rend()) items.erase(std::prev(found.base()));
    }
    void operator()(journal::Created& line) {
        record().createdFingerprints.insert_or_assign(fingerprintKey(line.value), line.fingerprint);
        record().createdFiles.push_back(std::move(line.value));
    }
    void operator()(journal::Renaming& line) { text_.renames.push_back(std::move(line.value)); }
    void operator()(journal::RenamedAll&) { text_.areAllRenamed = true; }
    void operator()(journal::KeptAllNames&) { text_.areAllNamesKept = true; }

  private:
    UndoRecord& record() { return text_.record; }

    JournalText& text_;
};

}  // namespace

JournalText JournalText::of(std::string_view content) {
    JournalText text;
    Reader reader(text);
    while (!content.empty()) {
        const std::string_view line = content.substr(0, content.find('\n'));
        content.remove_prefix(std::min(line.size() + 1, content.size()));
        if (line.empty()) continue;
        try {
            auto decoded = decodeJson<journal::Line>(parseJson(line));
            std::visit(reader, decoded);
        } catch (const DecodeError&) {
            // The program died while it wrote the line, or a power cut took it.
        }
    }
    return text;
}

}  // namespace tamble
