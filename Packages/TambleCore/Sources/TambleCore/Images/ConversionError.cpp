#include <TambleCore/Images/ConversionError.h>
#include <TambleCore/Support/Json/Described.h>

#include <array>

namespace tamble {
namespace {

/// In the order of the cases.
constexpr std::array<std::string_view, 9> sentences{
    "This Mac can't save that format.",
    "Couldn't open this file. It may be damaged, or not the kind of file this tool works with.",
    "Couldn't read the picture inside this file.",
    "Saving the new file failed.",
    "Too big for WebP (16,383 pixels per side at most). Make it smaller first.",
    "Animated images aren't supported yet, so this one was left alone.",
    "This file has several pages. Only single-page images are supported, so it was left alone.",
    "Couldn't find a clear subject to cut out.",
    "Couldn't remove the background from this photo.",
};

}  // namespace

ConversionError::ConversionError(Case which, std::string detail)
    : Failure(std::string(caseName(which)), std::string(sentences[static_cast<std::size_t>(which)]),
              std::move(detail)),
      which_(which) {}

ConversionError::~ConversionError() = default;

}  // namespace tamble
