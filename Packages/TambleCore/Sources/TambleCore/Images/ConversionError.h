#pragma once

#include <TambleCore/Support/Failure.h>

#include <boost/describe.hpp>

namespace tamble {

/// Every way in which converting a picture can fail.
class ConversionError : public Failure {
  public:
    enum class Case {
        cannotWrite,
        unreadable,
        cannotDecode,
        encodeFailed,
        tooLargeForWebP,
        animatedNotSupported,
        multiPageNotSupported,
        noSubjectFound,
        backgroundRemovalFailed,
    };
    BOOST_DESCRIBE_NESTED_ENUM(Case, cannotWrite, unreadable, cannotDecode, encodeFailed, tooLargeForWebP,
                               animatedNotSupported, multiPageNotSupported, noSubjectFound,
                               backgroundRemovalFailed)

    /// `detail` is the format's display name for cannotWrite, else what the library said, for the log.
    explicit ConversionError(Case which, std::string detail = {});
    ~ConversionError() override;
    ConversionError(const ConversionError&) = default;
    ConversionError& operator=(const ConversionError&) = default;

    Case which() const noexcept { return which_; }

  private:
    Case which_;
};

}  // namespace tamble
