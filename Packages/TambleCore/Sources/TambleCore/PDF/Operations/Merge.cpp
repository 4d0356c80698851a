#include <TambleCore/Intake/FileTypes.h>
#include <TambleCore/PDF/Operations/LockedOutput.h>
#include <TambleCore/PDF/Operations/Operations.h>
#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/PDF/Photos/PhotoDocument.h>
#include <TambleCore/PDF/Structure/Assembly/Assembly.h>
#include <TambleCore/Support/Text.h>

#include <atomic>

namespace tamble::pdf {
namespace {

/// Opens the inputs, from several threads.
class Inputs {
  public:
    explicit Inputs(const CombinedWork& work) : work_(work) {}

    /// Of several files people must know which one failed.
    std::unique_ptr<AssemblyPart> open(std::size_t index) {
        const InputFile& file = work_.files[index];
        try {
            return std::make_unique<AssemblyPart>(
                FileTypes::isPDF(file.contentType) ? document(file) : photoPage(file, index),
                printable(file.url.stem().native()));
        } catch (const PDFError& error) {
            const std::string name = printable(file.url.filename().native());
            throw Failure(error.code(), fmt::format("“{}”: {}", name, error.sentence()), error.detail());
        }
    }

    /// Whether any of those opened so far takes a password.
    bool isAnyLocked() const { return isAnyLocked_; }
    /// Whether any of them carries a digital signature.
    bool isAnySealed() const { return isAnySealed_; }

  private:
    Document document(const InputFile& file) {
        Document document = Document::open(file.url, work_.settings.password);
        if (document.isLocked()) isAnyLocked_ = true;
        if (isSealed(document)) isAnySealed_ = true;
        return document;
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
    std::atomic<bool> isAnyLocked_ = false;
    std::atomic<bool> isAnySealed_ = false;
};

}  // namespace

void merge(const CombinedWork& work) {
    Inputs inputs(work);
    Assembly(work.files.size(), [&inputs](std::size_t index) {
        return inputs.open(index);
    }).writeTo(work.destination, work.context);
    if (inputs.isAnySealed()) work.context.leave(ItemNote::sealBroken);
    if (inputs.isAnyLocked()) lock(work.destination, work.settings.password, work.context);
}

}  // namespace tamble::pdf
