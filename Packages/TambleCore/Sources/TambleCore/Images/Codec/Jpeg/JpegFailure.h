#pragma once

// clang-format off
#include <cstdio>
#include <jpeglib.h>
// clang-format on

#include <csetjmp>
#include <stop_token>
#include <string>

namespace tamble {

/// Where libjpeg goes when it fails: it must not return from its error function, and frames of C take no
/// exceptions. Every call into it stands in a function that has called `setjmp(jump)` and holds nothing to be
/// destroyed.
struct JpegFailure {
    jpeg_error_mgr manager{};
    std::jmp_buf jump{};
    std::stop_token stop;
    bool stopped = false;

    explicit JpegFailure(std::stop_token token = {});
    JpegFailure(const JpegFailure&) = delete;
    JpegFailure& operator=(const JpegFailure&) = delete;
    std::string text(jpeg_common_struct* codec) const;
};

}  // namespace tamble
