#include <TambleCore/Jobs/RequireSmaller.h>
#include <TambleCore/Jobs/SkipReason.h>

namespace tamble {

void requireSmaller(const InputFile& file, const std::filesystem::path& output) {
    if (file.byteSize <= 0) return;
    std::error_code unmeasurable;
    const auto newSize = std::filesystem::file_size(output, unmeasurable);
    if (unmeasurable || std::cmp_less(newSize, file.byteSize)) return;
    std::filesystem::remove(output, unmeasurable);
    throw ProcessorSkip(skip::NotSmaller{});
}

}  // namespace tamble
