#include <TambleCore/Jobs/SkipReason.h>

namespace tamble {
namespace {

struct Sentences {
    std::string operator()(const skip::AlreadyInFormat& reason) const {
        return "This file is already in the format " + reason.value;
    }
    std::string operator()(const skip::NameTaken&) const { return "There is already a file with this name"; }
    std::string operator()(const skip::NotSmaller&) const { return "The new file wouldn't be smaller"; }
    std::string operator()(const skip::NoPassword&) const { return "This PDF doesn't have a password"; }
    std::string operator()(const skip::SameName&) const { return "This file already has its new name"; }
};

}  // namespace

std::string sentence(const SkipReason& reason) {
    return std::visit(Sentences{}, reason);
}

ProcessorSkip::ProcessorSkip(SkipReason reason) : reason_(std::move(reason)) {}

ProcessorSkip::~ProcessorSkip() = default;

const char* ProcessorSkip::what() const noexcept {
    return "Skipped";
}

}  // namespace tamble
