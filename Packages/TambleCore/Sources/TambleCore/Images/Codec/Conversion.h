#pragma once

#include <TambleCore/Images/Codec/Container.h>
#include <TambleCore/Images/Codec/Encoders.h>
#include <TambleCore/Images/ImageJobSettings.h>
#include <TambleCore/Support/WorkContext.h>

namespace tamble {

/// One picture on its way through the image tools.
struct Conversion {
    ByteView file;
    Container container;
    ImageFormat format;
    const ImageJobSettings& settings;
    const WorkContext& context;

    bool keepsFormat() const { return imageFormat(container) == format; }

    /// The new file's content. Throws ConversionError; Cancelled.
    Bytes result() const;

  private:
    /// Without decoding the picture, where what is asked for and the file allow it.
    std::optional<Bytes> edited() const;
    Bytes encoded() const;
    /// A JPEG on the short way that its channels allow, where one is known to the format.
    std::optional<EncodedPicture> encodedFromJpeg(const MetadataBlocks& source, const Encoding& encoding,
                                                  const Watch& watch) const;
};

}  // namespace tamble
