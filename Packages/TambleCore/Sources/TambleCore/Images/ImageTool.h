#pragma once

#include <boost/describe.hpp>

namespace tamble {

enum class ImageTool { convert, compress, resize, rotate, removeMetadata, removeBackground };
BOOST_DESCRIBE_ENUM(ImageTool, convert, compress, resize, rotate, removeMetadata, removeBackground)

}  // namespace tamble
