// Page lists as people type them: the first byte is the number of pages.
#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/PDF/PageList.h>

#include "Property.h"

namespace {

using namespace tamble;

void checkPages(std::span<const PageEdit> pages, int pageCount) {
    std::vector<bool> taken(static_cast<std::size_t>(pageCount));
    for (const PageEdit& page : pages) {
        fuzz::require(page.source >= 0 && page.source < pageCount, "each page is one of the document");
        fuzz::require(!taken[static_cast<std::size_t>(page.source)], "each page is there once");
        fuzz::require(page.rotation % 90 == 0, "turns are quarters");
        taken[static_cast<std::size_t>(page.source)] = true;
    }
}

template <typename Read>
void read(const Read& read) {
    try {
        read();
    } catch (const PDFError&) {
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Input input(data, size);
    const int pageCount = fuzz::takeByte(input);
    const std::string_view text = fuzz::textOf(input);
    read([&] { checkPages(pageOrder(text, pageCount), pageCount); });
    read([&] {
        std::vector<PageEdit> all;
        for (const auto& group : pageGroups(text, pageCount)) {
            fuzz::require(!group.empty(), "no group is empty");
            for (const int page : group) all.push_back({.source = page});
        }
        checkPages(all, pageCount);
        std::size_t left = 0;
        read([&] { left = pagesWithout(text, pageCount).size(); });
        fuzz::require(left + all.size() == static_cast<std::size_t>(pageCount),
                      "what goes and what stays is all");
    });
    return 0;
}
