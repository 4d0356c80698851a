#include <Tamble/CommandLine/Report/ResultJson.h>

namespace tamble {
namespace {

Json planned(const Placement& placement) {
    Json fields = Json::object();
    fields["_0"] = encodeJson(placement.target);
    if (placement.original) fields["original"] = encodeJson(*placement.original);
    if (placement.clashing) fields["clashing"] = encodeJson(*placement.clashing);
    Json outcome = Json::object();
    outcome["planned"] = std::move(fields);
    return outcome;
}

Json planned(const outcome::Skipped& skipped) {
    return encodeJson(ItemOutcome(skipped));
}

Json planned(const outcome::Failed& failed) {
    return encodeJson(ItemOutcome(failed));
}

Json itemJson(const InputFile& file, Json outcome) {
    Json item = Json::object();
    item["file"] = encodeJson(fieldsOf(file));
    item["outcome"] = std::move(outcome);
    return item;
}

}  // namespace

FileFields fieldsOf(const InputFile& file) {
    FileFields fields{
        .url = file.url, .root = file.root, .relativeFolder = file.relativeFolder, .byteSize = file.byteSize};
    if (file.contentType) fields.contentType = file.contentType->identifier();
    return fields;
}

Json scanCountsJson(const ScanResult& scan) {
    Json json = Json::object();
    json["looseFileCount"] = scan.looseFileCount;
    json["otherFileCount"] = scan.otherFileCount;
    json["skippedPackageCount"] = scan.skippedPackageCount;
    json["skippedLinkCount"] = scan.skippedLinkCount;
    json["unreadableCount"] = scan.unreadableCount;
    json["totalBytes"] = scan.totalBytes;
    return json;
}

Json jobResultJson(const JobResult& result, const ScanResult& scan, const std::string& activityID) {
    Json json = Json::object();
    Json& items = json["items"] = Json::array();
    for (const auto& item : result.items) items.push_back(itemJson(item.file, encodeJson(item.outcome)));
    json["wasCancelled"] = result.wasCancelled;
    json["undo"] = encodeJson(result.undo);
    json["duration"] = result.duration;
    if (!activityID.empty()) json["activityID"] = activityID;
    json["scan"] = scanCountsJson(scan);
    return json;
}

Json jobPlanJson(std::span<const InputFile> files, const JobPlan& plan) {
    Json json = Json::object();
    json["dryRun"] = true;
    Json& items = json["items"] = Json::array();
    for (std::size_t i = 0; i < files.size() && !plan.items.empty(); ++i) {
        // The plan of a tool with one output of all has one entry.
        const auto& outcome = plan.items[std::min(i, plan.items.size() - 1)];
        items.push_back(
            itemJson(files[i], std::visit([](const auto& one) { return planned(one); }, outcome)));
    }
    return json;
}

}  // namespace tamble
