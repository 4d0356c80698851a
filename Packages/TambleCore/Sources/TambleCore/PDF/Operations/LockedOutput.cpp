#include <TambleCore/PDF/Operations/LockedOutput.h>
#include <TambleCore/PDF/Structure/Document.h>
#include <TambleCore/PDF/Structure/Encryption.h>
#include <TambleCore/Support/UUID.h>

namespace tamble::pdf {

void writeLocked(const std::filesystem::path& destination, const std::string& password,
                 const WorkContext& context, const std::function<void(const std::filesystem::path&)>& write) {
    const std::filesystem::path open = destination.parent_path() / newUUID();
    write(open);
    save(Document::open(open, {}), destination, {.stop = context.stop}, 0,
         [&](QPDFWriter& writer) { encrypt(writer, password); });
    std::filesystem::remove(open);
}

}  // namespace tamble::pdf
