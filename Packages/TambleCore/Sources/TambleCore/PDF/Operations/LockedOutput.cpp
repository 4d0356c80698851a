#include <TambleCore/PDF/Operations/LockedOutput.h>
#include <TambleCore/PDF/Structure/Document.h>
#include <TambleCore/PDF/Structure/Encryption.h>
#include <TambleCore/Support/UUID.h>

namespace tamble::pdf {

void lock(const std::filesystem::path& file, const std::string& password, const WorkContext& context) {
    const std::filesystem::path open = file.parent_path() / newUUID();
    std::filesystem::rename(file, open);
    save(Document::openUnseen(open, {}), file, {.stop = context.stop}, 0,
         [&](QPDFWriter& writer) { encrypt(writer, password); });
    std::filesystem::remove(open);
}

}  // namespace tamble::pdf
