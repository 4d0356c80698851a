#pragma once

#include <TambleCore/Support/Json/JsonCoding.h>

#include <exception>
#include <variant>

namespace tamble {

/// Why an item was left alone.
namespace skip {
/// The file is already in the requested format; carries the format's display name.
struct AlreadyInFormat {
    static constexpr std::string_view caseName = "alreadyInFormat";
    std::string value;
    friend bool operator==(const AlreadyInFormat&, const AlreadyInFormat&) = default;
};
BOOST_DESCRIBE_STRUCT(AlreadyInFormat, (), (value))
/// The clash policy is `skip` and the target name exists.
struct NameTaken {
    static constexpr std::string_view caseName = "nameTaken";
    friend bool operator==(const NameTaken&, const NameTaken&) = default;
};
BOOST_DESCRIBE_STRUCT(NameTaken, (), ())
/// The result would not be smaller than the original.
struct NotSmaller {
    static constexpr std::string_view caseName = "notSmaller";
    friend bool operator==(const NotSmaller&, const NotSmaller&) = default;
};
BOOST_DESCRIBE_STRUCT(NotSmaller, (), ())
/// A password-protected document with no password given.
struct NoPassword {
    static constexpr std::string_view caseName = "noPassword";
    friend bool operator==(const NoPassword&, const NoPassword&) = default;
};
BOOST_DESCRIBE_STRUCT(NoPassword, (), ())
/// A file that is to be renamed has its new name already.
struct SameName {
    static constexpr std::string_view caseName = "sameName";
    friend bool operator==(const SameName&, const SameName&) = default;
};
BOOST_DESCRIBE_STRUCT(SameName, (), ())
}  // namespace skip

using SkipReason =
    std::variant<skip::AlreadyInFormat, skip::NameTaken, skip::NotSmaller, skip::NoPassword, skip::SameName>;

/// The reason as people read it.
std::string sentence(const SkipReason& reason);

/// Thrown by a processor to leave an item alone.
class ProcessorSkip : public std::exception {
  public:
    explicit ProcessorSkip(SkipReason reason);
    ~ProcessorSkip() override;
    ProcessorSkip(const ProcessorSkip&) = default;
    ProcessorSkip& operator=(const ProcessorSkip&) = default;

    const SkipReason& reason() const noexcept { return reason_; }
    const char* what() const noexcept override;

  private:
    SkipReason reason_;
};

}  // namespace tamble
