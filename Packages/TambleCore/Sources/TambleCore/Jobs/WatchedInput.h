#pragma once

#include <TambleCore/Intake/InputFile.h>
#include <TambleCore/Jobs/SkipReason.h>
#include <TambleCore/Platform/FileState.h>
#include <TambleCore/Support/Failure.h>
#include <TambleCore/Support/WorkContext.h>

#include <span>

namespace tamble {

/// An input's file, or its original, is not what the job read.
class InputFailure final : public Failure {
  public:
    enum class Kind { missing, changed };
    /// `subject` begins the sentence: "This file", or a name where the failure is one of several files.
    InputFailure(Kind kind, const std::string& subject);
};

/// Sees whether an input stays as it was while it is worked on.
class WatchedInput {
  public:
    enum class Subject { thisFile, byName };

    /// The file must live longer. Throws InputFailure when there is nothing at its path.
    WatchedInput(const InputFile& file, Subject subject);

    /// Throws InputFailure when it is another one by now, or gone.
    void throwIfChanged() const;
    /// What its original was like when the watch began; empty when that was missing.
    const std::optional<FileState>& original() const noexcept { return original_; }

  private:
    const InputFile& file_;
    std::string subject_;
    std::optional<FileState> input_;
    std::optional<FileState> original_;
};

/// Does the work. When an input changed meanwhile, that is what went wrong, whatever else the work met.
template <typename Work>
void watching(std::span<const WatchedInput> inputs, const Work& work) {
    const auto throwIfAnyChanged = [&] {
        for (const WatchedInput& input : inputs) input.throwIfChanged();
    };
    try {
        work();
    } catch (const ProcessorSkip&) {
        throw;
    } catch (const Cancelled&) {
        throw;
    } catch (...) {
        throwIfAnyChanged();
        throw;
    }
    throwIfAnyChanged();
}

/// Throws InputFailure when what stands at the path is not as it was.
void throwIfChanged(const std::filesystem::path& path, const std::optional<FileState>& before,
                    const std::string& subject = "This file");

}  // namespace tamble
