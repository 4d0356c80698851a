#include <TambleCore/Support/Failure.h>

#include <utility>

namespace tamble {

Failure::Failure(std::string code, std::string sentence, std::string detail)
    : code_(std::move(code)), sentence_(std::move(sentence)), detail_(std::move(detail)) {}

// Out of line, so that every module of the program shares one type identity.
Failure::~Failure() = default;

}  // namespace tamble
