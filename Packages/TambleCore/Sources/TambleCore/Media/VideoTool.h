#pragma once

#include <boost/describe.hpp>

namespace tamble {

enum class VideoTool {
    compress,
    trim,
    resize,
    cropRotate,
    speed,
    merge,
    mute,
    replaceAudio,
    subtitles,
    convert,
    gif,
    extractAudio
};
BOOST_DESCRIBE_ENUM(VideoTool, compress, trim, resize, cropRotate, speed, merge, mute, replaceAudio,
                    subtitles, convert, gif, extractAudio)

}  // namespace tamble
