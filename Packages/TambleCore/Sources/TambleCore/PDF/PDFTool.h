#pragma once

#include <boost/describe.hpp>

namespace tamble {

enum class PDFTool {
    merge,
    split,
    organize,
    deletePages,
    extractPages,
    compress,
    sign,
    addPassword,
    removePassword,
    fromImages,
    toImages
};
BOOST_DESCRIBE_ENUM(PDFTool, merge, split, organize, deletePages, extractPages, compress, sign, addPassword,
                    removePassword, fromImages, toImages)

}  // namespace tamble
