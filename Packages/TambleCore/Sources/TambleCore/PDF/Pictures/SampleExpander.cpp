#include <TambleCore/PDF/Pictures/SampleRows.h>

#include <algorithm>

namespace tamble::pdf {

SampleExpander::SampleExpander(const SampleLayout& layout, Bytes palette, int paletteChannels)
    : layout_(layout), palette_(std::move(palette)), paletteChannels_(paletteChannels) {
    row_.resize(static_cast<std::size_t>(layout.shape.width) * static_cast<std::size_t>(channels()));
    if (palette_.empty()) return;
    // Indices beyond the palette mean its last colour.
    const std::size_t whole = static_cast<std::size_t>(paletteChannels_) << 8U;
    const Bytes last(palette_.end() - paletteChannels_, palette_.end());
    while (palette_.size() < whole) palette_.insert(palette_.end(), last.begin(), last.end());
}

std::uint8_t SampleExpander::sampleAt(ByteView row, std::size_t index) const {
    const auto bits = static_cast<std::size_t>(layout_.bits);
    if (bits == 8) return row[index];
    if (bits == 16) return row[2 * index];
    const std::size_t at = index * bits;
    const unsigned shift = static_cast<unsigned>(8 - bits - at % 8);
    return static_cast<std::uint8_t>((row[at / 8] >> shift) & ((1U << bits) - 1U));
}

ByteView SampleExpander::expanded(ByteView row) {
    if (palette_.empty() && layout_.bits == 8) return row;
    const std::size_t count =
        static_cast<std::size_t>(layout_.shape.width) * static_cast<std::size_t>(layout_.channels);
    if (palette_.empty()) {
        const unsigned factor =
            layout_.bits < 8 ? 255U / ((1U << static_cast<unsigned>(layout_.bits)) - 1U) : 1U;
        for (std::size_t i = 0; i < count; ++i)
            row_[i] = static_cast<std::uint8_t>(sampleAt(row, i) * factor);
        return row_;
    }
    const auto channels = static_cast<std::size_t>(paletteChannels_);
    for (std::size_t i = 0; i < count; ++i)
        std::copy_n(palette_.data() + sampleAt(row, i) * channels, channels, row_.data() + i * channels);
    return row_;
}

}  // namespace tamble::pdf
