#include <Tamble/Desktop/Models/IntakeModel.h>
#include <Tamble/Desktop/Support/Background.h>
#include <Tamble/Desktop/Support/Texts.h>
#include <Tamble/Model/DropSummary.h>
#include <Tamble/Model/FittingTools.h>
#include <Tamble/Model/GoneFiles.h>

#include <TambleCore/Intake/FolderScanner.h>

#include <algorithm>
#include <unordered_set>

namespace tamble {
namespace {

constexpr std::size_t bestCount = 4;

ScanResult scanned(const std::vector<std::filesystem::path>& paths, std::stop_token stop) {
    ScanOptions options(true);
    // Every tool takes its own out of what was dropped.
    options.accepts = [](const std::optional<ContentType>&) { return true; };
    return FolderScanner{std::move(options)}.scan(paths, std::move(stop));
}

/// On a tool's card: how many of what it would work on.
QString filesText(const KindCounts& all, const ToolInfo& tool, int fileCount) {
    KindCounts counts;
    if (tool.category == ToolCategory::images) counts.images = fileCount;
    if (tool.category == ToolCategory::pdf && fileCount == all.pdfs) counts.pdfs = fileCount;
    if (tool.category == ToolCategory::pdf && fileCount == all.images) counts.images = fileCount;
    return texts::files(counts, static_cast<std::size_t>(fileCount));
}

}  // namespace

IntakeModel::IntakeModel(QObject* parent) : QObject(parent) {
    pool_.setMaxThreadCount(1);
}

IntakeModel::~IntakeModel() {
    scanning_.request_stop();
    pool_.waitForDone();
}

void IntakeModel::add(const QList<QUrl>& urls) {
    std::vector<std::filesystem::path> paths;
    for (const QUrl& url : urls) {
        if (const auto path = pathOf(url)) paths.push_back(*path);
    }
    if (paths.empty() && !urls.empty()) {
        emit nothingFound(tr("That isn't a file on this computer."));
    } else {
        add(std::move(paths));
    }
}

void IntakeModel::add(std::vector<std::filesystem::path> paths) {
    if (paths.empty()) return;
    ++pending_;
    emit changed();
    inBackground(
        pool_, this,
        [paths = std::move(paths), stop = scanning_.get_token()] { return scanned(paths, stop); },
        [this, round = round_](ScanResult scan) {
            --pending_;
            if (round == round_) take(std::move(scan));
            emit changed();
        });
}

void IntakeModel::take(ScanResult scan) {
    // A tool may have let go of what is known here.
    const std::vector<InputFile> dropped = scan.files;
    std::unordered_set<std::string> known;
    for (const InputFile& file : scan_.files) known.insert(file.url.native());
    std::erase_if(scan.files, [&](const InputFile& file) { return known.contains(file.url.native()); });
    std::ranges::move(scan.files, std::back_inserter(scan_.files));
    for (FolderNode& root : scan.roots) {
        if (std::ranges::find(scan_.roots, root.url, &FolderNode::url) == scan_.roots.end())
            scan_.roots.push_back(std::move(root));
    }
    for (int ScanResult::*count :
         {&ScanResult::otherFileCount, &ScanResult::skippedPackageCount, &ScanResult::skippedLinkCount,
          &ScanResult::unreadableCount, &ScanResult::emptyFolderCount})
        scan_.*count += scan.*count;
    scan_.looseFileCount = static_cast<int>(std::ranges::count_if(scan_.files, &InputFile::isLoose));
    describe();
    if (dropped.empty()) {
        const QStringList notes = texts::notes(scan);
        emit nothingFound(notes.isEmpty()
                              ? texts::engine("The folder you chose is empty or couldn't be read.")
                              : notes.front());
    } else {
        emit found(dropped);
    }
}

void IntakeModel::replace(std::vector<InputFile> files) {
    clear();
    scan_.files = std::move(files);
    scan_.looseFileCount = static_cast<int>(scan_.files.size());
    describe();
    emit changed();
}

void IntakeModel::removeGone() {
    const auto gone = goneFiles(scan_.files);
    if (gone.empty()) return;
    std::vector<InputFile> kept;
    for (std::size_t i = 0; i < scan_.files.size(); ++i) {
        if (!std::ranges::binary_search(gone, i)) kept.push_back(std::move(scan_.files[i]));
    }
    scan_.files = std::move(kept);
    scan_.looseFileCount = static_cast<int>(std::ranges::count_if(scan_.files, &InputFile::isLoose));
    describe();
    emit changed();
}

void IntakeModel::clear() {
    scanning_.request_stop();
    scanning_ = std::stop_source();
    ++round_;
    scan_ = {};
    describe();
    emit changed();
}

void IntakeModel::describe() {
    scan_.totalBytes = 0;
    for (const InputFile& file : scan_.files) scan_.totalBytes += file.byteSize;
    const DropSummary drop = DropSummary::of(scan_);
    title_ = texts::kinds(drop.counts, drop.others);
    QStringList places;
    if (drop.folders == 1) places << tr("“%1”").arg(texts::name(drop.firstFolderName));
    if (drop.folders > 1) places << tr("%n folder(s)", nullptr, drop.folders);
    if (drop.looseFiles > 0 && drop.folders > 0) places << tr("%n single file(s)", nullptr, drop.looseFiles);
    const QString size = texts::size(drop.bytes);
    subtitle_ = places.isEmpty() ? size : tr("%1 in %2").arg(size, places.join(tr(" and ")));
    notes_ = texts::notes(scan_);

    std::vector<ToolListModel::Entry> best, others;
    for (const auto& [tool, fileCount] : fittingTools(scan_.files)) {
        auto& list = best.size() < bestCount ? best : others;
        list.push_back({tool, filesText(drop.counts, *tool, fileCount)});
    }
    best_.setEntries(std::move(best));
    others_.setEntries(std::move(others));
}

QString IntakeModel::preview(const QList<QUrl>& urls) const {
    return tr("%n item(s)", nullptr, static_cast<int>(urls.size()));
}

}  // namespace tamble
