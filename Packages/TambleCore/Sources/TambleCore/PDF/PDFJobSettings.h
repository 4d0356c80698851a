#pragma once

#include <TambleCore/Images/ImageFormat.h>
#include <TambleCore/PDF/PDFTool.h>
#include <TambleCore/Support/Json/JsonCoding.h>
#include <TambleCore/Support/Settings/SettingsSchema.h>

#include <cstddef>

namespace tamble {

namespace split_mode {
/// A new PDF after each group of that many pages.
struct Every {
    static constexpr std::string_view caseName = "every";
    int value = 1;
    friend bool operator==(const Every&, const Every&) = default;
};
BOOST_DESCRIBE_STRUCT(Every, (), (value))
/// A PDF for each of these page groups; see PageList.
struct Ranges {
    static constexpr std::string_view caseName = "ranges";
    std::string value;
    friend bool operator==(const Ranges&, const Ranges&) = default;
};
BOOST_DESCRIBE_STRUCT(Ranges, (), (value))
/// One PDF per page.
struct EveryPage {
    static constexpr std::string_view caseName = "everyPage";
    friend bool operator==(const EveryPage&, const EveryPage&) = default;
};
BOOST_DESCRIBE_STRUCT(EveryPage, (), ())
}  // namespace split_mode

using PDFSplitMode = std::variant<split_mode::EveryPage, split_mode::Every, split_mode::Ranges>;

/// One page of a new document.
struct PageEdit {
    /// The page's index in the source, counted from 0.
    int source = 0;
    /// Degrees clockwise, a multiple of 90, added to the page's own turn.
    int rotation = 0;
    friend bool operator==(const PageEdit&, const PageEdit&) = default;
};
BOOST_DESCRIBE_STRUCT(PageEdit, (), (source, rotation))

/// A place on a page as it is shown (cropped, turned upright): shares of its width and height, 0…1, from its
/// upper left corner.
struct NormalizedRect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    friend bool operator==(const NormalizedRect&, const NormalizedRect&) = default;
};
BOOST_DESCRIBE_STRUCT(NormalizedRect, (), (x, y, width, height))

/// A signature to draw into a page.
struct SignaturePlacement {
    /// A UUID.
    std::string id;
    /// Counted from 0.
    int page = 0;
    /// The picture keeps its shape and is centred in it.
    NormalizedRect rect;
    /// The bytes of a PNG file.
    std::vector<std::byte> imagePNG;
    friend bool operator==(const SignaturePlacement&, const SignaturePlacement&) = default;
};
BOOST_DESCRIBE_STRUCT(SignaturePlacement, (), (id, page, rect, imagePNG))

enum class PDFCompression {
    balanced,  ///< pictures are re-saved for screens, everything else stays
    smallest,  ///< every page becomes a picture
};
BOOST_DESCRIBE_ENUM(PDFCompression, balanced, smallest)

enum class PDFPageSize {
    fitPhoto,  ///< each page has the photo's own shape
    a4,        ///< 595.28 by 841.89 points
    letter,    ///< 612 by 792 points
};
BOOST_DESCRIBE_ENUM(PDFPageSize, fitPhoto, a4, letter)

/// What the user chose for a job of any PDF tool.
struct PDFJobSettings {
    PDFCompression compression = PDFCompression::balanced;
    /// Leave a PDF alone when the result isn't smaller.
    bool skipIfNotSmaller = true;
    /// The password to add, or the one that opens locked inputs. Not described, so that it is never written
    /// out.
    std::string password = {};
    PDFSplitMode split = split_mode::EveryPage{};
    /// The whole new document in its new order: a page that is not listed is left out.
    std::optional<std::vector<PageEdit>> pages = {};
    /// What was typed where no page editor is used: the new order, the pages to delete or those to take out;
    /// see PageList. `pages` goes first.
    std::optional<std::string> pageList = {};
    std::vector<SignaturePlacement> signatures = {};
    ImageFormat imageFormat = ImageFormat::jpeg;
    /// Dots per inch of `toImages`.
    int imageDPI = 150;
    PDFPageSize pageSize = PDFPageSize::fitPhoto;
    /// A white border around each photo.
    bool pageMargin = false;
    /// The name of a combined output, without extension.
    std::optional<std::string> outputStem = {};

    friend bool operator==(const PDFJobSettings&, const PDFJobSettings&) = default;
};
BOOST_DESCRIBE_STRUCT(PDFJobSettings, (),
                      (compression, skipIfNotSmaller, split, pages, pageList, signatures, imageFormat,
                       imageDPI, pageSize, pageMargin, outputStem))

/// The fewest characters of a new password.
inline constexpr std::size_t shortestPassword = 4;

/// The fields that the tool uses, as they are offered; the others can only be given as JSON.
SettingsSchema pdfSettingsSchema(PDFTool tool);

}  // namespace tamble
