#pragma once

#include <TambleCore/Platform/ContentType.h>
#include <TambleCore/Support/FilePath.h>
#include <TambleCore/Support/Json/Json.h>

#include <cstdint>
#include <optional>
#include <string>

namespace tamble {

/// One file to work on.
struct InputFile {
    FilePath url;
    /// The dropped folder the file was found in; for a loose file, its own folder.
    FilePath root;
    /// The path of the file's folder below `root`, components joined with "/"; empty for files directly in
    /// it.
    std::string relativeFolder;
    std::int64_t byteSize = 0;
    std::optional<ContentType> contentType = {};
    /// The original that an intermediate file stands for; empty for dropped files.
    std::optional<FilePath> originalURL = {};
    /// Whether the file was dropped itself, not found in a dropped folder.
    bool isLoose = false;

    friend bool operator==(const InputFile&, const InputFile&) = default;
};

}  // namespace tamble
