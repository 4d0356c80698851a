#include <Tamble/Model/SignatureStore.h>

#include <TambleCore/Platform/AtomicFile.h>
#include <TambleCore/Platform/FileLock.h>
#include <TambleCore/Platform/StandardFolders.h>
#include <TambleCore/Platform/SystemError.h>
#include <TambleCore/Support/Json/JsonText.h>
#include <TambleCore/Support/Log.h>
#include <TambleCore/Support/UUID.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace tamble {
namespace {

constexpr Log signaturesLog("signatures");

constexpr std::array<std::uint8_t, 8> pngSignature{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};

bool isPNG(std::span<const std::byte> bytes) {
    return bytes.size() > pngSignature.size() &&
           std::ranges::equal(bytes.first(pngSignature.size()), pngSignature, {},
                              [](std::byte byte) { return std::to_integer<std::uint8_t>(byte); });
}

/// Infinities and what is no number have no JSON form.
bool isNowhere(const InkPoint& point) {
    return !std::isfinite(point.x) || !std::isfinite(point.y) || !std::isfinite(point.width);
}

/// Throws when the file holds no signature of that name.
SavedSignature signatureIn(const std::filesystem::path& file) {
    if (std::filesystem::file_size(file) > SignatureStore::maximumBytes) throw DecodeError("too large");
    auto signature = decodeJson<SavedSignature>(parseJson(readWholeFile(file)));
    if (signature.id != file.stem()) throw DecodeError("of another id");
    if (!isPNG(signature.imagePNG)) throw DecodeError("no PNG file");
    return signature;
}

bool isFileOfSignature(const std::filesystem::path& file) {
    return file.extension() == ".json" && isUUID(file.stem());
}

}  // namespace

SignatureStore::SignatureStore(std::filesystem::path folder) : folder_(std::move(folder)) {}

std::filesystem::path SignatureStore::defaultFolder() {
    return folders::applicationSupport() / "signatures";
}

std::vector<SavedSignature> SignatureStore::all() const {
    std::vector<SavedSignature> signatures;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder_, error), end; !error && entry != end;
         entry.increment(error)) {
        if (!isFileOfSignature(entry->path())) continue;
        try {
            signatures.push_back(signatureIn(entry->path()));
        } catch (const std::exception& problem) {
            signaturesLog.error("Signature unreadable, leaving it out: {}", causeOf(problem));
        }
    }
    std::ranges::sort(signatures, std::ranges::greater(), &SavedSignature::saved);
    return signatures;
}

std::optional<SavedSignature> SignatureStore::add(std::vector<std::byte> imagePNG,
                                                  std::vector<InkStroke> strokes) {
    if (!isPNG(imagePNG)) return std::nullopt;
    for (InkStroke& stroke : strokes) std::erase_if(stroke, isNowhere);
    const std::chrono::duration<double> now = std::chrono::system_clock::now().time_since_epoch();
    SavedSignature signature{.id = newUUID(),
                             .saved = now.count(),
                             .imagePNG = std::move(imagePNG),
                             .strokes = std::move(strokes)};
    const std::string text = writeJson(encodeJson(signature));
    if (text.size() > maximumBytes) return std::nullopt;
    std::filesystem::create_directories(folder_);
    std::filesystem::permissions(folder_, std::filesystem::perms::owner_all);
    const FileLock lock = FileLock::waitFor(folder_ / "change.lock");
    if (all().size() >= maximum) return std::nullopt;
    writeFileAtomically(fileOf(signature.id), text);
    return signature;
}

void SignatureStore::remove(const std::string& id) {
    if (!isUUID(id)) return;
    std::filesystem::remove(fileOf(id));
    syncFolder(folder_);
}

std::filesystem::path SignatureStore::fileOf(const std::string& id) const {
    return folder_ / (id + ".json");
}

}  // namespace tamble
