// Patterns over batches of names. The first byte chooses the way; the first line is a pattern in JSON, or a
// text to look for in the names; each line after it is the name of a file, or behind a "+" one that is taken
// by another.
#include <TambleCore/Rename/RenamePlanner.h>
#include <TambleCore/Support/NameFitting.h>
#include <TambleCore/Support/PathKey.h>

#include <set>

#include "Property.h"

namespace {

using namespace tamble;

bool isFileName(std::string_view name) {
    return !name.empty() && name.size() <= maximumNameLength && name != "." && name != ".." &&
           name.find('/') == std::string_view::npos && name.find('\0') == std::string_view::npos;
}

std::string_view takeLine(std::string_view& text) {
    const std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    return line;
}

RenamePattern patternOf(std::string_view line) {
    try {
        const auto pattern = decodeJson<RenamePattern>(parseJson(line));
        const Json written = encodeJson(pattern);
        fuzz::require(encodeJson(decodeJson<RenamePattern>(parseJson(writeJson(written)))) == written,
                      "a pattern that decodes comes back as it was");
        return pattern;
    } catch (const DecodeError&) {
        return {
            .find = std::string(line), .replaceWith = "x", .letterCase = RenamePattern::LetterCase::title};
    }
}

struct Batch {
    std::vector<InputFile> files;
    /// Where the files stand, and by their keys the names of others.
    std::set<std::string> places;
    std::set<std::string> taken;

    explicit Batch(std::string_view text) {
        while (!text.empty()) {
            std::string_view name = takeLine(text);
            const bool isOther = name.starts_with('+');
            if (isOther) name.remove_prefix(1);
            if (!isFileName(name)) continue;
            // Two folders, so that equal names need not clash.
            const std::string path = (name.size() % 2 == 0 ? "/even/" : "/odd/") + std::string(name);
            if (isOther) {
                taken.insert(pathKey(FilePath(path)));
            } else if (places.insert(path).second) {
                files.push_back({.url = path});
            }
        }
    }
};

void check(const Batch& batch, std::span<const RenameItem> items, RenameWay way) {
    fuzz::require(items.size() == batch.files.size(), "there is one item for each file");
    std::set<std::string> keys;
    for (std::size_t i = 0; i < items.size(); ++i) {
        const RenameItem& item = items[i];
        fuzz::require(item.file == batch.files[i], "the items are in the order of the files");
        if (item.problem) continue;
        fuzz::require(isFileName(item.newName), "a name without a problem names a file");
        const std::string key = pathKey(renamedPath(item));
        fuzz::require(keys.insert(key).second, "no two get one name");
        const bool isFreed = way == RenameWay::inPlace && batch.places.contains(renamedPath(item).native());
        fuzz::require(isFreed || !batch.taken.contains(key), "no file gets a name that is taken");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Input input(data, size);
    const RenameWay way = fuzz::takeByte(input) % 2 == 0 ? RenameWay::inPlace : RenameWay::copies;
    std::string_view text = fuzz::textOf(input);
    const RenamePattern pattern = patternOf(takeLine(text));
    const Batch batch(text);
    const auto items =
        RenamePlanner::plan(batch.files, pattern, way, [&](const std::filesystem::path& place) {
            fuzz::require(way == RenameWay::copies || !batch.places.contains(place.native()),
                          "no place of the batch's own is asked for");
            return batch.taken.contains(pathKey(place));
        });
    check(batch, items, way);
    return 0;
}
