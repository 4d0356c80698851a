#include <TambleCore/Jobs/Isolation/IsolatedWork.h>
#include <TambleCore/Support/PathKey.h>

#include <system_error>

namespace tamble {
namespace {

/// What both kinds of work share: how a request is done and its end is told.
class Isolation {
  public:
    Isolation(const ToolDefinition& tool, const Json& settings, const Secrets& secrets,
              std::shared_ptr<WorkerPool> pool)
        : job_{tool.id, settings}, secrets_(secrets), unreadable_(tool.unreadable), pool_(std::move(pool)) {}

    const JobRequest& job() const { return job_; }
    const std::string& password() const { return secrets_.password; }

    void perform(const WorkerRequest& request, const std::filesystem::path& destination,
                 const WorkNeeds& needs, const WorkContext& context) const {
        try {
            const auto reply =
                pool_->perform(request, {.writable = stagingFolder(destination), .needs = needs}, context);
            std::visit([&](const auto& end) { conclude(end, context); }, reply);
        } catch (const WorkerLost& lost) {
            removeRemains(destination);
            throw unreadable(lost.what());
        } catch (const Cancelled&) {
            removeRemains(destination);
            throw;
        }
    }

  private:
    static void removeRemains(const std::filesystem::path& destination) {
        std::error_code gone;
        std::filesystem::remove_all(standardized(destination), gone);
    }

    Failure unreadable(std::string detail) const {
        return {unreadable_.code(), unreadable_.sentence(), std::move(detail)};
    }

    void conclude(const reply::Done& end, const WorkContext& context) const {
        if (end.note) context.leave(*end.note);
    }
    void conclude(const reply::Skipped& end, const WorkContext&) const { throw ProcessorSkip(end.value); }
    void conclude(const reply::Cancelled&, const WorkContext&) const { throw Cancelled(); }
    void conclude(const reply::Failed& end, const WorkContext&) const {
        throw Failure(end.code, end.sentence, end.detail);
    }
    void conclude(const reply::Threw& end, const WorkContext&) const {
        if (end.systemError) throw std::system_error(*end.systemError, std::system_category(), end.value);
        throw std::runtime_error(end.value);
    }
    void conclude(const reply::OutOfMemory&, const WorkContext&) const {
        throw WorkerLost("The file takes more memory than a worker has.");
    }
    template <typename Unexpected>
    void conclude(const Unexpected&, const WorkContext&) const {
        throw WorkerLost("The worker answered what it was not asked.");
    }

    JobRequest job_;
    Secrets secrets_;
    Failure unreadable_;
    std::shared_ptr<WorkerPool> pool_;
};

class IsolatedProcessor final : public FileProcessor {
  public:
    IsolatedProcessor(std::unique_ptr<FileProcessor> inner, Isolation isolation)
        : inner_(std::move(inner)), isolation_(std::move(isolation)) {}

    std::string fileExtension() const override { return inner_->fileExtension(); }
    std::string outputName(const InputFile& file) const override { return inner_->outputName(file); }
    std::optional<SkipReason> skipReason(const InputFile& file) const override {
        return inner_->skipReason(file);
    }
    bool canReplaceOriginals() const override { return inner_->canReplaceOriginals(); }
    bool keepsModificationTime() const override { return inner_->keepsModificationTime(); }
    WorkNeeds needs() const override { return inner_->needs(); }

    void process(const InputFile& file, const std::filesystem::path& destination,
                 const WorkContext& context) const override {
        isolation_.perform(
            request::Process{isolation_.job(), isolation_.password(), messageOf(file), destination},
            destination, inner_->needs(), context);
    }

  private:
    std::unique_ptr<FileProcessor> inner_;
    Isolation isolation_;
};

class IsolatedCombiner final : public FileCombiner {
  public:
    IsolatedCombiner(std::unique_ptr<FileCombiner> inner, Isolation isolation)
        : inner_(std::move(inner)), isolation_(std::move(isolation)) {}

    std::string fileExtension() const override { return inner_->fileExtension(); }
    std::string outputName(std::span<const InputFile> files) const override {
        return inner_->outputName(files);
    }

    void combine(std::span<const InputFile> files, const std::filesystem::path& destination,
                 const WorkContext& context) const override {
        isolation_.perform(
            request::Combine{isolation_.job(), isolation_.password(), messagesOf(files), destination},
            destination, inner_->needs(), context);
    }

  private:
    std::unique_ptr<FileCombiner> inner_;
    Isolation isolation_;
};

ToolWork wrapped(std::unique_ptr<FileProcessor> inner, Isolation isolation) {
    return std::make_unique<IsolatedProcessor>(std::move(inner), std::move(isolation));
}

ToolWork wrapped(std::unique_ptr<FileCombiner> inner, Isolation isolation) {
    return std::make_unique<IsolatedCombiner>(std::move(inner), std::move(isolation));
}

/// It reads no file's content.
ToolWork wrapped(std::unique_ptr<FileRenamer> inner, const Isolation&) {
    return inner;
}

}  // namespace

ToolWork isolatedWork(const ToolDefinition& tool, const Json& settings, const Secrets& secrets,
                      std::shared_ptr<WorkerPool> pool) {
    Isolation isolation(tool, settings, secrets, std::move(pool));
    return std::visit([&isolation](auto&& inner) { return wrapped(std::move(inner), std::move(isolation)); },
                      tool.makeWork(settings, secrets));
}

std::optional<std::int64_t> isolatedEstimate(const ToolDefinition& tool, std::span<const InputFile> files,
                                             const Json& settings, WorkerPool& pool, std::stop_token stop) {
    if (!tool.estimate) return std::nullopt;
    try {
        const auto reply = pool.perform(request::Estimate{{tool.id, settings}, messagesOf(files)}, {},
                                        {.stop = std::move(stop)});
        const auto* estimated = std::get_if<reply::Estimated>(&reply);
        return estimated == nullptr ? std::nullopt : estimated->value;
    } catch (const WorkerLost&) {
        return std::nullopt;
    } catch (const WorkerUnavailable&) {
        return std::nullopt;
    } catch (const Cancelled&) {
        return std::nullopt;
    }
}

std::filesystem::path stagingFolder(const std::filesystem::path& destination) {
    const auto containing = standardized(destination).parent_path();
    for (auto folder = containing; folder.has_relative_path(); folder = folder.parent_path()) {
        if (folder.filename().native().find("TambleStaging-") != std::string::npos) return folder;
    }
    return containing;
}

}  // namespace tamble
