#pragma once

#include <TambleCore/Images/Metadata/Metadata.h>

namespace tamble {

/// The metadata of the (first) picture in a file: JPEG, PNG, WebP, TIFF, HEIC, AVIF and GIF, told apart by their first
/// bytes. A TIFF file's own structure is answered as a new one that holds what describes the photograph, without the
/// picture. Blocks that are damaged or bigger than 16 MiB are absent; a file of another kind answers no block. Never
/// throws for what a file holds.
MetadataBlocks readMetadata(ByteView file);

}  // namespace tamble
