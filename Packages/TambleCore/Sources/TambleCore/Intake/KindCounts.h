#pragma once

#include <TambleCore/Intake/TypeCounts.h>

#include <span>

#include <boost/describe.hpp>

namespace tamble {

/// How many files of each kind a drop holds; every file counts as at most one kind.
struct KindCounts {
    int images = 0;
    int videos = 0;
    int audio = 0;
    int pdfs = 0;
    int documents = 0;

    static KindCounts of(std::span<const InputFile> files);
    static KindCounts of(const std::vector<TypeCount>& types);
    /// Files of any kind.
    int total() const noexcept { return images + videos + audio + pdfs + documents; }
    friend bool operator==(const KindCounts&, const KindCounts&) = default;
};
BOOST_DESCRIBE_STRUCT(KindCounts, (), (images, videos, audio, pdfs, documents))

}  // namespace tamble
