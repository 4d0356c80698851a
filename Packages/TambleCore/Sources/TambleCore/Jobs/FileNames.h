#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <string_view>

/// Names of files as people and file systems take them.
namespace tamble::FileNames {

/// The name without "/", ":", white space at its ends and leading dots; "Untitled" if nothing is left.
std::string safe(std::string_view name);

/// `stem` + `suffix` + "." + `extension` (none when empty), the stem shortened so that the name fits: the
/// name of an output made from a file of that stem, as in "beach summary.txt".
std::string suffixed(std::string_view stem, std::string_view suffix, std::string_view extension);

/// The name of the output of joining: the stem with " joined", or "Joined" for an empty stem.
std::string joined(std::string_view stem, std::string_view extension);

/// The name with a number, as in "beach 2.webp"; a name that ends in "/" is a folder's and has no extension.
std::string numbered(const std::string& name, int number);

/// The name itself, shortened in its stem if it is longer than a file system takes.
std::string fitted(const std::string& name);

/// The file's name without its extension.
std::string stem(const std::filesystem::path& file);

}  // namespace tamble::FileNames
