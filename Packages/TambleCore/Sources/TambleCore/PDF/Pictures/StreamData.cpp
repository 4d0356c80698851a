#include <TambleCore/PDF/Pictures/StreamData.h>

#include <stdexcept>

#include <qpdf/Pipeline.hh>
#include <qpdf/QPDF.hh>

namespace tamble::pdf {
namespace {

/// Ends the decoding of what is too much, or too late.
class BoundedPipeline final : public Pipeline {
  public:
    BoundedPipeline(std::size_t limit, const WorkContext& context)
        : Pipeline("bounded", nullptr), limit_(limit), context_(context) {}

    void write(unsigned char const* data, std::size_t length) override {
        if (length > limit_ - data_.size()) throw std::length_error("The stream holds too much.");
        context_.throwIfStopped();
        data_.insert(data_.end(), data, data + length);
    }
    void finish() override {}
    Bytes taken() { return std::move(data_); }

  private:
    std::size_t limit_;
    const WorkContext& context_;
    Bytes data_;
};

}  // namespace

std::optional<std::vector<StreamFilter>> filtersOf(QPDFObjectHandle stream) {
    auto dictionary = stream.getDict();
    auto names = dictionary.getKey("/Filter");
    auto parameters = dictionary.getKey("/DecodeParms");
    std::vector<StreamFilter> filters;
    if (names.isNull()) return filters;
    if (names.isName()) {
        if (parameters.isArray() && parameters.getArrayNItems() == 1) parameters = parameters.getArrayItem(0);
        filters.push_back({names.getName(), parameters});
    } else if (names.isArray()) {
        for (int i = 0; i < names.getArrayNItems(); ++i) {
            auto name = names.getArrayItem(i);
            if (!name.isName()) return std::nullopt;
            filters.push_back({name.getName(), parameters.isArray() && i < parameters.getArrayNItems()
                                                   ? parameters.getArrayItem(i)
                                                   : QPDFObjectHandle::newNull()});
        }
    } else {
        return std::nullopt;
    }
    for (auto& filter : filters) {
        if (!filter.parameters.isNull() && !filter.parameters.isDictionary()) return std::nullopt;
    }
    return filters;
}

std::shared_ptr<Buffer> codedData(QPDFObjectHandle stream) {
    try {
        return stream.getRawStreamData();
    } catch (const std::exception&) {
        return nullptr;
    }
}

std::optional<Bytes> decodedData(QPDFObjectHandle stream, std::size_t limit, const WorkContext& context,
                                 std::size_t leave) {
    if (leave > 0) {
        const auto filters = filtersOf(stream);
        const auto data = codedData(stream);
        if (!filters || filters->size() < leave || data == nullptr) return std::nullopt;
        // Stands for the stream without its last filters; nothing will refer to it.
        auto names = QPDFObjectHandle::newArray();
        auto parameters = QPDFObjectHandle::newArray();
        for (const auto& filter : std::span(*filters).first(filters->size() - leave)) {
            names.appendItem(QPDFObjectHandle::newName(filter.name));
            parameters.appendItem(filter.parameters);
        }
        stream = QPDFObjectHandle::newStream(stream.getOwningQPDF(), data);
        stream.replaceStreamData(data, names, parameters);
    }
    BoundedPipeline pipeline(limit, context);
    bool isDecoded = false;
    try {
        bool wasTried = false;
        isDecoded = stream.pipeStreamData(&pipeline, &wasTried, 0, qpdf_dl_specialized, true) && wasTried;
    } catch (const std::exception&) {
        // What is damaged stays as it is.
    }
    context.throwIfStopped();
    if (!isDecoded) return std::nullopt;
    return pipeline.taken();
}

}  // namespace tamble::pdf
