# Work on PDFs: loaded on first use.
pkg_check_modules(QPDF REQUIRED IMPORTED_TARGET libqpdf)
pkg_check_modules(DEFLATE REQUIRED IMPORTED_TARGET libdeflate)

file(GLOB_RECURSE pdf_sources CONFIGURE_DEPENDS
    Sources/TambleCore/PDF/Structure/*.cpp
    Sources/TambleCore/PDF/Operations/*.cpp
    Sources/TambleCore/PDF/Pages/*.cpp
    Sources/TambleCore/PDF/Photos/*.cpp
    Sources/TambleCore/PDF/Pictures/*.cpp)
# JPEGs fail in the same way wherever they are coded.
list(APPEND pdf_sources Sources/TambleCore/Images/Codec/Jpeg/JpegFailure.cpp)
add_library(TamblePDF SHARED ${pdf_sources})
# Without the smart pointer that qpdf used before the standard had one.
target_compile_definitions(TamblePDF PUBLIC POINTERHOLDER_TRANSITION=4)
target_precompile_headers(TamblePDF PRIVATE <TambleCore/Support/Precompiled.h>)
target_link_libraries(TamblePDF
    PUBLIC TambleCore
    PRIVATE tamble_options TambleContainers PkgConfig::QPDF PkgConfig::DEFLATE PkgConfig::JPEG PkgConfig::ZLIB)
