#pragma once

#include <TambleCore/Previews/PreviewPicture.h>

#include <filesystem>
#include <optional>
#include <vector>

/// How a worker hands over what is to be shown: numbers and plain samples, so that whoever decoded an
/// untrusted file can bring its reader no format to decode. What is read is believed in nothing: links, other
/// things than files, sides beyond the bound and lengths that do not fit exactly are refused with an empty
/// answer.
namespace tamble::PreviewFiles {

/// Writes a file that must not exist yet. Throws std::filesystem::filesystem_error.
void write(const std::filesystem::path& path, const PreviewPicture& picture);
/// A picture whose sides are at most `mostPixels` each.
std::optional<PreviewPicture> readPicture(const std::filesystem::path& path, int mostPixels);

/// Writes a file that must not exist yet. Throws std::filesystem::filesystem_error.
void write(const std::filesystem::path& path, const std::vector<PreviewPage>& pages);
/// At least one page and at most a million, with sides above zero.
std::optional<std::vector<PreviewPage>> readPages(const std::filesystem::path& path);

}  // namespace tamble::PreviewFiles
