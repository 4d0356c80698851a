#pragma once

#include <TambleCore/Images/Metadata/Metadata.h>

#include "../Codec/TestPictures.h"

namespace tamble::test {

/// Whether the independent reader and writer is on this machine.
bool hasExifTool();

/// Runs exiftool with the words and answers what it prints.
std::string exifTool(const std::vector<std::string>& words);

/// All that it reads from the file, one "[group] tag: value" a line, duplicates and embedded documents
/// included.
std::string tagsOf(const std::filesystem::path& file);
/// The same of two or more files in one run, which is far quicker.
std::vector<std::string> tagsOf(const std::vector<std::filesystem::path>& files);

/// The words that give a file camera, date, keywords and a place in every vocabulary.
std::vector<std::string> photographTags();
/// Words that must be nowhere in `tagsOf` once the place is gone.
std::vector<std::string> placeWords();

Bytes bytesOf(const std::filesystem::path& file);

struct FormatCase {
    ImageFormat format;
    std::string name;
};
inline const std::vector<FormatCase> losslessFormats{{ImageFormat::jpeg, "a.jpg"},
                                                     {ImageFormat::png, "a.png"},
                                                     {ImageFormat::webp, "a.webp[lossless]"},
                                                     {ImageFormat::tiff, "a.tiff[tile]"}};

}  // namespace tamble::test
