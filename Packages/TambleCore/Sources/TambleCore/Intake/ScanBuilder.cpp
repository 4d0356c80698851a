#include <TambleCore/Intake/ScanBuilder.h>
#include <TambleCore/Support/Log.h>
#include <TambleCore/Support/PathKey.h>
#include <TambleCore/Support/Text.h>

#include <fcntl.h>

namespace tamble {
namespace {

constexpr Log intakeLog("intake");

bool isPackage(std::string_view folderName) {
    const auto type = ContentType::forExtension(extensionOf(folderName));
    return type && type->conformsTo("com.apple.package");
}

}  // namespace

void FolderScanner::Builder::visit(const std::filesystem::path& url) {
    if (stop_.stop_requested()) return;
    const auto item = standardized(url);
    const auto properties = itemProperties(AT_FDCWD, item.c_str());
    switch (properties.kind) {
        case ItemKind::unreadable:
            ++result_.unreadableCount;
            break;
        case ItemKind::symbolicLink:
            ++result_.skippedLinkCount;
            break;
        case ItemKind::folder:
            visitRoot(item);
            break;
        case ItemKind::regularFile:
            visitLooseFile(item, properties.byteSize);
            break;
        case ItemKind::other:
            break;
    }
}

void FolderScanner::Builder::visitRoot(const std::filesystem::path& url) {
    if (isPackage(url.filename().native())) {
        ++result_.skippedPackageCount;
        return;
    }
    const auto itemsMetBefore = itemsMet_;
    FolderNode node{.url = url, .name = url.filename().native()};
    if (node.name.empty()) node.name = url.native();
    walk(AT_FDCWD, url.c_str(), node, url);
    if (itemsMet_ == itemsMetBefore) ++result_.emptyFolderCount;
    if (node.fileCount > 0 || !node.children.empty()) result_.roots.push_back(std::move(node));
}

void FolderScanner::Builder::visitLooseFile(const std::filesystem::path& url, std::int64_t byteSize) {
    const auto type = ContentType::of(url);
    if (!options_.accepts(type)) {
        ++result_.otherFileCount;
        return;
    }
    const auto folder = url.parent_path();
    if (!takenFrom(folder).insert(precomposed(url.filename().native())).second) return;
    files_.add(
        InputFile{.url = url, .root = folder, .byteSize = byteSize, .contentType = type, .isLoose = true});
    result_.totalBytes += byteSize;
    ++result_.looseFileCount;
}

void FolderScanner::Builder::walk(int parent, const char* name, FolderNode& node, const FilePath& root) {
    std::error_code error;
    const FileDescriptor folder = openFolder(parent, name, error);
    auto read = folder ? DirectoryListing::read(folder, error) : std::nullopt;
    if (!read) {
        ++result_.unreadableCount;
        intakeLog.error("Can't read folder {}: {}", privately(node.url), error.message());
        return;
    }
    const auto listing = std::make_shared<const DirectoryListing>(std::move(*read));
    FoundFiles found{
        .folder = node.url, .root = root, .relativeFolder = node.relativePath, .listing = listing};
    std::vector<std::string_view> subfolders;
    Names* const taken = mayRepeat(node, *listing) ? &takenFrom(node.url) : nullptr;
    for (const std::size_t index : order_.sorted(listing->names())) {
        if (stop_.stop_requested()) return;
        const auto item = listing->name(index);
        switch (listing->kind(index)) {
            case ItemKind::unreadable:
                ++result_.unreadableCount;
                break;
            case ItemKind::symbolicLink:
                ++itemsMet_;
                ++result_.skippedLinkCount;
                break;
            case ItemKind::folder:
                if (isPackage(item)) {
                    ++itemsMet_;
                    ++result_.skippedPackageCount;
                } else if (options_.includeSubfolders) {
                    subfolders.push_back(item);
                }
                break;
            case ItemKind::regularFile:
                ++itemsMet_;
                takeFile(folder.number(), item, found, taken);
                break;
            case ItemKind::other:
                break;
        }
    }
    node.fileCount = static_cast<int>(found.files.size());
    if (!found.files.empty()) files_.add(std::move(found));
    if (node.depth >= options_.maxDepth) {
        if (!subfolders.empty()) intakeLog.notice("Stopped at max depth in {}", privately(node.url));
        return;
    }
    for (const auto subfolder : subfolders) {
        if (stop_.stop_requested()) return;
        walkSubfolder(folder.number(), subfolder.data(), node, root);
    }
}

void FolderScanner::Builder::walkSubfolder(int parent, const char* name, FolderNode& parentNode,
                                           const FilePath& root) {
    FolderNode node{
        .url = parentNode.url / name,
        .name = name,
        .relativePath = parentNode.relativePath.empty() ? name : parentNode.relativePath + '/' + name,
        .depth = parentNode.depth + 1};
    walk(parent, name, node, root);
    if (node.fileCount > 0 || !node.children.empty()) parentNode.children.push_back(std::move(node));
}

void FolderScanner::Builder::takeFile(int parent, std::string_view name, FoundFiles& found, Names* taken) {
    const auto [type, isAccepted] = verdict(parent, name);
    if (!isAccepted) {
        ++result_.otherFileCount;
        return;
    }
    const auto properties = itemProperties(parent, name.data());
    if (properties.kind != ItemKind::regularFile) {
        ++result_.unreadableCount;
        return;
    }
    if (taken != nullptr && !taken->insert(precomposed(name)).second) return;
    found.files.push_back({.name = name, .byteSize = properties.byteSize, .contentType = type});
    result_.totalBytes += properties.byteSize;
}

bool FolderScanner::Builder::mayRepeat(const FolderNode& node, const DirectoryListing& listing) const {
    // Within one dropped folder only two spellings of one Unicode name give equal keys.
    return dropCount_ > 1 || !isASCII(node.relativePath) || !std::ranges::all_of(listing.names(), isASCII);
}

FolderScanner::Builder::Verdict FolderScanner::Builder::verdict(int parent, std::string_view name) {
    const auto extension = extensionOf(name);
    if (extension.empty()) {
        const auto type =
            ContentType::ofContent(firstBytes(parent, name.data(), ContentType::signatureLength));
        return {type, options_.accepts(type)};
    }
    if (const auto known = verdicts_.find(extension); known != verdicts_.end()) return known->second;
    const auto type = ContentType::forExtension(extension);
    return verdicts_.emplace(extension, Verdict{type, options_.accepts(type)}).first->second;
}

FolderScanner::Builder::Names& FolderScanner::Builder::takenFrom(const std::filesystem::path& folder) {
    return seen_[exactPathKey(folder)];
}

}  // namespace tamble
