// The header of a network's file, which is read before OpenCV sees it.
#include <TambleCore/Images/Subject/OnnxHeader.h>

#include <stdexcept>

#include "Property.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tamble;
    try {
        const OnnxHeader header = readOnnxHeader({data, size});
        for (const std::int64_t side : header.inputShape) fuzz::require(side >= 0, "no side is negative");
    } catch (const std::invalid_argument&) {
    }
    return 0;
}
