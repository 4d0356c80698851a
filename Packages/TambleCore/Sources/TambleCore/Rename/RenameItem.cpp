#include <TambleCore/Rename/RenameItem.h>

namespace tamble {
namespace {

std::size_t nameStart(const std::string& path) {
    return path.rfind('/') + 1;
}

}  // namespace

std::string_view sentence(RenameItem::Problem problem) {
    switch (problem) {
        case RenameItem::Problem::duplicate:
            return "Two files would get this name";
        case RenameItem::Problem::exists:
            return "Another file already has this name";
        case RenameItem::Problem::empty:
            return "The name would be empty";
        case RenameItem::Problem::tooLong:
            break;
    }
    return "The name would be too long";
}

// As text, so that no path is taken apart for each of many files.
FilePath renamedPath(const RenameItem& item) {
    const std::string& path = item.file.url.native();
    return path.substr(0, nameStart(path)) + item.newName;
}

bool keepsItsName(const RenameItem& item) {
    const std::string& path = item.file.url.native();
    return std::string_view(path).substr(nameStart(path)) == item.newName;
}

}  // namespace tamble
