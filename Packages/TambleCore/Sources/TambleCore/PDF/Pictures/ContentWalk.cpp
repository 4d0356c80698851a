#include <TambleCore/PDF/Pictures/ContentWalk.h>

#include <array>
#include <cstdlib>

#include <qpdf/Pl_QPDFTokenizer.hh>

namespace tamble::pdf {
namespace {

/// Of all content of a document, and of one stream: thousands of pages of dense maps.
constexpr std::size_t mostBytes = std::size_t{96} << 20U;
constexpr std::size_t mostBytesOfStream = std::size_t{48} << 20U;
constexpr std::size_t mostDraws = 1'000'000;
constexpr std::size_t drawsPerReading = 100;
constexpr std::size_t deepestNesting = 50;
constexpr std::size_t deepestState = 100'000;
/// The tokens between two looks at the stop token.
constexpr unsigned tokensAtOnce = 4096;

QPDFObjectHandle entry(QPDFObjectHandle resources, const char* kind, const std::string& name) {
    auto entries = resources.isDictionary() ? resources.getKey(kind) : QPDFObjectHandle::newNull();
    return entries.isDictionary() ? entries.getKey(name) : QPDFObjectHandle::newNull();
}

QPDFMatrix product(const QPDFMatrix& inner, const QPDFMatrix& outer) {
    QPDFMatrix result = outer;
    result.concat(inner);
    return result;
}

QPDFMatrix matrixOf(QPDFObjectHandle form) {
    auto matrix = form.getDict().getKey("/Matrix");
    return matrix.isMatrix() ? QPDFMatrix(matrix.getArrayAsMatrix()) : QPDFMatrix();
}

/// Follows the operators that place pictures.
class Placement final : public QPDFObjectHandle::TokenFilter {
  public:
    Placement(ContentWalk& walk, QPDFObjectHandle resources, const WorkContext& context)
        : walk_(walk), resources_(std::move(resources)), context_(context) {}

    void handleToken(QPDFTokenizer::Token const& token) override {
        if (++tokens_ % tokensAtOnce == 0) context_.throwIfStopped();
        switch (token.getType()) {
            case QPDFTokenizer::tt_integer:
            case QPDFTokenizer::tt_real:
                numbers_[count_++ % numbers_.size()] = std::strtod(token.getValue().c_str(), nullptr);
                break;
            case QPDFTokenizer::tt_name:
                name_ = token.getValue();
                break;
            case QPDFTokenizer::tt_word:
                apply(token.getValue());
                count_ = 0;
                break;
            default:
                break;
        }
    }

    PictureDraws& draws() { return draws_; }

    void draw(QPDFObjectHandle object) {
        if (walk_.isPicture(object)) {
            walk_.spend(1);
            draws_.push_back({object.getObjectID(), matrix_});
        } else if (object.isFormXObject()) {
            place(object);
        }
    }
    void place(QPDFObjectHandle form) {
        const PictureDraws& inner = walk_.drawsOfForm(form, resources_);
        walk_.spend(inner.size());
        for (const auto& drawn : inner) draws_.push_back({drawn.picture, product(drawn.matrix, matrix_)});
    }

  private:
    void apply(const std::string& operation) {
        if (operation == "q") {
            if (saved_.size() == deepestState) throw UnreadableContent();
            saved_.push_back(matrix_);
        } else if (operation == "Q") {
            if (saved_.empty()) return;
            matrix_ = saved_.back();
            saved_.pop_back();
        } else if (operation == "cm" && count_ >= numbers_.size()) {
            const auto number = [&](std::size_t at) { return numbers_[(count_ + at) % numbers_.size()]; };
            matrix_.concat({number(0), number(1), number(2), number(3), number(4), number(5)});
        } else if (operation == "Do") {
            draw(entry(resources_, "/XObject", name_));
        } else if (operation == "gs") {
            auto mask = entry(resources_, "/ExtGState", name_);
            mask = mask.isDictionary() ? mask.getKey("/SMask") : mask;
            if (mask.isDictionary() && mask.getKey("/G").isStream()) place(mask.getKey("/G"));
        }
    }

    ContentWalk& walk_;
    QPDFObjectHandle resources_;
    const WorkContext& context_;
    QPDFMatrix matrix_;
    std::vector<QPDFMatrix> saved_;
    std::array<double, 6> numbers_{};
    std::size_t count_ = 0;
    std::string name_;
    unsigned tokens_ = 0;
    PictureDraws draws_;
};

/// Marks a form as being read.
class Opened {
  public:
    Opened(std::unordered_set<int>& open, int number) : open_(open), number_(number) {
        open_.insert(number_);
    }
    ~Opened() { open_.erase(number_); }
    Opened(const Opened&) = delete;
    Opened& operator=(const Opened&) = delete;

  private:
    std::unordered_set<int>& open_;
    int number_;
};

/// Looks through all that resources refer to, but not through fonts whose glyphs are no content.
class ResourceSearch {
  public:
    explicit ResourceSearch(const ContentWalk& walk) : walk_(walk) {}

    std::vector<int> pictures(QPDFObjectHandle from) {
        waiting_.push_back(std::move(from));
        std::vector<int> found;
        while (!waiting_.empty()) {
            auto object = waiting_.back();
            waiting_.pop_back();
            if (object.isIndirect() && !seen_.insert(object.getObjectID()).second) continue;
            if (walk_.isPicture(object)) found.push_back(object.getObjectID());
            if (object.isStream()) object = object.getDict();
            if (object.isDictionary()) {
                if (object.isDictionaryOfType("/Font") && !object.getKey("/CharProcs").isDictionary())
                    continue;
                for (const auto& [key, value] : object.getDictAsMap()) add(value);
            } else if (object.isArray()) {
                for (const auto& value : object.getArrayAsVector()) add(value);
            }
        }
        return found;
    }

  private:
    void add(const QPDFObjectHandle& value) {
        if (value.isIndirect() || QPDFObjectHandle(value).isDictionary() || QPDFObjectHandle(value).isArray())
            waiting_.push_back(value);
    }

    const ContentWalk& walk_;
    std::vector<QPDFObjectHandle> waiting_;
    std::unordered_set<int> seen_;
};

}  // namespace

void ContentWalk::spend(std::size_t draws) {
    drawsMade_ += draws;
    if (drawsMade_ > mostDraws) throw UnreadableContent();
}

void ContentWalk::readInto(QPDFObjectHandle content, Bytes& text) {
    if (!content.isStream()) return;
    const auto part = decodedData(content, std::min(mostBytesOfStream, mostBytes - bytesRead_), context_);
    if (!part) throw UnreadableContent();
    bytesRead_ += part->size();
    text.insert(text.end(), part->begin(), part->end());
    text.push_back('\n');
}

PictureDraws ContentWalk::draws(QPDFObjectHandle content, QPDFObjectHandle resources) {
    if (picturesIn(resources).empty()) return {};
    Bytes text;
    if (content.isArray()) {
        for (auto part : content.getArrayAsVector()) readInto(part, text);
    } else {
        readInto(content, text);
    }
    Placement placement(*this, resources, context_);
    auto patterns = resources.isDictionary() ? resources.getKey("/Pattern") : QPDFObjectHandle::newNull();
    if (patterns.isDictionary()) {
        for (auto& [name, pattern] : patterns.getDictAsMap())
            if (pattern.isStream()) placement.place(pattern);
    }
    Pl_QPDFTokenizer tokenizer("content", &placement);
    tokenizer.write(text.data(), text.size());
    tokenizer.finish();
    return std::move(placement.draws());
}

const PictureDraws& ContentWalk::drawsOfForm(QPDFObjectHandle form, QPDFObjectHandle outer) {
    static const PictureDraws none;
    const int number = form.getObjectID();
    auto resources = form.getDict().getKey("/Resources");
    const bool hasOwn = resources.isDictionary();
    // One that has no resources of its own can draw something else each time, and has to be read again.
    if (!hasOwn) spend(drawsPerReading);
    if (const auto known = forms_.find(number); hasOwn && known != forms_.end()) return known->second;
    // A form that draws itself, which no reader does.
    if (open_.contains(number)) return none;
    if (open_.size() == deepestNesting) throw UnreadableContent();
    const Opened opened(open_, number);
    const QPDFMatrix matrix = matrixOf(form);
    PictureDraws inner = draws(form, hasOwn ? resources : outer);
    for (auto& drawn : inner) drawn.matrix = product(drawn.matrix, matrix);
    return forms_.insert_or_assign(number, std::move(inner)).first->second;
}

std::vector<int> ContentWalk::picturesIn(QPDFObjectHandle resources) const {
    return ResourceSearch(*this).pictures(std::move(resources));
}

std::vector<int> ContentWalk::picturesOfGlyphs(QPDFObjectHandle resources) const {
    std::vector<int> found;
    auto fonts = resources.isDictionary() ? resources.getKey("/Font") : QPDFObjectHandle::newNull();
    if (!fonts.isDictionary()) return found;
    for (const auto& [name, font] : fonts.getDictAsMap()) {
        const auto pictures = picturesIn(font);
        found.insert(found.end(), pictures.begin(), pictures.end());
    }
    return found;
}

}  // namespace tamble::pdf
