#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tamble {

/// The order in which people expect names: numbers in names compare by value, letter case is ignored, letters
/// stand as in the user's language. Not for use from several threads at once; making one is cheap after the
/// first.
class FinderOrder {
  public:
    FinderOrder();
    ~FinderOrder();
    FinderOrder(FinderOrder&&) noexcept;
    FinderOrder& operator=(FinderOrder&&) noexcept;

    /// Bytes whose plain comparison gives this order: sort many names by their keys.
    std::string sortKey(std::string_view name) const;
    /// Negative, zero or positive as `a` stands before, at or after `b`.
    int compare(std::string_view a, std::string_view b) const;
    /// The indices of the names in this order; names that stand at the same place follow each other by their bytes.
    std::vector<std::size_t> sorted(std::span<const std::string_view> names) const;

  private:
    class Collation;
    std::unique_ptr<Collation> collation_;
};

}  // namespace tamble
