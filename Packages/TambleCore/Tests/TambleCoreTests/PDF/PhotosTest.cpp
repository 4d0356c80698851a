#include <TambleCore/Images/Metadata/Containers/JpegSegments.h>

#include "TinyPDF.h"
#include <qpdf/Buffer.hh>
#include <vips/vips8>

namespace tamble::pdf {
namespace {

using vips::VImage;

class Photos : public testing::Test {
  protected:
    static void SetUpTestSuite() { VIPS_INIT("PDFTests"); }

    /// Each pixel of another colour; `bands` of 8 or 16 bits.
    static VImage picture(int bands, int depth = 8, int width = 7, int height = 5) {
        const auto at = VImage::xyz(width, height);
        const double scale = depth == 16 ? 257 : 1;
        VImage made = at.extract_band(0) * (30 * scale);
        for (int band = 1; band < bands; ++band)
            made = made.bandjoin((at.extract_band(1) * 40 + at.extract_band(0) * band * 3) * scale);
        made = made.cast(depth == 16 ? VIPS_FORMAT_USHORT : VIPS_FORMAT_UCHAR);
        const auto meaning = bands < 3 ? (depth == 16 ? VIPS_INTERPRETATION_GREY16 : VIPS_INTERPRETATION_B_W)
                                       : (depth == 16 ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB);
        return made.copy(VImage::option()->set("interpretation", meaning));
    }
    std::filesystem::path written(const VImage& image, const std::string& name,
                                  vips::VOption* options = nullptr) const {
        const auto file = folder.files() / name;
        image.write_to_file(file.c_str(), options);
        return file;
    }
    static std::string typeOf(const std::filesystem::path& file) {
        return file.extension() == ".jpg" ? "public.jpeg" : "public.png";
    }
    ReadPDF pages(const std::vector<std::filesystem::path>& files,
                  const PDFJobSettings& settings = {}) const {
        std::vector<InputFile> inputs;
        for (const auto& file : files) inputs.push_back(input(file, typeOf(file)));
        return ReadPDF(combined(PDFTool::fromImages, inputs, settings));
    }
    static QPDFObjectHandle photo(ReadPDF& pdf, std::size_t page = 0) {
        return pdf.pages().at(page).getKey("/Resources").getKey("/XObject").getKey("/Photo");
    }
    static std::string bytes(QPDFObjectHandle stream, qpdf_stream_decode_level_e level) {
        const auto buffer = level == qpdf_dl_none ? stream.getRawStreamData() : stream.getStreamData(level);
        return {reinterpret_cast<const char*>(buffer->getBuffer()), buffer->getSize()};
    }
    /// A picture's samples as PDFs store them: 16 bits with the high byte first.
    static std::string samples(VImage image) {
        if (image.format() == VIPS_FORMAT_USHORT) image = image.byteswap();
        std::size_t size = 0;
        void* memory = image.write_to_memory(&size);
        std::string result(static_cast<const char*>(memory), size);
        g_free(memory);
        return result;
    }
    /// Where the stored picture's corners come to lie on a page.
    static std::array<double, 6> matrix(ReadPDF& pdf, std::size_t page = 0) {
        std::istringstream content(bytes(pdf.pages().at(page).getKey("/Contents"), qpdf_dl_all));
        std::string q;
        std::array<double, 6> numbers{};
        content >> q;
        for (double& number : numbers) content >> number;
        return numbers;
    }
    static std::array<double, 2> size(ReadPDF& pdf, std::size_t page = 0) {
        auto box = pdf.pages().at(page).getKey("/MediaBox");
        return {box.getArrayItem(2).getNumericValue(), box.getArrayItem(3).getNumericValue()};
    }

    TestFolder folder;
};

TEST_F(Photos, JpegsGoInBitForBit) {
    const auto option = [] { return VImage::option(); };
    const auto inks = picture(4).copy(option()->set("interpretation", VIPS_INTERPRETATION_CMYK));
    const std::vector<std::filesystem::path> files{
        written(picture(3), "baseline.jpg"),
        written(picture(3), "progressive.jpg", option()->set("interlace", true)),
        written(picture(1), "gray.jpg"), written(inks, "inks.jpg")};
    ReadPDF pdf = pages(files);
    const std::vector<std::string> colours{"/DeviceRGB", "/DeviceRGB", "/DeviceGray", "/DeviceCMYK"};
    for (std::size_t i = 0; i < files.size(); ++i) {
        EXPECT_EQ(bytes(photo(pdf, i), qpdf_dl_none), contentOf(files[i])) << files[i];
        EXPECT_EQ(photo(pdf, i).getDict().getKey("/ColorSpace").unparse(), colours[i]);
    }
    // Their inks are stored the other way round.
    EXPECT_EQ(photo(pdf, 3).getDict().getKey("/Decode").unparse(), "[ 1 0 1 0 1 0 1 0 ]");
}

TEST_F(Photos, EachOrientationStandsUpright) {
    const auto plain = written(picture(3, 8, 96, 48), "plain.jpg");
    // Where the stored picture's upper left and upper right corners are shown, in shares from the upper left.
    const std::vector<std::array<double, 4>> corners{{0, 0, 1, 0}, {1, 0, 0, 0}, {1, 1, 0, 1}, {0, 1, 1, 1},
                                                     {0, 0, 0, 1}, {1, 0, 1, 1}, {1, 1, 1, 0}, {0, 1, 0, 0}};
    for (std::size_t orientation = 1; orientation <= corners.size(); ++orientation) {
        const std::string exif("Exif\0\0MM\0*\0\0\0\x08\0\1\1\x12\0\3\0\0\0\1\0", 25);
        const std::string segment = exif + static_cast<char>(orientation) + std::string(6, '\0');
        std::string turned = contentOf(plain);
        turned.insert(2, std::string("\xFF\xE1\0", 3) + static_cast<char>(segment.size() + 2) + segment);
        const auto file = folder.write(fmt::format("{}.jpg", orientation), turned);
        ReadPDF pdf = pages({file});
        EXPECT_EQ(bytes(photo(pdf), qpdf_dl_none), turned);
        const auto [width, height] = size(pdf);
        EXPECT_EQ(width > height, orientation < 5) << orientation;
        const auto m = matrix(pdf);
        const std::array<double, 4> shown{(m[2] + m[4]) / width, 1 - (m[3] + m[5]) / height,
                                          (m[0] + m[2] + m[4]) / width, 1 - (m[1] + m[3] + m[5]) / height};
        for (std::size_t i = 0; i < 4; ++i)
            EXPECT_NEAR(shown[i], corners[orientation - 1][i], 1e-3) << orientation;
    }
}

TEST_F(Photos, PngsLoseNothing) {
    const auto option = [] { return VImage::option(); };
    struct Case {
        std::string name;
        VImage image;
        vips::VOption* options = nullptr;
    };
    const std::vector<Case> cases{
        {"rgb", picture(3)},
        {"gray", picture(1)},
        {"deep", picture(3, 16)},
        {"interlaced", picture(3), option()->set("interlace", true)},
        {"profile", picture(3), option()->set("profile", "p3")},
    };
    for (const auto& one : cases) {
        ReadPDF pdf = pages({written(one.image, one.name + ".png", one.options)});
        EXPECT_EQ(bytes(photo(pdf), qpdf_dl_all), samples(one.image)) << one.name;
        EXPECT_EQ(photo(pdf).getDict().getKey("/ColorSpace").isArray(), one.name == "profile") << one.name;
    }
    for (const auto& [name, bands, depth] : std::vector<std::tuple<std::string, int, int>>{
             {"clear", 4, 8}, {"clear gray", 2, 8}, {"clear deep", 4, 16}}) {
        const VImage image = picture(bands, depth);
        ReadPDF pdf = pages({written(image, name + ".png")});
        const int last = bands - 1;
        EXPECT_EQ(bytes(photo(pdf), qpdf_dl_all), samples(image.extract_band(0, option()->set("n", last))))
            << name;
        EXPECT_EQ(bytes(photo(pdf).getDict().getKey("/SMask"), qpdf_dl_all),
                  samples(image.extract_band(last)))
            << name;
    }
}

TEST_F(Photos, PalettesKeepTheirColours) {
    const VImage image = picture(3);
    const auto file = written(image, "few.png", VImage::option()->set("palette", true)->set("dither", 0.0));
    const VImage shown = VImage::new_from_file(file.c_str()).colourspace(VIPS_INTERPRETATION_sRGB);
    ReadPDF pdf = pages({file});
    auto space = photo(pdf).getDict().getKey("/ColorSpace");
    ASSERT_TRUE(space.isArray());
    ASSERT_EQ(space.getArrayItem(0).getName(), "/Indexed");
    const std::string palette = space.getArrayItem(3).getStringValue();
    const auto depth = photo(pdf).getDict().getKey("/BitsPerComponent").getIntValueAsInt();
    const std::string indexes = bytes(photo(pdf), qpdf_dl_all);
    const std::size_t row = indexes.size() / 5;
    std::string colours;
    for (std::size_t y = 0; y < 5; ++y) {
        for (std::size_t x = 0; x < 7; ++x) {
            const auto bit = x * static_cast<std::size_t>(depth);
            const auto byte = static_cast<unsigned char>(indexes[y * row + bit / 8]);
            const unsigned index = (byte >> (8U - static_cast<unsigned>(depth) - bit % 8)) &
                                   ((1U << static_cast<unsigned>(depth)) - 1);
            colours += palette.substr(index * 3, 3);
        }
    }
    EXPECT_EQ(colours, samples(shown.extract_band(0, VImage::option()->set("n", 3))));
}

TEST_F(Photos, PagesHaveTheShapeThatWasChosen) {
    // 96 pixels to the inch, unless the photo tells another resolution.
    const auto wide = written(picture(3, 8, 192, 96), "wide.png");
    const auto fine = written(
        picture(3, 8, 150, 300).copy(VImage::option()->set("xres", 300 / 25.4)->set("yres", 300 / 25.4)),
        "fine.jpg");
    PDFJobSettings settings;
    ReadPDF own = pages({wide, fine}, settings);
    EXPECT_EQ(size(own, 0), (std::array<double, 2>{144, 72}));
    EXPECT_NEAR(size(own, 1)[0], 36, 0.2);
    EXPECT_NEAR(size(own, 1)[1], 72, 0.2);
    settings.pageMargin = true;
    ReadPDF bordered = pages({wide}, settings);
    const auto m = matrix(bordered);
    const auto [width, height] = size(bordered);
    EXPECT_GT(m[4], 0);
    EXPECT_NEAR(width - m[4] - m[0], m[4], 1e-3);
    EXPECT_NEAR(height - m[5] - m[3], m[5], 1e-3);
    EXPECT_NEAR(m[0] / m[3], 2, 1e-3);
    settings.pageSize = PDFPageSize::a4;
    ReadPDF paper = pages({wide, fine}, settings);
    EXPECT_EQ(size(paper, 0), (std::array<double, 2>{841.89, 595.28}));
    EXPECT_EQ(size(paper, 1), (std::array<double, 2>{595.28, 841.89}));
    const auto placed = matrix(paper, 0);
    EXPECT_NEAR(placed[0] / placed[3], 2, 1e-3);
    EXPECT_NEAR(placed[4], m[4], 1e-3) << "as wide as the border lets it be";
    settings.pageSize = PDFPageSize::letter;
    settings.pageMargin = false;
    ReadPDF letter = pages({fine}, settings);
    EXPECT_EQ(size(letter), (std::array<double, 2>{612, 792}));
}

TEST_F(Photos, ADamagedPhotoIsNotTaken) {
    for (const auto& file :
         {written(picture(3, 8, 300, 300), "a.jpg"), written(picture(3, 8, 300, 300), "a.png")}) {
        std::string content = contentOf(file);
        const auto cut =
            folder.write("cut" + file.extension().native(), content.substr(0, content.size() / 2));
        EXPECT_EQ(outcome([&] { pages({cut}); }), "imageUnreadable") << file;
    }
    // The chunks are whole, what is in them is not.
    std::string content = contentOf(written(picture(3, 8, 300, 300), "b.png"));
    const auto data = content.find("IDAT") + 4;
    for (std::size_t i = data + 40; i < data + 60; ++i) content[i] = static_cast<char>(content[i] ^ 0x55);
    EXPECT_EQ(outcome([&] { pages({folder.write("b.png", content)}); }), "imageUnreadable");
    EXPECT_EQ(outcome([&] { pages({folder.write("c.png", "no picture")}); }), "imageUnreadable");
}

}  // namespace
}  // namespace tamble::pdf
