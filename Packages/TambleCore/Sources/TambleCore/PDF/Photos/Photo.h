#pragma once

#include <TambleCore/Intake/InputFile.h>
#include <TambleCore/PDF/Structure/Carrying/FileWriter.h>
#include <TambleCore/Platform/MappedFile.h>
#include <TambleCore/Support/WorkContext.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tamble::pdf {

/// A colour profile as a PDF holds it.
struct PhotoProfile {
    int components = 3;
    /// "/Filter /FlateDecode " when the data are compressed.
    std::string filter;
    std::string data;
};

/// A photo as it goes into a PDF: its own coded data, or those of its planes.
struct Photo {
    /// As stored, before it is turned upright.
    int width = 0;
    int height = 0;
    /// As EXIF counts them, 1…8.
    int orientation = 1;
    /// Pixels per inch, where the photo tells them.
    std::optional<double> resolutionX = {};
    std::optional<double> resolutionY = {};

    /// The keys of the picture but its size and colours, as in "/BitsPerComponent 8 /Filter /DCTDecode ".
    std::string coding;
    /// "/DeviceRGB", or "[/ICCBased N 0 R]" once the profile is written.
    std::string colours;
    std::optional<PhotoProfile> profile = {};
    /// The coded data; they lie in `bytes` or in `file`.
    std::string_view data;
    /// How much each pixel covers, coded as `alphaCoding` says; empty for a photo that covers everything.
    std::string alphaCoding;
    std::string alpha;

    std::string bytes;
    std::shared_ptr<MappedFile> file;

    /// Takes the resolution in pixels per inch that the file tells, unless it is one that no picture has:
    /// programs that know none write a pixel per millimetre, or per anything.
    void setResolution(double x, double y);
};

/// The photo, ready to be written: JPEGs bit for bit, PNGs without loss, others as their converted selves,
/// made beside `scratch` and removed with it. Throws PDFError::imageUnreadable; Cancelled.
Photo readPhoto(const InputFile& file, const std::filesystem::path& scratch, const WorkContext& context);

/// Empty when the bytes are no JPEG, or of a kind that PDFs do not take.
std::optional<Photo> jpegPhoto(std::shared_ptr<MappedFile> file);

/// Empty when the bytes are no PNG, or stored in a way that PDFs do not know (interlaced, see-through
/// palettes).
std::optional<Photo> pngPhoto(std::shared_ptr<MappedFile> file);

}  // namespace tamble::pdf
