#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/Support/Json/Described.h>

#include <array>

namespace tamble {
namespace {

/// In the order of the cases.
constexpr std::array<std::string_view, 15> sentences{
    "Couldn't open this file. It may be damaged, or not the kind of file this tool works with.",
    "This PDF has a password. Type it in and try again.",
    "That password didn't open this PDF.",
    "Type a password (at least 4 characters)",
    "Those page numbers don't fit this PDF.",
    "No pages would be left.",
    "Saving the new PDF failed.",
    "Couldn't remove the password from this PDF.",
    "Couldn't read one of the photos.",
    "Couldn't draw one of the pages.",
    "A page would be too large for this format. Choose a smaller resolution.",
    "Couldn't read the signature picture.",
    "Draw or choose a signature first.",
    "The signature doesn't fit on its page.",
    "Say which pages first, like 1-3, 5.",
};

}  // namespace

PDFError::PDFError(Case which, std::string detail)
    : Failure(std::string(caseName(which)), std::string(sentences[static_cast<std::size_t>(which)]),
              std::move(detail)),
      which_(which) {}

PDFError::~PDFError() = default;

}  // namespace tamble
