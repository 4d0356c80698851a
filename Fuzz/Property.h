#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <string_view>

namespace tamble::fuzz {

/// What a fuzzer hands over.
using Input = std::span<const std::uint8_t>;

inline std::string_view textOf(Input input) {
    return {reinterpret_cast<const char*>(input.data()), input.size()};
}

/// Ends the program with the sentence when a property does not hold: what a fuzzer and a test both see.
inline void require(bool holds, std::string_view sentence) {
    if (holds) return;
    std::fprintf(stderr, "Does not hold: %.*s\n", static_cast<int>(sentence.size()), sentence.data());
    std::abort();
}

/// Takes what chooses settings off the front of an input; 0 where there is nothing left.
inline std::uint8_t takeByte(Input& input) {
    if (input.empty()) return 0;
    const std::uint8_t byte = input.front();
    input = input.subspan(1);
    return byte;
}

}  // namespace tamble::fuzz

/// Every target defines this.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
