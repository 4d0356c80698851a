#include <TambleCore/PDF/Structure/SharedResources.h>

#include <array>

#include <qpdf/QPDFPageObjectHelper.hh>

namespace tamble::pdf {
namespace {

/// All that a page names is named in one of these.
std::array<QPDFObjectHandle, 3> listsOf(QPDFObjectHandle page) {
    auto resources = page.getKey("/Resources");
    if (!resources.isDictionary()) return {};
    return {resources, resources.getKey("/XObject"), resources.getKey("/Font")};
}

bool hasMoreThan(std::size_t count, QPDFObjectHandle list) {
    return list.isDictionary() && list.getKeys().size() > count;
}

}  // namespace

SharedResources::SharedResources(const std::vector<QPDFObjectHandle>& pages) {
    ObjectSet seen;
    for (const auto& page : pages) {
        for (const auto& list : listsOf(page)) {
            if (list.isInitialized() && list.isIndirect() && !seen.insert(list)) shared_.insert(list);
        }
    }
}

void SharedResources::separate(QPDFObjectHandle page) {
    if (shared_.empty() || !separated_.insert(page)) return;
    const auto [resources, pictures, fonts] = listsOf(page);
    // A single font is hardly another page's; a single picture may be.
    if (!resources.isInitialized() || (!hasMoreThan(0, pictures) && !hasMoreThan(1, fonts))) return;
    const bool isShared =
        shared_.contains(resources) || shared_.contains(pictures) || shared_.contains(fonts);
    if (isShared) QPDFPageObjectHelper(page).removeUnreferencedResources();
}

}  // namespace tamble::pdf
