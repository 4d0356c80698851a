#pragma once

#include <TambleCore/PDF/Pictures/Bytes.h>

#include <cstddef>
#include <cstdint>
#include <unordered_set>

namespace tamble::pdf {

/// Tells drawings, screenshots and text, whose edges must stay sharp, from photographs, by their 8-bit
/// samples.
class DrawingTest {
  public:
    /// A picture of at most `fewColours` colours is a drawing.
    DrawingTest(int channels, std::size_t fewColours);

    void put(ByteView row);
    bool hasFewColours() const { return colours_.size() <= fewColours_; }
    bool isDrawing() const;

  private:
    std::size_t channels_;
    std::size_t fewColours_;
    std::unordered_set<std::uint32_t> colours_;
    /// Of neighbours in a row: how many are equal, and how many of the others differ strongly.
    std::uint64_t pairs_ = 0;
    std::uint64_t equal_ = 0;
    std::uint64_t strong_ = 0;
};

}  // namespace tamble::pdf
