#include <Tamble/Model/ToolSession.h>

#include <TambleCore/Platform/FinderOrder.h>
#include <TambleCore/Support/PathKey.h>

#include <algorithm>
#include <unordered_set>

namespace tamble {
namespace {

/// The indexes of the files in the order of their keys; equal ones keep their order.
template <typename Key>
std::vector<std::size_t> orderBy(std::size_t count, const Key& key) {
    std::vector<std::size_t> order(count);
    for (std::size_t i = 0; i < count; ++i) order[i] = i;
    std::ranges::stable_sort(order, {}, key);
    return order;
}

std::vector<std::string> namesOf(std::span<const InputFile> files) {
    std::vector<std::string> names;
    names.reserve(files.size());
    for (const InputFile& file : files) names.push_back(file.url.filename().native());
    return names;
}

std::vector<std::size_t> orderByName(std::span<const InputFile> files) {
    const std::vector<std::string> names = namesOf(files);
    const std::vector<std::string_view> views(names.begin(), names.end());
    return FinderOrder().sorted(views);
}

}  // namespace

ToolSession::ToolSession(const ToolInfo& tool)
    : info_(&tool), definition_(ToolCatalog::definition(tool.id)), settings_(definition_->defaults) {
    examine();
}

void ToolSession::examine() {
    const ToolWork work = definition_->makeWork(settings_, secrets);
    if (const auto* processor = std::get_if<std::unique_ptr<FileProcessor>>(&work)) {
        canReplace_ = (*processor)->canReplaceOriginals();
    } else {
        const bool isCombiner = std::holds_alternative<std::unique_ptr<FileCombiner>>(work);
        shape_ = isCombiner ? Shape::combiner : Shape::renamer;
    }
}

std::size_t ToolSession::add(std::span<const InputFile> found) {
    std::unordered_set<std::string> known;
    for (const InputFile& file : files_) known.insert(file.url.native());
    const std::size_t before = files_.size();
    for (const InputFile& file : found) {
        if (definition_->accepts(file.contentType) && known.insert(file.url.native()).second) {
            files_.push_back(file);
            added_.push_back(nextNumber_++);
        }
    }
    return files_.size() - before;
}

void ToolSession::remove(std::span<const std::size_t> indexes) {
    std::vector<std::size_t> kept;
    const std::unordered_set<std::size_t> gone(indexes.begin(), indexes.end());
    for (std::size_t i = 0; i < files_.size(); ++i) {
        if (!gone.contains(i)) kept.push_back(i);
    }
    arrange(kept);
}

void ToolSession::removeAll() {
    files_.clear();
    added_.clear();
}

void ToolSession::move(std::size_t from, std::size_t to) {
    if (from >= files_.size() || to >= files_.size()) return;
    std::vector<std::size_t> order(files_.size());
    for (std::size_t i = 0; i < order.size(); ++i) order[i] = i;
    order.erase(order.begin() + static_cast<std::ptrdiff_t>(from));
    order.insert(order.begin() + static_cast<std::ptrdiff_t>(to), from);
    arrange(order);
}

void ToolSession::sort(FileOrder order) {
    const std::size_t count = files_.size();
    switch (order) {
        case FileOrder::asDropped:
            return arrange(orderBy(count, [this](std::size_t i) { return added_[i]; }));
        case FileOrder::byName:
            return arrange(orderByName(files_));
        case FileOrder::bySize:
            return arrange(orderBy(count, [this](std::size_t i) { return -files_[i].byteSize; }));
        case FileOrder::byKind:
            return arrange(orderBy(count, [this](std::size_t i) {
                return files_[i].contentType ? files_[i].contentType->identifier() : std::string_view();
            }));
    }
}

void ToolSession::arrange(std::span<const std::size_t> order) {
    std::vector<InputFile> files;
    std::vector<std::uint64_t> added;
    for (const std::size_t i : order) {
        files.push_back(std::move(files_[i]));
        added.push_back(added_[i]);
    }
    files_ = std::move(files);
    added_ = std::move(added);
}

std::int64_t ToolSession::inputBytes() const {
    std::int64_t bytes = 0;
    for (const InputFile& file : files_) bytes += file.byteSize;
    return bytes;
}

bool ToolSession::hasFolders() const {
    return !std::ranges::all_of(files_, &InputFile::isLoose);
}

void ToolSession::change(const Json& changes) {
    settings_ = definition_->schema.merged(settings_, changes);
    examine();
}

std::string ToolSession::missing() const {
    if (!definition_->missing) return {};
    const auto failure = definition_->missing(settings_, secrets);
    return failure ? failure->sentence() : std::string();
}

JobOrder ToolSession::order(std::chrono::year_month_day day, int maxConcurrent) const {
    JobConfiguration configuration{.location = save.saveLocation(day), .clashPolicy = save.clashPolicy};
    if (maxConcurrent > 0) configuration.maxConcurrent = maxConcurrent;
    return {.tool = definition_,
            .settings = settings_,
            .secrets = secrets,
            .files = files_,
            .configuration = std::move(configuration),
            .renameWay = renameWay};
}

}  // namespace tamble
