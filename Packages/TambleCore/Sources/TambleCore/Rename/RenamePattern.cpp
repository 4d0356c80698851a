#include <TambleCore/Rename/RenamePattern.h>

#include <array>

namespace tamble {
namespace {

using Range = std::pair<std::int64_t, std::int64_t>;

constexpr std::array<SettingHint, 12> hints{{
    {.field = "base",
     .help = "The new name of every file, without its extension",
     .shortFlag = "text",
     .shortCase = "text"},
    {.field = "find", .help = "Text to look for in the names"},
    {.field = "replaceWith", .help = "What replaces it, everywhere in the name"},
    {.field = "matchCase", .help = "Look for exactly these upper and lower case letters"},
    {.field = "prefix", .help = "Text before the name"},
    {.field = "suffix", .help = "Text after the name"},
    {.field = "numbering", .help = "Number the files, before or after the name"},
    {.field = "startNumber",
     .help = "The number of the first file",
     .range = Range(0, RenamePattern::largestStartNumber)},
    {.field = "digits",
     .help = "At least so many digits, with zeros in front",
     .range = Range(1, RenamePattern::mostDigits)},
    {.field = "separator", .help = "What stands between the number and the name"},
    {.field = "letterCase", .help = "Upper and lower case of the name"},
    {.field = "newExtension", .help = "Another extension instead of each file's own; “” takes it away"},
}};

}  // namespace

SettingsSchema renameSchema() {
    return settingsSchema<RenamePattern>(hints);
}

}  // namespace tamble
