#pragma once

#include <TambleCore/Jobs/FileNames.h>
#include <TambleCore/Jobs/JobEngine.h>
#include <TambleCore/Jobs/OutputPlanner.h>
#include <TambleCore/Platform/SystemFileOperations.h>
#include <TambleCore/Support/PathKey.h>

#include <functional>

#include <TambleCoreTests/TestFolder.h>
#include <fmt/format.h>

namespace tamble {

/// Writes "made of " and the input's content into "STEM.ext"; every answer can be changed.
struct TestProcessor final : FileProcessor {
    std::string extension = "webp";
    bool mayReplace = true;
    bool keepsTime = false;
    std::function<std::string(const InputFile&)> name = {};
    std::function<void(const InputFile&, const std::filesystem::path&, const WorkContext&)> work = {};

    std::string fileExtension() const override { return extension; }
    std::string outputName(const InputFile& file) const override {
        return name ? name(file) : FileNames::suffixed(FileNames::stem(originalOf(file)), "", extension);
    }
    std::optional<SkipReason> skipReason(const InputFile&) const override { return std::nullopt; }
    void process(const InputFile& file, const std::filesystem::path& destination,
                 const WorkContext& context) const override {
        if (work) return work(file, destination, context);
        std::ofstream(destination, std::ios::binary) << "made of " << contentOf(file.url);
    }
    bool canReplaceOriginals() const override { return mayReplace; }
    bool keepsModificationTime() const override { return keepsTime; }
};

/// Writes all contents after each other.
struct TestCombiner final : FileCombiner {
    bool writes = true;

    std::string fileExtension() const override { return "txt"; }
    std::string outputName(std::span<const InputFile> files) const override {
        return FileNames::joined(FileNames::stem(files.front().url), "txt");
    }
    void combine(std::span<const InputFile> files, const std::filesystem::path& destination,
                 const WorkContext& context) const override {
        context.report(0.5);
        if (!writes) return;
        std::ofstream output(destination, std::ios::binary);
        for (const InputFile& file : files) output << contentOf(file.url);
    }
};

/// Acts on the real file system, except where a test says otherwise.
class TestFileOperations final : public FileOperations {
  public:
    /// Called before each operation with its name and path; what it throws fails the operation.
    std::function<void(const std::string&, const std::filesystem::path&)> before = {};
    /// Called after each operation; what it throws fails an operation that happened.
    std::function<void()> after = {};
    bool hasBin = true;

    static std::filesystem::filesystem_error fault(std::errc code = std::errc::io_error) {
        return {"fault", std::make_error_code(code)};
    }

    std::filesystem::path trash(const std::filesystem::path& item) override {
        step("trash", item);
        if (!hasBin) throw fault(std::errc::not_supported);
        auto landed = real_.trash(item);
        end();
        return landed;
    }
    void move(const std::filesystem::path& from, const std::filesystem::path& to) override {
        step("move", to);
        real_.move(from, to);
        end();
    }
    void remove(const std::filesystem::path& item) override {
        step("remove", item);
        real_.remove(item);
        end();
    }
    void createDirectory(const std::filesystem::path& folder) override {
        step("createDirectory", folder);
        real_.createDirectory(folder);
        end();
    }
    void removeEmptyDirectory(const std::filesystem::path& folder) override {
        step("removeEmptyDirectory", folder);
        real_.removeEmptyDirectory(folder);
        end();
    }
    std::optional<std::filesystem::path> findInTrash(const std::filesystem::path& original) override {
        return real_.findInTrash(original);
    }
    bool isNoBinError(const std::error_code& error) const override {
        return error == std::errc::not_supported || real_.isNoBinError(error);
    }

  private:
    void step(const char* name, const std::filesystem::path& path) const {
        if (before) before(name, path);
    }
    void end() const {
        if (after) after();
    }
    SystemFileOperations real_;
};

inline InputFile looseFile(const std::filesystem::path& path) {
    InputFile file{.url = path, .root = path.parent_path(), .isLoose = true};
    std::error_code error;
    const auto size = std::filesystem::file_size(path, error);
    if (!error) file.byteSize = static_cast<std::int64_t>(size);
    return file;
}

/// The outcome as one word or two, for tables of expectations: "done beach.webp", "skipped nameTaken",
/// "failed code".
inline std::string brief(const ItemOutcome& itemOutcome) {
    if (const auto* done = std::get_if<outcome::Done>(&itemOutcome)) {
        const bool isFolder = namesFolder(done->value);
        const std::filesystem::path place = isFolder ? done->value.parent_path() : done->value.path();
        return fmt::format("done {}{}{}{}", place.filename().native(), isFolder ? "/" : "",
                           done->note ? " " : "", done->note ? caseName(*done->note) : "");
    }
    if (const auto* skipped = std::get_if<outcome::Skipped>(&itemOutcome)) {
        return fmt::format("skipped {}",
                           std::visit([](const auto& reason) { return reason.caseName; }, skipped->value));
    }
    if (const auto* failed = std::get_if<outcome::Failed>(&itemOutcome)) {
        return fmt::format("{} failed {}", caseName(failed->value.stage), failed->value.code);
    }
    return "cancelled";
}

inline std::string brief(const JobResult& result) {
    std::string text;
    for (const ItemResult& item : result.items) text += (text.empty() ? "" : ", ") + brief(item.outcome);
    return text;
}

inline JobEngine engineWith(
    std::shared_ptr<FileOperations> fileOps = std::make_shared<SystemFileOperations>()) {
    return {.fileOps = std::move(fileOps)};
}

}  // namespace tamble
