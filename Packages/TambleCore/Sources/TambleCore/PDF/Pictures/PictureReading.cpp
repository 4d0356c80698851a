#include <TambleCore/PDF/Pictures/PictureReading.h>
#include <TambleCore/PDF/Pictures/StreamData.h>

#include <algorithm>
#include <cmath>

namespace tamble::pdf {
namespace {

constexpr int longestSide = 1 << 20;
/// Sharp on screens also when looked at a little closer.
constexpr double pixelsPerInch = 150;
/// Less is not worth the loss.
constexpr double worthShrinking = 1.2;
constexpr std::size_t mostDecoded = std::size_t{128} << 20U;
/// What was coded in less than this share of its bytes is nearly plain, or made to exhaust whoever decodes
/// it.
constexpr std::size_t mostInflation = 200;
/// Pictures of fewer bytes have nothing to give.
constexpr std::size_t smallestToChange = 3000;

struct Space {
    int channels = 0;
    /// Whether its colours look the same after averaging and after coding them as luma and differences.
    bool standsChange = false;
};

std::optional<Space> spaceNamed(const std::string& name) {
    if (name == "/DeviceGray" || name == "/CalGray") return Space{1, true};
    if (name == "/DeviceRGB" || name == "/CalRGB") return Space{3, true};
    if (name == "/DeviceCMYK") return Space{4, true};
    if (name == "/Lab") return Space{3, false};
    if (name == "/Separation") return Space{1, true};
    return std::nullopt;
}

/// Profiles of Lab and the like say in which range their values are.
bool hasOwnRange(QPDFObjectHandle profile) {
    auto range = profile.getDict().getKey("/Range");
    if (!range.isArray()) return false;
    for (int i = 0; i < range.getArrayNItems(); ++i) {
        auto end = range.getArrayItem(i);
        if (!end.isNumber() || end.getNumericValue() != i % 2) return true;
    }
    return false;
}

std::optional<Space> spaceOf(QPDFObjectHandle space) {
    if (space.isName()) return spaceNamed(space.getName());
    if (!space.isArray() || space.getArrayNItems() < 1 || !space.getArrayItem(0).isName())
        return std::nullopt;
    const std::string family = space.getArrayItem(0).getName();
    if (family == "/DeviceN" && space.getArrayNItems() > 1 && space.getArrayItem(1).isArray())
        return Space{space.getArrayItem(1).getArrayNItems(), false};
    if (family != "/ICCBased") return spaceNamed(family);
    auto profile = space.getArrayNItems() > 1 ? space.getArrayItem(1) : QPDFObjectHandle::newNull();
    if (!profile.isStream()) return std::nullopt;
    auto count = profile.getDict().getKey("/N");
    if (!count.isInteger()) return std::nullopt;
    const int channels = count.getIntValueAsInt();
    if (channels != 1 && channels != 3 && channels != 4) return std::nullopt;
    return Space{channels, !hasOwnRange(profile)};
}

bool isIndexed(QPDFObjectHandle space) {
    return space.isArray() && space.getArrayNItems() == 4 &&
           space.getArrayItem(0).isNameAndEquals("/Indexed");
}

/// Reads one picture.
class Reading {
  public:
    Reading(QPDFObjectHandle stream, const WorkContext& context)
        : stream_(std::move(stream)), dictionary_(stream_.getDict()), context_(context) {}

    std::optional<Picture> read(std::optional<DrawnSize> drawn, bool isMask) {
        const auto shape = shapeOf(stream_);
        if (!shape || !readLayout(*shape) || !readCoding()) return std::nullopt;
        picture_.isMask = isMask;
        picture_.mayChange = standsChange_ && drawn && picture_.layout.bits > 1 &&
                             picture_.size >= smallestToChange && hasPlainSamples();
        picture_.target = picture_.mayChange ? target(*shape, *drawn) : *shape;
        return std::move(picture_);
    }

  private:
    bool readLayout(PictureShape shape) {
        auto& layout = picture_.layout;
        layout.shape = shape;
        if (dictionary_.getKey("/ImageMask").isBool() && dictionary_.getKey("/ImageMask").getBoolValue()) {
            layout.bits = 1;
            return true;
        }
        auto bits = dictionary_.getKey("/BitsPerComponent");
        layout.bits = bits.isInteger() ? bits.getIntValueAsInt() : 8;
        if (layout.bits != 1 && layout.bits != 2 && layout.bits != 4 && layout.bits != 8 && layout.bits != 16)
            return false;
        auto space = dictionary_.getKey("/ColorSpace");
        if (isIndexed(space)) return layout.bits <= 8 && readPalette(space);
        const auto known = spaceOf(space);
        if (!known) return false;
        layout.channels = known->channels;
        standsChange_ = known->standsChange;
        return true;
    }

    bool readPalette(QPDFObjectHandle space) {
        const auto base = spaceOf(space.getArrayItem(1));
        auto lookup = space.getArrayItem(3);
        if (!base || base->channels > 4) return false;
        if (lookup.isString()) {
            const std::string colours = lookup.getStringValue();
            picture_.palette.assign(colours.begin(), colours.end());
        } else if (lookup.isStream()) {
            constexpr std::size_t largest = 4 * 256 + 16;
            picture_.palette = decodedData(lookup, largest, context_).value_or(Bytes{});
        }
        picture_.paletteChannels = base->channels;
        const auto channels = static_cast<std::size_t>(base->channels);
        picture_.palette.resize(std::min<std::size_t>(picture_.palette.size() / channels, 256) * channels);
        // Other ranges of indices than all are left alone.
        standsChange_ = base->standsChange && dictionary_.getKey("/Decode").isNull();
        return !picture_.palette.empty();
    }

    bool readCoding() {
        const auto filters = filtersOf(stream_);
        if (!filters) return false;
        picture_.size = static_cast<std::size_t>(std::max(
            0LL,
            dictionary_.getKey("/Length").isInteger() ? dictionary_.getKey("/Length").getIntValue() : 0));
        if (filters->size() == 1 && readSingle(filters->front())) return true;
        if (!filters->empty() && filters->back().name == "/DCTDecode") {
            if (filters->size() == 1) return false;
            picture_.coding = Picture::Coding::jpeg;
            return isUsualJpeg(filters->back()) && setData(decodedData(stream_, limit(), context_, 1));
        }
        // Anything else that can be taken back: LZW, ASCII, several filters, none.
        picture_.coding = Picture::Coding::bare;
        return sampleBytes() <= limit() && setData(decodedData(stream_, limit(), context_)) &&
               picture_.data->getSize() >= sampleBytes();
    }

    std::size_t limit() const { return std::min(mostDecoded, mostInflation * (picture_.size + 1)); }
    std::size_t sampleBytes() const {
        return picture_.layout.rowBytes() * static_cast<std::size_t>(picture_.layout.shape.height);
    }

    /// The two usual ways, whose data is decoded elsewhere.
    bool readSingle(const StreamFilter& filter) {
        if (filter.name == "/DCTDecode") {
            if (!isUsualJpeg(filter)) return false;
            picture_.coding = Picture::Coding::jpeg;
        } else if (filter.name == "/FlateDecode") {
            if (!readPredictor(filter.parameters)) return false;
            picture_.coding = Picture::Coding::deflated;
        } else {
            return false;
        }
        picture_.data = codedData(stream_);
        if (picture_.data == nullptr) return false;
        picture_.size = picture_.data->getSize();
        return picture_.coding == Picture::Coding::jpeg || sampleBytes() <= mostInflation * picture_.size;
    }

    bool readPredictor(QPDFObjectHandle parameters) {
        if (!parameters.isDictionary()) return true;
        const auto number = [&](const char* key, int usual) {
            auto value = parameters.getKey(key);
            return value.isInteger() ? value.getIntValueAsInt() : usual;
        };
        const int predictor = number("/Predictor", 1);
        if (predictor == 1) return true;
        const auto& layout = picture_.layout;
        picture_.predictor = predictor == 2 ? Predictor::tiff : Predictor::png;
        return number("/Columns", 1) == layout.shape.width && number("/Colors", 1) == layout.channels &&
               number("/BitsPerComponent", 8) == layout.bits &&
               (predictor >= 10 || (predictor == 2 && layout.bits == 8));
    }

    /// Whether the file itself says how its colours are coded.
    bool isUsualJpeg(StreamFilter filter) {
        if (!filter.parameters.isDictionary()) return true;
        auto transform = filter.parameters.getKey("/ColorTransform");
        if (!transform.isInteger()) return true;
        const int usual = picture_.layout.channels == 3 ? 1 : 0;
        return picture_.layout.channels == 1 || transform.getIntValue() == usual;
    }

    bool setData(const std::optional<Bytes>& data) {
        if (!data || data->empty()) return false;
        picture_.data = std::make_shared<Buffer>(data->size());
        std::copy(data->begin(), data->end(), picture_.data->getBuffer());
        return true;
    }

    /// Colours that stand for transparency must not change, nor what another picture's shape depends on.
    bool hasPlainSamples() {
        auto mask = dictionary_.getKey("/SMask");
        const bool isMatted = mask.isStream() && mask.getDict().hasKey("/Matte");
        return !isMatted && !dictionary_.hasKey("/Matte") && !dictionary_.getKey("/Mask").isArray() &&
               !dictionary_.hasKey("/Alternates") && picture_.layout.channels <= 4;
    }

    static PictureShape target(PictureShape shape, DrawnSize drawn) {
        const double share =
            std::max(drawn.width * pixelsPerInch / shape.width, drawn.height * pixelsPerInch / shape.height);
        if (share * worthShrinking > 1) return shape;
        const auto shrunk = [&](int side) {
            return std::max(1, static_cast<int>(std::ceil(side * share - 0.01)));
        };
        return {shrunk(shape.width), shrunk(shape.height)};
    }

    QPDFObjectHandle stream_;
    QPDFObjectHandle dictionary_;
    const WorkContext& context_;
    Picture picture_;
    bool standsChange_ = false;
};

}  // namespace

std::optional<PictureShape> shapeOf(QPDFObjectHandle picture) {
    auto dictionary = picture.getDict();
    const auto side = [&](const char* key) {
        auto value = dictionary.getKey(key);
        const long long pixels = value.isInteger() ? value.getIntValue() : 0;
        return pixels > longestSide ? 0 : static_cast<int>(pixels);
    };
    const PictureShape shape{side("/Width"), side("/Height")};
    if (shape.width <= 0 || shape.height <= 0) return std::nullopt;
    return shape;
}

std::optional<Picture> readPicture(QPDFObjectHandle picture, std::optional<DrawnSize> drawn, bool isMask,
                                   const WorkContext& context) {
    return Reading(std::move(picture), context).read(drawn, isMask);
}

QPDFObjectHandle paletteSpace(QPDFObjectHandle picture) {
    return picture.getDict().getKey("/ColorSpace").getArrayItem(1);
}

}  // namespace tamble::pdf
