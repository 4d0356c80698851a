#include <TambleCore/Jobs/SkipReason.h>
#include <TambleCore/PDF/Operations/Operations.h>
#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/PDF/Structure/Document.h>
#include <TambleCore/PDF/Structure/Encryption.h>
#include <TambleCore/Support/Text.h>

namespace tamble::pdf {
namespace {

/// Only the lock changes.
void keepAsItIs(QPDFWriter& writer) {
    writer.setObjectStreamMode(qpdf_o_preserve);
}

}  // namespace

void addPassword(const SingleWork& work) {
    const std::string& password = work.settings.password;
    if (characterCount(password) < shortestPassword) throw PDFError(PDFError::Case::passwordMissing);
    const Document document = Document::openUnseen(work.file.url, password);
    if (isSealed(document)) work.context.leave(ItemNote::sealBroken);
    save(document, work.destination, work.context, 0, [&](QPDFWriter& writer) {
        keepAsItIs(writer);
        encrypt(writer, password);
    });
}

void removePassword(const SingleWork& work) {
    const std::string& password = work.settings.password;
    const Document document = Document::openUnseen(work.file.url, password);
    if (!document.qpdf().isEncrypted()) throw ProcessorSkip(skip::NoPassword{});
    if (!document.isLocked() && !document.isOwnedBy(password)) {
        // Anybody may open it, but its owner reserved what may be done with it.
        throw PDFError(password.empty() ? PDFError::Case::locked : PDFError::Case::couldNotRemovePassword);
    }
    if (isSealed(document)) work.context.leave(ItemNote::sealBroken);
    save(document, work.destination, work.context, 0, [](QPDFWriter& writer) {
        keepAsItIs(writer);
        writer.setPreserveEncryption(false);
    });
}

}  // namespace tamble::pdf
