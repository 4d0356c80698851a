#pragma once

#include <stdexcept>

namespace tamble {

/// The program was asked for something it does not understand; what() is a sentence that says what would be
/// right.
class UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

}  // namespace tamble
