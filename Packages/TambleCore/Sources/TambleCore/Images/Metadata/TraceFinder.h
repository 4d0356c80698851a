#pragma once

#include <TambleCore/Images/Metadata/Containers/ByteAccess.h>

namespace tamble {

/// Collects what should not be in a picture's file any more. Looks at bytes as a stranger would: it shares
/// the knowledge of containers with the code that removes, not the decisions about what goes.
class TraceFinder {
  public:
    explicit TraceFinder(MetadataRemoval removal) : everything_(removal == MetadataRemoval::everything) {}

    void jpeg(ByteView file);
    void png(ByteView file);
    void webp(ByteView file);
    void tiff(ByteView file);
    void gif(ByteView file);
    void iso(ByteView file);

    std::vector<std::string> take() && { return std::move(found_); }

  private:
    void add(std::string trace);
    /// Notes the trace when everything should be gone.
    void addHidden(std::string trace) {
        if (everything_) add(std::move(trace));
    }
    void afterTheEnd(ByteView file, std::size_t end);

    /// A TIFF structure of metadata: GPS directories anywhere, blocks within, the thumbnail's own metadata.
    void exif(ByteView block);
    /// XMP and other text in which properties have names.
    void properties(ByteView text);
    void iptc(ByteView records);
    void resources(ByteView blocks);

    bool everything_;
    /// Structures looked at: they can lie within one another in ever more ways.
    int structures_ = 0;
    std::vector<std::string> found_;
};

}  // namespace tamble
