# The picture libraries: loaded on first use, because starting them costs more than most commands take.
pkg_check_modules(VIPS REQUIRED IMPORTED_TARGET vips-cpp)
pkg_check_modules(WEBP REQUIRED IMPORTED_TARGET libwebp libwebpmux)
pkg_check_modules(ZLIB REQUIRED IMPORTED_TARGET zlib)
pkg_check_modules(JPEG REQUIRED IMPORTED_TARGET libjpeg)
pkg_check_modules(TURBOJPEG REQUIRED IMPORTED_TARGET libturbojpeg)
pkg_check_modules(LCMS REQUIRED IMPORTED_TARGET lcms2)
pkg_check_modules(RAW REQUIRED IMPORTED_TARGET libraw_r)
pkg_check_modules(HEIF REQUIRED IMPORTED_TARGET libheif)
pkg_check_modules(EXIV2 REQUIRED IMPORTED_TARGET exiv2)

file(GLOB_RECURSE image_sources CONFIGURE_DEPENDS
    Sources/TambleCore/Images/Codec/*.cpp
    Sources/TambleCore/Images/Metadata/*.cpp
    Sources/TambleCore/Images/Lossless/*.cpp)
# What only takes files apart is shared with the PDF module, which so needs none of these libraries.
file(GLOB container_sources CONFIGURE_DEPENDS
    Sources/TambleCore/Images/Metadata/Containers/*.cpp
    Sources/TambleCore/Images/Metadata/Exif/TiffStructure.cpp)
list(REMOVE_ITEM image_sources ${container_sources})
add_library(TambleContainers STATIC ${container_sources})
set_target_properties(TambleContainers PROPERTIES POSITION_INDEPENDENT_CODE ON)
target_precompile_headers(TambleContainers PRIVATE <TambleCore/Support/Precompiled.h>)
target_link_libraries(TambleContainers PUBLIC TambleCore PRIVATE tamble_options PkgConfig::ZLIB)

add_library(TambleImages SHARED ${image_sources})
target_precompile_headers(TambleImages PRIVATE <TambleCore/Support/Precompiled.h>)
target_link_libraries(TambleImages
    PUBLIC TambleCore TambleContainers
    PRIVATE tamble_options PkgConfig::VIPS PkgConfig::WEBP PkgConfig::JPEG PkgConfig::TURBOJPEG PkgConfig::LCMS
            PkgConfig::RAW PkgConfig::HEIF PkgConfig::EXIV2 PkgConfig::ZLIB)
