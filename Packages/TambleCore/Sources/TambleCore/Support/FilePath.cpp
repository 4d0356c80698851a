#include <TambleCore/Support/FilePath.h>

namespace tamble {

FilePath::FilePath(std::string bytes)
    : bytes_(bytes.empty() ? nullptr : std::make_shared<const std::string>(std::move(bytes))) {}

const std::string& FilePath::native() const noexcept {
    static const std::string empty;
    return bytes_ ? *bytes_ : empty;
}

}  // namespace tamble
