#pragma once

#include <TambleCore/Jobs/FileProcessor.h>

#include <functional>

namespace tamble {

/// How the processing of one file ended.
enum class ItemEnd { done, skipped, failed };

/// Another processor, telling of each file that it starts and how it ends.
class WatchedProcessor final : public FileProcessor {
  public:
    /// The functions are called from several threads and may be empty; `inner` outlives this.
    WatchedProcessor(const FileProcessor& inner, std::function<void(const InputFile&)> onStart,
                     std::function<void(ItemEnd)> onEnd)
        : inner_(inner), onStart_(std::move(onStart)), onEnd_(std::move(onEnd)) {}

    std::string fileExtension() const override { return inner_.fileExtension(); }
    std::string outputName(const InputFile& file) const override { return inner_.outputName(file); }
    std::optional<SkipReason> skipReason(const InputFile& file) const override {
        auto reason = inner_.skipReason(file);
        if (reason) tell(ItemEnd::skipped);
        return reason;
    }
    void process(const InputFile& file, const std::filesystem::path& destination,
                 const WorkContext& context) const override {
        if (onStart_) onStart_(file);
        try {
            inner_.process(file, destination, context);
        } catch (const ProcessorSkip&) {
            tell(ItemEnd::skipped);
            throw;
        } catch (const Cancelled&) {
            throw;
        } catch (...) {
            tell(ItemEnd::failed);
            throw;
        }
        tell(ItemEnd::done);
    }
    bool canReplaceOriginals() const override { return inner_.canReplaceOriginals(); }
    bool keepsModificationTime() const override { return inner_.keepsModificationTime(); }
    WorkNeeds needs() const override { return inner_.needs(); }

  private:
    void tell(ItemEnd end) const {
        if (onEnd_) onEnd_(end);
    }

    const FileProcessor& inner_;
    std::function<void(const InputFile&)> onStart_;
    std::function<void(ItemEnd)> onEnd_;
};

}  // namespace tamble
