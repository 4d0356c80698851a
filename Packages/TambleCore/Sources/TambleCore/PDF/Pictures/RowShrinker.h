#pragma once

#include <TambleCore/PDF/Pictures/Bytes.h>

#include <deque>
#include <functional>

namespace tamble::pdf {

/// Pixels.
struct PictureShape {
    int width = 0;
    int height = 0;
    friend bool operator==(const PictureShape&, const PictureShape&) = default;
};

/// The weights with which samples along one side of a picture make those of a shorter side: Lanczos' windowed
/// sinc over three lobes.
class ShrinkingWeights {
  public:
    struct Span {
        int first = 0;
        int count = 0;
        std::size_t weights = 0;
    };
    ShrinkingWeights(int from, int to);

    int last(int position) const { return spans_[index(position)].first + spans_[index(position)].count - 1; }
    const Span& span(int position) const { return spans_[index(position)]; }
    const float* weights(const Span& span) const { return weights_.data() + span.weights; }

  private:
    static std::size_t index(int position) { return static_cast<std::size_t>(position); }

    std::vector<Span> spans_;
    std::vector<float> weights_;
};

/// Shrinks a picture of 8-bit samples, channels side by side, as its rows pass.
class RowShrinker {
  public:
    using Take = std::function<void(ByteView)>;
    /// No side of `to` is larger than that of `from`; 1 to 4 channels.
    RowShrinker(PictureShape from, PictureShape to, int channels);

    /// Takes the next row, hands over those rows of the small picture that it completes.
    void put(ByteView row, const Take& take);

  private:
    std::vector<float> shrunkAcross(ByteView row);
    void finishRow();

    PictureShape to_;
    std::size_t channels_;
    ShrinkingWeights across_;
    ShrinkingWeights down_;
    std::vector<float> wide_;
    /// Rows that are narrow already and still needed; the first is number `firstRow_`.
    std::deque<std::vector<float>> rows_;
    int firstRow_ = 0;
    int next_ = 0;
    std::vector<float> sums_;
    Bytes finished_;
};

}  // namespace tamble::pdf
