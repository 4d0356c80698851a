#pragma once

#include <TambleCore/Support/Json/JsonCoding.h>

#include <variant>

namespace tamble {

/// Where new files go.
namespace location {
/// All new files go into one folder, optionally keeping the dropped folders' structure.
struct Folder {
    static constexpr std::string_view caseName = "folder";
    std::filesystem::path value;
    bool keepStructure = false;
    friend bool operator==(const Folder&, const Folder&) = default;
};
BOOST_DESCRIBE_STRUCT(Folder, (), (value, keepStructure))
/// Each new file goes into its original's folder.
struct NextToOriginal {
    static constexpr std::string_view caseName = "nextToOriginal";
    friend bool operator==(const NextToOriginal&, const NextToOriginal&) = default;
};
BOOST_DESCRIBE_STRUCT(NextToOriginal, (), ())
/// Each new file takes its original's place; the original goes to the Bin.
struct ReplaceOriginals {
    static constexpr std::string_view caseName = "replaceOriginals";
    friend bool operator==(const ReplaceOriginals&, const ReplaceOriginals&) = default;
};
BOOST_DESCRIBE_STRUCT(ReplaceOriginals, (), ())
}  // namespace location

using SaveLocation = std::variant<location::Folder, location::NextToOriginal, location::ReplaceOriginals>;

/// What happens when an output's name is taken.
enum class ClashPolicy {
    addNumber,  ///< the new file takes a free numbered name
    skip,       ///< the existing file stays and the item is skipped
    replace,    ///< the existing file goes to the Bin
};
BOOST_DESCRIBE_ENUM(ClashPolicy, addNumber, skip, replace)

}  // namespace tamble
