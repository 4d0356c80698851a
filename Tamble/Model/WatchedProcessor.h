#pragma once

#include <TambleCore/Jobs/FileProcessor.h>

#include <functional>

namespace tamble {

/// Another processor, telling each file that it starts.
class WatchedProcessor final : public FileProcessor {
  public:
    /// `onStart` is called from several threads; `inner` outlives this.
    WatchedProcessor(const FileProcessor& inner, std::function<void(const InputFile&)> onStart)
        : inner_(inner), onStart_(std::move(onStart)) {}

    std::string fileExtension() const override { return inner_.fileExtension(); }
    std::string outputName(const InputFile& file) const override { return inner_.outputName(file); }
    std::optional<SkipReason> skipReason(const InputFile& file) const override {
        return inner_.skipReason(file);
    }
    void process(const InputFile& file, const std::filesystem::path& destination,
                 const WorkContext& context) const override {
        onStart_(file);
        inner_.process(file, destination, context);
    }
    bool canReplaceOriginals() const override { return inner_.canReplaceOriginals(); }
    bool keepsModificationTime() const override { return inner_.keepsModificationTime(); }
    WorkNeeds needs() const override { return inner_.needs(); }

  private:
    const FileProcessor& inner_;
    std::function<void(const InputFile&)> onStart_;
};

}  // namespace tamble
