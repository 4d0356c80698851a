#pragma once

#include <compare>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace tamble {

/// A uniform type: what a file is, as an identifier such as "public.jpeg", and the more general types it
/// conforms to. Types come from one fixed table of the kinds of files the tools know.
class ContentType {
  public:
    /// The type with this identifier; empty when the table has none.
    static std::optional<ContentType> withIdentifier(std::string_view identifier);
    /// The type that the extension (without its dot, in any letter case) stands for.
    static std::optional<ContentType> forExtension(std::string_view extension);
    /// The type of a file by its name's extension; a name without any is looked into (its first bytes).
    static std::optional<ContentType> of(const std::filesystem::path& file);
    /// The type that the first bytes of a file's content name by their signature.
    static std::optional<ContentType> ofContent(std::string_view firstBytes);

    const std::string_view& identifier() const noexcept { return identifier_; }
    /// Whether this is the type with that identifier or one of its kinds, as "public.jpeg" conforms to
    /// "public.image".
    bool conformsTo(std::string_view identifier) const;

    friend bool operator==(const ContentType&, const ContentType&) = default;

  private:
    explicit ContentType(std::string_view identifier) : identifier_(identifier) {}
    /// Refers into the fixed table.
    std::string_view identifier_;
};

}  // namespace tamble
