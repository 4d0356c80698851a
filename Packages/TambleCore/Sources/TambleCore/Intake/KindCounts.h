#pragma once

#include <TambleCore/Intake/InputFile.h>

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
    friend bool operator==(const KindCounts&, const KindCounts&) = default;
};
BOOST_DESCRIBE_STRUCT(KindCounts, (), (images, videos, audio, pdfs, documents))

}  // namespace tamble
