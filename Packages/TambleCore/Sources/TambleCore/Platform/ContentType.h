#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace tamble {

struct ContentTypeFacts;

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
    /// The type that the first bytes of a file's content name by their signature; `signatureLength` bytes are
    /// enough.
    static std::optional<ContentType> ofContent(std::string_view firstBytes);
    static constexpr std::size_t signatureLength = 512;

    std::string_view identifier() const noexcept;
    /// Whether this is the type with that identifier or one of its kinds, as "public.jpeg" conforms to
    /// "public.image".
    bool conformsTo(std::string_view identifier) const noexcept;

    friend bool operator==(const ContentType&, const ContentType&) = default;

  private:
    explicit ContentType(const ContentTypeFacts& facts) : facts_(&facts) {}
    /// Points into the fixed table.
    const ContentTypeFacts* facts_;
};

/// The extension of a file name without its dot; empty for "name", "name." and ".name".
std::string_view extensionOf(std::string_view fileName) noexcept;

}  // namespace tamble
