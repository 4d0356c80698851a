#pragma once

#include <TambleCore/PDF/PDFEngine.h>
#include <TambleCore/PDF/PDFError.h>

#include <functional>

#include <TambleCoreTests/TestFolder.h>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>

namespace tamble::pdf {

/// A document made in code: page n (counted from 1) is 200 by 300 points and shows "Text of page n".
class TinyPDF {
  public:
    explicit TinyPDF(int pageCount);

    QPDF& qpdf() { return *qpdf_; }
    QPDFObjectHandle root() { return qpdf_->getRoot(); }
    /// Counted from 1, as people do.
    QPDFObjectHandle page(int number) {
        return qpdf_->getAllPages().at(static_cast<std::size_t>(number - 1));
    }
    /// "7 0 R" for an object, to be put into others' text.
    static std::string ref(QPDFObjectHandle object) { return object.unparse(); }
    std::string pageRef(int number) { return ref(page(number)); }

    QPDFObjectHandle object(const std::string& text);
    QPDFObjectHandle stream(const std::string& dictionary, const std::string& data);
    void setRoot(const std::string& key, const std::string& text);

    /// Bookmarks one after the other: the title, and the text of where each leads, as "[7 0 R /Fit]".
    void setBookmarks(const std::vector<std::pair<std::string, std::string>>& bookmarks);
    QPDFObjectHandle annotate(int page, const std::string& keys);
    /// A link to that text's place.
    QPDFObjectHandle link(int page, const std::string& destination);
    /// A text field with one widget on each of the pages.
    QPDFObjectHandle field(const std::string& name, const std::string& value, const std::vector<int>& pages);
    /// Tags each page with a paragraph of this text and the page's number.
    void tag(const std::string& text);
    void attach(const std::string& name, const std::string& content);

    std::filesystem::path save(const TestFolder& folder, const std::string& name,
                               const std::function<void(QPDFWriter&)>& setup = {});
    /// With a password to open it, or only one to change it.
    std::filesystem::path saveLocked(const TestFolder& folder, const std::string& name,
                                     const std::string& user, const std::string& owner);

  private:
    std::shared_ptr<QPDF> qpdf_ = QPDF::create();
};

/// A file read back.
class ReadPDF {
  public:
    explicit ReadPDF(const std::filesystem::path& file, const std::string& password = {});

    QPDF& qpdf() { return *qpdf_; }
    QPDFObjectHandle root() { return qpdf_->getRoot(); }
    std::vector<QPDFObjectHandle> pages() { return qpdf_->getAllPages(); }
    /// What the pages show, "1,2,3" for the first three of a TinyPDF.
    std::string order();
    /// Which page a destination (an array or a name) leads to: what it shows; empty when it leads nowhere.
    std::string shownAt(QPDFObjectHandle destination);
    std::string shownByLink(QPDFObjectHandle link);
    /// "Title>page" of each, those below in brackets.
    std::string bookmarks();
    /// The link annotations of a page (counted from 1).
    std::vector<QPDFObjectHandle> links(int page);
    /// The label of each page.
    std::string labels();
    /// The full names of all fields with their values, "name=value" sorted.
    std::string fields();
    /// All that is stored in it, uncompressed, whether anything refers to it or not.
    std::string everything();

  private:
    std::string below(QPDFObjectHandle parent);
    std::shared_ptr<QPDF> qpdf_ = QPDF::create();
};

InputFile input(const std::filesystem::path& file, const std::string& type = "com.adobe.pdf");

/// Runs a tool on a file; answers the new file's place.
std::filesystem::path done(PDFTool tool, const std::filesystem::path& file,
                           const PDFJobSettings& settings = {}, const WorkContext& context = {});
std::filesystem::path combined(PDFTool tool, const std::vector<InputFile>& files,
                               const PDFJobSettings& settings = {}, const WorkContext& context = {});
std::filesystem::path merged(const std::vector<std::filesystem::path>& files,
                             const PDFJobSettings& settings = {});
/// The code of the failure, "skipped", or "done".
std::string outcome(const std::function<void()>& work);

}  // namespace tamble::pdf
