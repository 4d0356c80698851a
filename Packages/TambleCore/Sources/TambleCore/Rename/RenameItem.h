#pragma once

#include <TambleCore/Intake/InputFile.h>
#include <TambleCore/Support/Json/Described.h>

namespace tamble {

/// One file and the name planned for it.
struct RenameItem {
    enum class Problem {
        duplicate,  ///< several files of the batch would get the name
        exists,     ///< a file that is not renamed with them has the name
        empty,      ///< nothing is left of the name
        tooLong,    ///< no file system takes the name
    };
    BOOST_DESCRIBE_NESTED_ENUM(Problem, duplicate, exists, empty, tooLong)

    InputFile file;
    /// The whole new file name, with its extension.
    std::string newName;
    std::optional<Problem> problem = {};

    friend bool operator==(const RenameItem&, const RenameItem&) = default;
};

/// As it stands beside the item.
std::string_view sentence(RenameItem::Problem problem);

/// Where the file gets its new name: in its own folder, under the new name.
FilePath renamedPath(const RenameItem& item);

/// Whether the file has its new name already.
bool keepsItsName(const RenameItem& item);

}  // namespace tamble
