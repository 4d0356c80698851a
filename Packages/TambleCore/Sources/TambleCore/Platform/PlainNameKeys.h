#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace tamble {

/// Sort keys for names of ASCII characters only, in the order of a collation in which each character stands
/// for itself, letter case is ignored and numbers compare by value: the same order as the collation's own
/// keys at a fraction of the time. Comparable only with each other.
class PlainNameKeys {
  public:
    /// Learns the places of the characters from the collation's own key of each.
    explicit PlainNameKeys(const std::function<std::string(std::string_view)>& collationKey);

    static bool isPlain(std::string_view name);
    /// Appends the key of a plain name.
    void append(std::string_view name, std::string& key) const;

  private:
    /// 0 for characters that the collation passes over.
    std::array<std::uint8_t, 128> places_{};
};

}  // namespace tamble
