#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/PDF/Structure/Document.h>

#include <unordered_set>

#include <qpdf/QPDFExc.hh>
#include <qpdf/QPDFSystemError.hh>
#include <qpdf/QUtil.hh>

namespace tamble::pdf {
namespace {

std::shared_ptr<QPDF> quietDocument() {
    auto qpdf = QPDF::create();
    // Whatever could be repaired is no news.
    qpdf->setSuppressWarnings(true);
    return qpdf;
}

/// Empty when the password does not open it.
std::shared_ptr<QPDF> opened(const MappedFile& file, const std::string& password) {
    auto qpdf = quietDocument();
    const auto bytes = file.bytes();
    try {
        qpdf->processMemoryFile("PDF", reinterpret_cast<const char*>(bytes.data()), bytes.size(),
                                password.c_str());
        return qpdf;
    } catch (const QPDFExc& error) {
        if (error.getErrorCode() == qpdf_e_password) return nullptr;
        throw PDFError(PDFError::Case::unreadable, error.what());
    }
}

/// Older PDFs hold passwords in encodings of their own.
std::shared_ptr<QPDF> openedWith(const MappedFile& file, const std::string& password) {
    for (const auto& encoded : QUtil::possible_repaired_encodings(password)) {
        if (auto qpdf = opened(file, encoded)) return qpdf;
    }
    return nullptr;
}

}  // namespace

Document Document::open(const std::filesystem::path& file, const std::string& password) {
    Document document = openUnseen(file, password);
    document.requirePages();
    return document;
}

Document Document::openUnseen(const std::filesystem::path& file, const std::string& password) {
    Document document;
    try {
        document.file_ = std::make_shared<MappedFile>(file);
        document.qpdf_ = opened(*document.file_, {});
        if (document.qpdf_ == nullptr) {
            document.isLocked_ = true;
            if (password.empty()) throw PDFError(PDFError::Case::locked);
            document.qpdf_ = openedWith(*document.file_, password);
        }
        if (document.qpdf_ == nullptr) throw PDFError(PDFError::Case::wrongPassword);
        document.qpdf_->getRoot();
        // Where it is missing, the library would write files that nobody can read.
        auto trailer = document.qpdf_->getTrailer();
        if (!trailer.getKey("/Size").isInteger())
            trailer.replaceKey("/Size", QPDFObjectHandle::newInteger(0));
    } catch (const std::filesystem::filesystem_error& error) {
        throw PDFError(PDFError::Case::unreadable, error.what());
    } catch (const std::logic_error& error) {
        throw PDFError(PDFError::Case::unreadable, error.what());
    } catch (const std::runtime_error& error) {
        throw PDFError(PDFError::Case::unreadable, error.what());
    }
    return document;
}

Document Document::empty() {
    Document document;
    document.qpdf_ = quietDocument();
    document.qpdf_->emptyPDF();
    return document;
}

const std::vector<QPDFObjectHandle>& Document::pages() const {
    try {
        return qpdf_->getAllPages();
    } catch (const std::exception& error) {
        throw PDFError(PDFError::Case::unreadable, error.what());
    }
}

void Document::requirePages() const {
    if (pages().empty()) throw PDFError(PDFError::Case::unreadable, "It has no pages.");
}

bool Document::isOwnedBy(const std::string& password) const {
    if (password.empty() || file_ == nullptr) return false;
    const auto owned = openedWith(*file_, password);
    return owned != nullptr && owned->ownerPasswordMatched();
}

namespace {

/// Looks for a signature field that is filled in.
class SealSearch {
  public:
    bool finds(QPDFObjectHandle fields, bool isSignature) {
        if (!fields.isArray() || ++depth_ > deepest) return false;
        bool found = false;
        for (int i = 0; i < fields.getArrayNItems() && !found; ++i)
            found = isSealed(fields.getArrayItem(i), isSignature);
        --depth_;
        return found;
    }

  private:
    static constexpr int deepest = 100;

    bool isSealed(QPDFObjectHandle field, bool isSignature) {
        if (!field.isDictionary() || (field.isIndirect() && !seen_.insert(field.getObjectID()).second))
            return false;
        auto type = field.getKey("/FT");
        if (type.isName()) isSignature = type.getName() == "/Sig";
        if (isSignature && field.getKey("/V").isDictionary()) return true;
        return finds(field.getKey("/Kids"), isSignature);
    }

    std::unordered_set<int> seen_;
    int depth_ = 0;
};

}  // namespace

bool isSealed(const Document& document) {
    auto root = document.root();
    auto permissions = root.getKey("/Perms");
    if (permissions.isDictionary() && permissions.hasKey("/DocMDP")) return true;
    auto form = root.getKey("/AcroForm");
    return form.isDictionary() && SealSearch().finds(form.getKey("/Fields"), false);
}

void save(const Document& document, const std::filesystem::path& destination, const WorkContext& context,
          double from, const WriterSetup& setup) {
    try {
        QPDFWriter writer(document.qpdf(), destination.c_str());
        // As they are: a stream that was deflated twice can inflate to anything.
        writer.setDecodeLevel(qpdf_dl_none);
        writer.setCompressStreams(false);
        writer.setObjectStreamMode(qpdf_o_generate);
        writer.registerProgressReporter(
            std::make_shared<QPDFWriter::FunctionProgressReporter>([&](int percent) {
                context.throwIfStopped();
                context.report(from + (1 - from) * percent / 100.0);
            }));
        if (setup) setup(writer);
        writer.write();
    } catch (const Cancelled&) {
        throw;
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const PDFError&) {
        throw;
    } catch (const QPDFSystemError& error) {
        throw PDFError(PDFError::Case::writeFailed, error.what());
    } catch (const std::exception& error) {
        // What is written is read only now.
        throw PDFError(PDFError::Case::unreadable, error.what());
    }
}

}  // namespace tamble::pdf
