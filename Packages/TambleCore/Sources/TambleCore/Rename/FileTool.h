#pragma once

#include <boost/describe.hpp>

namespace tamble {

enum class FileTool { rename };
BOOST_DESCRIBE_ENUM(FileTool, rename)

}  // namespace tamble
