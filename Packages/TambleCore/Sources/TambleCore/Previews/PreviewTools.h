#pragma once

#include <TambleCore/Jobs/ToolDefinition.h>

#include <string>
#include <string_view>

/// Tools in no list that people see: what a worker does for a Previewer. They write PreviewFiles.
namespace tamble {

/// Of `preview.photo`, which writes the picture.
struct PhotoPreviewSettings {
    int maxPixelSize = 256;
};
BOOST_DESCRIBE_STRUCT(PhotoPreviewSettings, (), (maxPixelSize))

/// Of `preview.pages`, which writes the sizes of all pages.
struct PageListSettings {
    /// Never in JSON; see Secrets.
    std::string password = {};
};
BOOST_DESCRIBE_STRUCT(PageListSettings, (), ())

/// Of `preview.page`, which makes a folder with the picture of each page in it, named by its index. A picture
/// stands under its name when it is complete.
struct PagePreviewSettings {
    /// Counted from 0.
    int first = 0;
    int count = 1;
    /// Of the longest side.
    int pixelSize = 256;
    /// Never in JSON; see Secrets.
    std::string password = {};
};
BOOST_DESCRIBE_STRUCT(PagePreviewSettings, (), (first, count, pixelSize))

const ToolDefinition& photoPreviewTool();
const ToolDefinition& pageListTool();
const ToolDefinition& pagePreviewTool();

/// Null when it is none of them.
const ToolDefinition* previewTool(std::string_view id);

}  // namespace tamble
