#include <TambleCore/Jobs/SavePlanner.h>
#include <TambleCore/Support/PathKey.h>

namespace tamble {

SavePlanner::SavePlanner(SaveLocation location, ClashPolicy policy, Originals originals,
                         std::span<const InputFile> files)
    : outputs_{std::move(location)}, policy_(policy), originals_(originals) {
    if (policy != ClashPolicy::replace) return;
    for (const InputFile& file : files) {
        for (const auto& path : {standardized(file.url), standardized(originalOf(file))}) {
            if (inputs_.insert(path.native()).second) useFoldersAbove(path);
        }
    }
}

SavePlanner::Decision SavePlanner::next(const InputFile& file, const std::string& outputName) {
    const std::filesystem::path target = outputs_.intendedURL(file, outputName);
    Placement placement;
    placement.original = originalToTrash(file);
    // The original makes room only for its own output: another file of that name, in whatever spelling, is a
    // clash.
    const auto clashing = contents_.existing(target, placement.original);
    const bool takesOwnPlace = placement.original && !clashing;
    const ClashPolicy policy = policy_ == ClashPolicy::replace && clashing && mustStay(*clashing, target)
                                   ? ClashPolicy::addNumber
                                   : policy_;
    const auto decision =
        names_.resolve(target, policy, existsTest(), takesOwnPlace ? placement.original : std::nullopt);
    if (std::holds_alternative<NameResolver::Skip>(decision)) return outcome::Skipped{skip::NameTaken{}};
    if (const auto* use = std::get_if<NameResolver::Use>(&decision)) placement.target = use->url;
    if (const auto* use = std::get_if<NameResolver::UseAfterTrashingExisting>(&decision)) {
        placement.target = use->url;
        placement.clashing = clashing;
    }
    plan(placement);
    return placement;
}

std::filesystem::path SavePlanner::numberedInstead(const std::filesystem::path& target) {
    return names_.takeNumbered(target, existsTest());
}

std::optional<std::filesystem::path> SavePlanner::originalToTrash(const InputFile& file) const {
    if (!std::holds_alternative<location::ReplaceOriginals>(outputs_.location)) return std::nullopt;
    std::filesystem::path original = standardized(originalOf(file));
    // Dropped twice, standing for several files, or in the way of an earlier output: it is in the Bin by
    // then.
    if (trashed_.contains(original.native())) return std::nullopt;
    return original;
}

bool SavePlanner::mustStay(const std::filesystem::path& existing, const std::filesystem::path& target) const {
    if (originals_ == Originals::stay && inputs_.contains(existing.native())) return true;
    std::error_code error;
    if (!std::filesystem::is_directory(std::filesystem::symlink_status(existing, error))) return false;
    // A folder only makes way for a folder, and never with files of this job inside.
    return !namesFolder(target) || foldersInUse_.contains(existing.native());
}

void SavePlanner::plan(const Placement& placement) {
    for (const auto& leaving : {placement.original, placement.clashing}) {
        if (!leaving) continue;
        contents_.remove(*leaving);
        trashed_.insert(leaving->native());
    }
    if (policy_ == ClashPolicy::replace) useFoldersAbove(standardized(placement.target));
}

ExistsTest SavePlanner::existsTest() {
    return [this](const std::filesystem::path& path) { return contents_.existing(path).has_value(); };
}

void SavePlanner::useFoldersAbove(const std::filesystem::path& path) {
    // Once a folder is known, so are those above it.
    for (std::filesystem::path folder = path.parent_path();
         foldersInUse_.insert(folder.native()).second && folder.has_relative_path();
         folder = folder.parent_path()) {
    }
}

}  // namespace tamble
