#include <TambleCore/PDF/Pictures/Duplicates.h>
#include <TambleCore/PDF/Pictures/Flate.h>
#include <TambleCore/PDF/Pictures/MakeSmaller.h>
#include <TambleCore/PDF/Pictures/PictureReading.h>
#include <TambleCore/PDF/Pictures/Reachable.h>
#include <TambleCore/PDF/Pictures/ScratchFile.h>
#include <TambleCore/PDF/Pictures/StreamData.h>
#include <TambleCore/PDF/Pictures/WorkCrew.h>

namespace tamble::pdf {
namespace {

/// Streams that hold more, or this many times their own size, stay as they are.
constexpr std::size_t mostInflated = std::size_t{32} << 20U;
constexpr std::size_t mostInflation = 200;
/// What coding a picture takes besides its data, beyond what its target's pixels take: for each of these
/// JPEG's samples in 16 bits, and rows.
constexpr std::size_t bytesPerPixel = 8;
constexpr std::size_t bytesOfWork = std::size_t{4} << 20U;

bool isPicture(QPDFObjectHandle stream) {
    return stream.getDict().getKey("/Subtype").isNameAndEquals("/Image");
}

QPDFObjectHandle dictionaryOf(Predictor predictor, const SampleLayout& layout) {
    if (predictor == Predictor::none) return QPDFObjectHandle::newNull();
    auto parameters = QPDFObjectHandle::newDictionary();
    const auto set = [&](const char* key, int value) {
        parameters.replaceKey(key, QPDFObjectHandle::newInteger(value));
    };
    constexpr int anyOfPng = 15;
    set("/Predictor", predictor == Predictor::tiff ? 2 : anyOfPng);
    set("/Columns", layout.shape.width);
    set("/Colors", layout.channels);
    set("/BitsPerComponent", layout.bits);
    return parameters;
}

class Smaller {
  public:
    Smaller(const Document& document, const std::filesystem::path& folder, const WorkContext& context,
            double until)
        : document_(document),
          context_(context),
          until_(until),
          scratch_(std::make_shared<ScratchFile>(folder)),
          crew_(context) {}

    void run() {
        mergeDuplicates(document_.qpdf(), context_);
        for (auto& object : reachableObjects(document_.qpdf())) {
            if (!object.isStream()) continue;
            // The writer would inflate streams that were deflated twice, however much they hold.
            if (object.getDict().hasKey("/Filter")) object.setFilterOnWrite(false);
            // What lies in another file is not this document's.
            if (!object.getDict().hasKey("/F")) streams_.push_back(object);
        }
        findPictures();
        constexpr double shareOfReading = 0.05;
        context_.report(until_ * shareOfReading);
        for (auto& stream : streams_) {
            if (pictures_.contains(stream.getObjectID()))
                addPicture(stream);
            else
                addOther(stream);
            const double done = static_cast<double>(++done_) / static_cast<double>(streams_.size());
            context_.report(until_ * (shareOfReading + (1 - shareOfReading) * done));
        }
        crew_.finish();
    }

  private:
    void findPictures() {
        for (auto& stream : streams_) {
            if (isPicture(stream) && shapeOf(stream)) pictures_.insert(stream.getObjectID());
        }
        drawn_ = DrawnPictures::of(document_, pictures_, context_);
        // A soft mask is drawn wherever its picture is.
        for (auto& stream : streams_) {
            auto mask = stream.getDict().getKey("/SMask");
            if (!pictures_.contains(stream.getObjectID()) || !mask.isStream()) continue;
            masks_.insert(mask.getObjectID());
            if (const auto size = drawn_.size(stream.getObjectID()))
                drawn_.draw(mask.getObjectID(), *size);
            else
                drawn_.pin(mask.getObjectID());
        }
    }

    void addPicture(QPDFObjectHandle stream) {
        const int number = stream.getObjectID();
        auto picture = readPicture(stream, drawn_.size(number), masks_.contains(number), context_);
        if (!picture) return addOther(stream);
        const std::size_t memory = picture->data->getSize() + bytesOfWork +
                                   static_cast<std::size_t>(picture->target.width) *
                                       static_cast<std::size_t>(picture->target.height) * bytesPerPixel;
        crew_.add(memory, [this, stream, picture = std::move(*picture)](const std::stop_token& stop) {
            auto result = std::make_shared<std::optional<SmallerPicture>>(smallerPicture(picture, stop));
            return [this, stream, result] {
                if (*result) replacePicture(stream, **result);
            };
        });
    }

    /// Everything else is only coded better.
    void addOther(QPDFObjectHandle stream) {
        // Other programs look for it by its text.
        if (stream.getDict().isDictionaryOfType("/Metadata")) return;
        const auto filters = filtersOf(stream);
        if (!filters || (!filters->empty() && filters->back().name == "/DCTDecode")) return;
        const auto coded = codedData(stream);
        if (coded == nullptr || coded->getSize() == 0) return;
        const std::size_t size = coded->getSize();
        const std::size_t limit = std::min(mostInflated, size * mostInflation);
        if (filters->size() == 1 && filters->front().name == "/FlateDecode") {
            const auto parameters = filters->front().parameters;
            addWork(stream, parameters, size, [coded, limit] {
                return inflated({coded->getBuffer(), coded->getSize()}, limit);
            });
            return;
        }
        auto data = decodedData(stream, limit, context_);
        if (data)
            addWork(stream, QPDFObjectHandle::newNull(), size,
                    [data = std::move(*data)] { return std::optional(data); });
    }

    template <typename Data>
    void addWork(const QPDFObjectHandle& stream, const QPDFObjectHandle& parameters, std::size_t size,
                 Data data) {
        // Most streams hold some five times their size.
        constexpr std::size_t usualInflation = 12;
        crew_.add(size * usualInflation, [=, this, data = std::move(data)](const std::stop_token& stop) {
            const auto held = data();
            auto result = std::make_shared<Bytes>(held ? deflated(*held, stop) : Bytes());
            return [=, this] {
                if (!result->empty() && result->size() < size)
                    replaceData(stream, *result, "/FlateDecode", parameters);
            };
        });
    }

    void replaceData(QPDFObjectHandle stream, ByteView data, const char* filter,
                     const QPDFObjectHandle& parameters) {
        const auto part = scratch_->append(data);
        stream.replaceStreamData([scratch = scratch_, part](Pipeline* to) { scratch->copy(part, *to); },
                                 QPDFObjectHandle::newName(filter), parameters);
        stream.setFilterOnWrite(false);
    }

    void replacePicture(QPDFObjectHandle stream, const SmallerPicture& picture) {
        auto dictionary = stream.getDict();
        const auto& layout = picture.layout;
        dictionary.replaceKey("/Width", QPDFObjectHandle::newInteger(layout.shape.width));
        dictionary.replaceKey("/Height", QPDFObjectHandle::newInteger(layout.shape.height));
        if (picture.hasPaletteColours) dictionary.replaceKey("/ColorSpace", paletteSpace(stream));
        dictionary.replaceKey("/BitsPerComponent", QPDFObjectHandle::newInteger(layout.bits));
        replaceData(stream, picture.data, picture.isJpeg ? "/DCTDecode" : "/FlateDecode",
                    picture.isJpeg ? QPDFObjectHandle::newNull() : dictionaryOf(picture.predictor, layout));
    }

    const Document& document_;
    const WorkContext& context_;
    double until_;
    std::shared_ptr<ScratchFile> scratch_;
    std::vector<QPDFObjectHandle> streams_;
    std::unordered_set<int> pictures_;
    std::unordered_set<int> masks_;
    DrawnPictures drawn_;
    std::size_t done_ = 0;
    /// The last member: its work uses the others.
    WorkCrew crew_;
};

}  // namespace

void makeSmaller(const Document& document, const std::filesystem::path& folder, const WorkContext& context,
                 double until) {
    Smaller(document, folder, context, until).run();
}

}  // namespace tamble::pdf
