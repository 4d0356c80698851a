#pragma once

#include <TambleCore/Platform/MappedFile.h>
#include <TambleCore/Support/WorkContext.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>

namespace tamble::pdf {

/// An open PDF, repaired as far as that is possible, or a new one. Moving it keeps what was copied from it
/// valid; streams that other documents took from it are read when those are saved.
class Document {
  public:
    /// A document with pages. Throws PDFError: unreadable, locked, wrongPassword.
    static Document open(const std::filesystem::path& file, const std::string& password);
    /// The same without a look at the pages, which takes a large document a while.
    static Document openUnseen(const std::filesystem::path& file, const std::string& password);
    /// A new document without pages.
    static Document empty();

    QPDF& qpdf() const noexcept { return *qpdf_; }
    QPDFObjectHandle root() const { return qpdf_->getRoot(); }
    /// In their order; each is one time in it. Throws PDFError::unreadable when the page tree is broken.
    const std::vector<QPDFObjectHandle>& pages() const;
    int pageCount() const { return static_cast<int>(pages().size()); }

    /// Whether it takes a password to open it.
    bool isLocked() const noexcept { return isLocked_; }
    /// Whether the password is the one with which its owner reserved what may be done with it.
    bool isOwnedBy(const std::string& password) const;

  private:
    Document() = default;
    void requirePages() const;

    /// Empty for a new document.
    std::shared_ptr<MappedFile> file_;
    std::shared_ptr<QPDF> qpdf_;
    bool isLocked_ = false;
};

/// Whether the document carries a digital signature, which does not hold for any other file.
bool isSealed(const Document& document);

/// Changes how a document is written, after the defaults were set.
using WriterSetup = std::function<void(QPDFWriter&)>;

/// Writes a new file; streams are carried as they are, objects are packed, what nothing refers to is left
/// out. A document that was locked stays so. Reports `from` … 1 of the work. Throws PDFError::writeFailed;
/// Cancelled.
void save(const Document& document, const std::filesystem::path& destination, const WorkContext& context,
          double from = 0, const WriterSetup& setup = {});

}  // namespace tamble::pdf
