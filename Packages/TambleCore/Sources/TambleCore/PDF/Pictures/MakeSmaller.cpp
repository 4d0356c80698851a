#include <TambleCore/PDF/Pictures/Duplicates.h>
#include <TambleCore/PDF/Pictures/Flate.h>
#include <TambleCore/PDF/Pictures/MakeSmaller.h>
#include <TambleCore/PDF/Pictures/PictureReading.h>
#include <TambleCore/PDF/Pictures/ScratchFile.h>
#include <TambleCore/PDF/Pictures/StreamData.h>
#include <TambleCore/PDF/Pictures/WorkCrew.h>

#include <algorithm>

namespace tamble::pdf {
namespace {

/// Streams that hold more, or this many times their own size, stay as they are.
constexpr std::size_t mostInflated = std::size_t{32} << 20U;
constexpr std::size_t mostInflation = 200;
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
        for (auto& object : mergeDuplicates(document_.qpdf(), context_)) {
            if (!object.isStream()) continue;
            // The writer would inflate streams that were deflated twice, however much they hold.
            if (object.getDict().hasKey("/Filter")) object.setFilterOnWrite(false);
            // What lies in another file is not this document's.
            if (!object.getDict().hasKey("/F")) streams_.push_back(object);
        }
        findPictures();
        settle(0);
        for (auto& stream : streams_) total_ += lengthOf(stream);
        for (auto& stream : streams_) {
            const bool isPicture = pictures_.contains(stream.getObjectID());
            if (!(isPicture && addPicture(stream)) && !addOther(stream)) settle(lengthOf(stream));
        }
        crew_.finish();
    }

  private:
    static std::size_t lengthOf(QPDFObjectHandle stream) {
        auto length = stream.getDict().getKey("/Length");
        return length.isInteger() ? static_cast<std::size_t>(std::max(0LL, length.getIntValue())) : 0;
    }

    void settle(std::size_t bytes) {
        done_ += bytes;
        constexpr double shareOfReading = 0.05;
        const double share = total_ == 0 ? 0 : static_cast<double>(done_) / static_cast<double>(total_);
        context_.report(until_ * (shareOfReading + (1 - shareOfReading) * std::min(1.0, share)));
    }

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

    /// Whether there is anything to do, as below.
    bool addPicture(QPDFObjectHandle stream) {
        const int number = stream.getObjectID();
        const std::size_t length = lengthOf(stream);
        auto picture = readPicture(stream, drawn_.size(number), masks_.contains(number), context_);
        if (!picture) return false;
        const std::size_t memory = memoryFor(*picture);
        crew_.add(memory, [=, this, picture = std::move(*picture)](const std::stop_token& stop) {
            auto result = std::make_shared<std::optional<SmallerPicture>>(smallerPicture(picture, stop));
            return [=, this] {
                if (*result) replacePicture(stream, **result);
                settle(length);
            };
        });
        return true;
    }

    /// Everything else is only coded better.
    bool addOther(QPDFObjectHandle stream) {
        // Other programs look for it by its text.
        if (stream.getDict().isDictionaryOfType("/Metadata")) return false;
        const auto filters = filtersOf(stream);
        if (!filters || (!filters->empty() && filters->back().name == "/DCTDecode")) return false;
        const auto coded = codedData(stream);
        if (coded == nullptr || coded->getSize() == 0) return false;
        const std::size_t size = coded->getSize();
        const std::size_t limit = std::min(mostInflated, size * mostInflation);
        if (filters->size() == 1 && filters->front().name == "/FlateDecode") {
            addWork(stream, filters->front().parameters, size, limit, [coded, limit] {
                return inflated({coded->getBuffer(), coded->getSize()}, limit);
            });
            return true;
        }
        auto data = decodedData(stream, limit, context_);
        if (!data) return false;
        const std::size_t memory = data->size();
        addWork(stream, QPDFObjectHandle::newNull(), size, memory,
                [data = std::move(*data)] { return std::optional(data); });
        return true;
    }

    /// `data` answers what the stream of `size` bytes holds, which takes so much memory.
    template <typename Data>
    void addWork(const QPDFObjectHandle& stream, const QPDFObjectHandle& parameters, std::size_t size,
                 std::size_t memory, Data data) {
        crew_.add(2 * memory, [=, this, data = std::move(data)](const std::stop_token& stop) {
            const auto held = data();
            auto result = std::make_shared<Bytes>(held ? deflated(*held, stop) : Bytes());
            return [=, this] {
                if (!result->empty() && result->size() < size)
                    replaceData(stream, *result, "/FlateDecode", parameters);
                settle(size);
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
    /// Bytes of streams.
    std::size_t total_ = 0;
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
