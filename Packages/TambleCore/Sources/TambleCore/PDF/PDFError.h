#pragma once

#include <TambleCore/Support/Failure.h>

#include <boost/describe.hpp>

namespace tamble {

/// Every way in which work on a PDF can fail.
class PDFError : public Failure {
  public:
    enum class Case {
        unreadable,
        locked,
        wrongPassword,
        passwordMissing,
        invalidPageRange,
        noPages,
        writeFailed,
        couldNotRemovePassword,
        imageUnreadable,
        pageFailed,
        pageTooLarge,
        signatureUnreadable,
        signatureMissing,
        signatureOffPage,
        pagesMissing,
    };
    BOOST_DESCRIBE_NESTED_ENUM(Case, unreadable, locked, wrongPassword, passwordMissing, invalidPageRange,
                               noPages, writeFailed, couldNotRemovePassword, imageUnreadable, pageFailed,
                               pageTooLarge, signatureUnreadable, signatureMissing, signatureOffPage,
                               pagesMissing)

    /// `detail` is what the library said, for the log.
    explicit PDFError(Case which, std::string detail = {});
    ~PDFError() override;
    PDFError(const PDFError&) = default;
    PDFError& operator=(const PDFError&) = default;

    Case which() const noexcept { return which_; }

  private:
    Case which_;
};

}  // namespace tamble
