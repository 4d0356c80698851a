#pragma once

#include <boost/describe.hpp>

namespace tamble {

enum class AudioTool { record, trim, cleanup, extract, convert };
BOOST_DESCRIBE_ENUM(AudioTool, record, trim, cleanup, extract, convert)

}  // namespace tamble
