#pragma once

#include <TambleCore/Jobs/SaveLocation.h>

#include <functional>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <variant>

namespace tamble {

/// Whether something stands at a path already.
using ExistsTest = std::function<bool(const std::filesystem::path&)>;

/// Settles which name each output of one job gets, so that no two get the same. Names that differ only in
/// letter case or Unicode composition are the same name.
class NameResolver {
  public:
    struct Use {
        std::filesystem::path url;
    };
    struct UseAfterTrashingExisting {
        std::filesystem::path url;
    };
    struct Skip {};
    using Decision = std::variant<Use, UseAfterTrashingExisting, Skip>;

    /// `replacing` is the file whose place the output takes, if any: it is not in the way.
    Decision resolve(const std::filesystem::path& target, ClashPolicy policy, const ExistsTest& exists,
                     const std::optional<std::filesystem::path>& replacing = {});

    /// The first free name with a number for this target ("beach 2.webp"), which is then taken.
    std::filesystem::path takeNumbered(const std::filesystem::path& target, const ExistsTest& exists);

    bool isReserved(const std::filesystem::path& target) const;

  private:
    /// The keys of every target given out.
    std::unordered_set<std::string> reserved_;
    /// By the key of a target: the number to try next, so that many outputs of one name are numbered in
    /// linear time.
    std::unordered_map<std::string, int> nextNumbers_;
};

}  // namespace tamble
