#pragma once

#include <boost/describe.hpp>

namespace tamble {

enum class SmartTool { transcribe, ocr, summarize, translate };
BOOST_DESCRIBE_ENUM(SmartTool, transcribe, ocr, summarize, translate)

}  // namespace tamble
