#include <TambleCore/PDF/Pictures/ContentWalk.h>
#include <TambleCore/PDF/Pictures/DrawnPictures.h>

#include <algorithm>
#include <cmath>

#include <qpdf/QPDFPageObjectHelper.hh>

namespace tamble::pdf {
namespace {

constexpr double pointsPerInch = 72;

/// The looks of an annotation: each state of each has a form of its own.
std::vector<QPDFObjectHandle> appearances(QPDFObjectHandle annotation) {
    std::vector<QPDFObjectHandle> forms;
    auto all = annotation.getKey("/AP");
    if (!all.isDictionary()) return forms;
    for (const auto* kind : {"/N", "/R", "/D"}) {
        auto appearance = all.getKey(kind);
        if (appearance.isStream()) {
            forms.push_back(appearance);
        } else if (appearance.isDictionary()) {
            for (auto& [state, form] : appearance.getDictAsMap())
                if (form.isStream()) forms.push_back(form);
        }
    }
    return forms;
}

/// How an appearance is fitted into its annotation's rectangle, apart from its place (ISO 32000-1, 12.5.5).
std::optional<QPDFMatrix> fitting(QPDFObjectHandle form, QPDFObjectHandle rectangle) {
    auto dictionary = form.getDict();
    auto box = dictionary.getKey("/BBox");
    if (!box.isRectangle() || !rectangle.isRectangle()) return std::nullopt;
    auto matrix = dictionary.getKey("/Matrix");
    const auto bounds = (matrix.isMatrix() ? QPDFMatrix(matrix.getArrayAsMatrix()) : QPDFMatrix())
                            .transformRectangle(box.getArrayAsRectangle());
    const auto place = rectangle.getArrayAsRectangle();
    const double width = std::abs(bounds.urx - bounds.llx);
    const double height = std::abs(bounds.ury - bounds.lly);
    if (width == 0 || height == 0) return std::nullopt;
    return QPDFMatrix(std::abs(place.urx - place.llx) / width, 0, 0, std::abs(place.ury - place.lly) / height,
                      0, 0);
}

class PageReader {
  public:
    PageReader(DrawnPictures& drawn, const std::unordered_set<int>& pictures, const WorkContext& context)
        : drawn_(drawn), walk_(pictures, context) {}

    void read(const QPDFObjectHandle& page) {
        QPDFPageObjectHelper helper(page);
        auto unit = inherited(helper, "/UserUnit");
        inchesPerUnit_ = (unit.isNumber() ? unit.getNumericValue() : 1) / pointsPerInch;
        auto resources = inherited(helper, "/Resources");
        guarded(resources,
                [&] { take(walk_.draws(QPDFObjectHandle(page).getKey("/Contents"), resources), {}); });
        pin(walk_.picturesOfGlyphs(resources));
        auto annotations = QPDFObjectHandle(page).getKey("/Annots");
        if (!annotations.isArray()) return;
        for (auto& annotation : annotations.getArrayAsVector()) {
            if (annotation.isDictionary()) readAnnotation(annotation);
        }
    }

  private:
    static QPDFObjectHandle inherited(QPDFPageObjectHelper& helper, const char* name) {
        return helper.getAttribute(name, false);
    }

    void readAnnotation(QPDFObjectHandle annotation) {
        for (auto& form : appearances(annotation)) {
            guarded(form, [&] {
                const auto matrix = fitting(form, annotation.getKey("/Rect"));
                if (!matrix) throw UnreadableContent();
                take(walk_.drawsOfForm(form, QPDFObjectHandle::newNull()), *matrix);
            });
            auto resources = form.getDict().getKey("/Resources");
            pin(walk_.picturesOfGlyphs(resources));
        }
    }

    /// What cannot be read may draw any of its pictures in any size.
    template <typename Read>
    void guarded(const QPDFObjectHandle& from, const Read& read) {
        try {
            read();
        } catch (const UnreadableContent&) {
            pin(walk_.picturesIn(from));
        }
    }

    void take(const PictureDraws& draws, const QPDFMatrix& place) {
        for (const auto& each : draws) {
            QPDFMatrix matrix = place;
            matrix.concat(each.matrix);
            const DrawnSize size{std::hypot(matrix.a, matrix.b) * inchesPerUnit_,
                                 std::hypot(matrix.c, matrix.d) * inchesPerUnit_};
            if (!std::isfinite(size.width) || !std::isfinite(size.height))
                drawn_.pin(each.picture);
            else if (size.width > 0 && size.height > 0)
                drawn_.draw(each.picture, size);
        }
    }
    void pin(const std::vector<int>& pictures) {
        for (const int picture : pictures) drawn_.pin(picture);
    }

    DrawnPictures& drawn_;
    ContentWalk walk_;
    double inchesPerUnit_ = 1 / pointsPerInch;
};

}  // namespace

DrawnPictures DrawnPictures::of(const Document& document, const std::unordered_set<int>& pictures,
                                const WorkContext& context) {
    DrawnPictures drawn;
    if (pictures.empty()) return drawn;
    PageReader reader(drawn, pictures, context);
    for (const auto& page : document.pages()) {
        context.throwIfStopped();
        reader.read(page);
    }
    return drawn;
}

std::optional<DrawnSize> DrawnPictures::size(int picture) const {
    const auto found = sizes_.find(picture);
    if (found == sizes_.end() || pinned_.contains(picture)) return std::nullopt;
    return found->second;
}

void DrawnPictures::draw(int picture, DrawnSize size) {
    auto& largest = sizes_[picture];
    largest.width = std::max(largest.width, size.width);
    largest.height = std::max(largest.height, size.height);
}

}  // namespace tamble::pdf
