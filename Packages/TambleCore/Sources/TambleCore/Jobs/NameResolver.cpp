#include <TambleCore/Jobs/FileNames.h>
#include <TambleCore/Jobs/NameResolver.h>
#include <TambleCore/Support/PathKey.h>

namespace tamble {
namespace {

/// The folder that the target stands in, and its name there; a folder's name ends in "/".
std::pair<std::filesystem::path, std::string> parted(const std::filesystem::path& target) {
    if (!namesFolder(target)) return {target.parent_path(), target.filename().native()};
    const std::filesystem::path plain = target.parent_path();
    return {plain.parent_path(), plain.filename().native() + "/"};
}

}  // namespace

NameResolver::Decision NameResolver::resolve(const std::filesystem::path& target, ClashPolicy policy,
                                             const ExistsTest& exists,
                                             const std::optional<std::filesystem::path>& replacing) {
    std::string key = pathKey(target);
    if (reserved_.contains(key)) return Use{takeNumbered(target, exists)};
    const auto isReplaced = [&] { return replacing && pathKey(*replacing) == key; };
    if (!exists(target) || isReplaced()) {
        reserved_.insert(std::move(key));
        return Use{target};
    }
    switch (policy) {
        case ClashPolicy::skip:
            return Skip{};
        case ClashPolicy::replace:
            reserved_.insert(std::move(key));
            return UseAfterTrashingExisting{target};
        case ClashPolicy::addNumber:
            break;
    }
    return Use{takeNumbered(target, exists)};
}

std::filesystem::path NameResolver::takeNumbered(const std::filesystem::path& target,
                                                 const ExistsTest& exists) {
    const auto [folder, name] = parted(target);
    int& next = nextNumbers_.try_emplace(pathKey(target), 2).first->second;
    for (;; ++next) {
        std::filesystem::path candidate = folder / FileNames::numbered(name, next);
        std::string key = pathKey(candidate);
        if (reserved_.contains(key) || exists(candidate)) continue;
        reserved_.insert(std::move(key));
        ++next;
        return candidate;
    }
}

bool NameResolver::isReserved(const std::filesystem::path& target) const {
    return reserved_.contains(pathKey(target));
}

}  // namespace tamble
