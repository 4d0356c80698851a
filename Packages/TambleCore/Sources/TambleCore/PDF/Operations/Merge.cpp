#include <TambleCore/Intake/FileTypes.h>
#include <TambleCore/PDF/Operations/LockedOutput.h>
#include <TambleCore/PDF/Operations/Operations.h>
#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/PDF/Photos/PhotoDocument.h>
#include <TambleCore/PDF/Structure/Assembly/Assembly.h>
#include <TambleCore/Support/Text.h>

#include <atomic>
#include <exception>
#include <mutex>
#include <thread>

namespace tamble::pdf {
namespace {

/// Opening takes so much of the work.
constexpr double opening = 0.3;

/// Opens all inputs, several at once.
class Opening {
  public:
    explicit Opening(const CombinedWork& work) : work_(work), parts_(work.files.size()) {}

    std::vector<std::unique_ptr<AssemblyPart>> run() {
        {
            const auto open = [this] { openAll(); };
            std::vector<std::jthread> helpers;
            for (unsigned i = 1; i < std::thread::hardware_concurrency() && i < parts_.size(); ++i)
                helpers.emplace_back(open);
            open();
        }
        if (failure_) std::rethrow_exception(failure_);
        return std::move(parts_);
    }

    /// Whether any input takes a password.
    bool isAnyLocked() const { return isAnyLocked_; }

  private:
    void openAll() {
        try {
            for (std::size_t i = next_++; i < parts_.size(); i = next_++) {
                work_.context.throwIfStopped();
                parts_[i] = openedByName(i);
                work_.context.report(opening * static_cast<double>(++opened_) /
                                     static_cast<double>(parts_.size()));
            }
        } catch (...) {
            const std::scoped_lock lock(mutex_);
            if (!failure_) failure_ = std::current_exception();
            next_ = parts_.size();
        }
    }

    /// Of several files people must know which one.
    std::unique_ptr<AssemblyPart> openedByName(std::size_t index) {
        try {
            return opened(index);
        } catch (const PDFError& error) {
            const std::string name = printable(work_.files[index].url.filename().native());
            throw Failure(error.code(), fmt::format("“{}”: {}", name, error.sentence()), error.detail());
        }
    }

    std::unique_ptr<AssemblyPart> opened(std::size_t index) {
        const InputFile& file = work_.files[index];
        Document document = FileTypes::isPDF(file.contentType)
                                ? Document::open(file.url, work_.settings.password)
                                : photoPage(file, index);
        if (document.isLocked()) isAnyLocked_ = true;
        if (isSealed(document)) work_.context.leave(ItemNote::sealBroken);
        return std::make_unique<AssemblyPart>(std::move(document), printable(file.url.stem().native()));
    }

    /// A document of its own, which is gone from its folder as soon as it is open.
    Document photoPage(const InputFile& file, std::size_t index) const {
        std::filesystem::path place = work_.destination;
        place += fmt::format(".{}", index);
        writePhotos({&file, 1}, place, work_.settings, {.stop = work_.context.stop});
        Document document = Document::open(place, {});
        std::filesystem::remove(place);
        return document;
    }

    const CombinedWork& work_;
    std::vector<std::unique_ptr<AssemblyPart>> parts_;
    std::atomic<std::size_t> next_ = 0;
    std::atomic<std::size_t> opened_ = 0;
    std::atomic<bool> isAnyLocked_ = false;
    std::mutex mutex_;
    std::exception_ptr failure_;
};

}  // namespace

void merge(const CombinedWork& work) {
    Opening inputs(work);
    Assembly assembly(inputs.run());
    const auto write = [&](const std::filesystem::path& file) {
        assembly.writeTo(file, work.context, opening);
    };
    if (!inputs.isAnyLocked()) return write(work.destination);
    writeLocked(work.destination, work.settings.password, work.context, write);
}

}  // namespace tamble::pdf
