#include "Frame.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace genicam {

namespace {

/// How the samples of a format lie in memory.
enum Packing {
    Bytes, ///< in one byte or two, the low one first
    Pairs, ///< two samples in three bytes, of which the first and last hold the high bits
    Bits,  ///< one behind the other, low bits first
};

/// What the samples mean. A mosaic is named by the first two pixels of its first line.
enum Meaning {
    Grey,
    Gr,
    Rg,
    Gb,
    Bg,
    Rgb,
    Bgr,
    Uyvy,
    Yuyv,
    MeaningCount
};

struct Layout
{
    std::uint8_t bits;
    Packing packing;
    std::uint32_t ids[MeaningCount];
};

// An ID's first byte tells colours (2) from one sample a pixel (1), and stands here less one; the
// second tells how many bits a pixel takes, which is known from the others.
constexpr std::uint32_t single = 0x01000000;
constexpr std::uint32_t colour = 0x01000000;
constexpr std::uint32_t idMask = 0xff00ffff;

constexpr Layout layouts[] = {
    {8,
     Bytes,
     {0x01, 0x08, 0x09, 0x0a, 0x0b, colour | 0x14, colour | 0x15, colour | 0x1f, colour | 0x32}},
    {10, Bytes, {0x03, 0x0c, 0x0d, 0x0e, 0x0f}},
    {12, Bytes, {0x05, 0x10, 0x11, 0x12, 0x13}},
    {14, Bytes, {0x25, 0x109, 0x10a, 0x10b, 0x10c}},
    {16, Bytes, {0x07, 0x2e, 0x2f, 0x30, 0x31}},
    {10, Pairs, {0x04, 0x26, 0x27, 0x28, 0x29}},
    {12, Pairs, {0x06, 0x2a, 0x2b, 0x2c, 0x2d}},
    {10, Bits, {0x46, 0x56, 0x58, 0x54, 0x52}},
    {12, Bits, {0x47, 0x57, 0x59, 0x55, 0x53}},
};

struct Format
{
    std::uint8_t bits;
    Packing packing;
    Meaning meaning;
};

std::optional<Format> findFormat(std::uint32_t format)
{
    const std::uint32_t id = (format & idMask) - single;
    for (const Layout& layout : layouts) {
        const auto* const found = std::find(std::begin(layout.ids), std::end(layout.ids), id);
        if (id != 0 && found != std::end(layout.ids))
            return Format{layout.bits, layout.packing, Meaning(found - layout.ids)};
    }
    return {};
}

using Samples = std::vector<std::uint8_t>;
using Pixel = std::array<std::uint8_t, 3>;

/// The eight highest bits of every sample; nothing when there are too few.
Samples unpack(const std::uint8_t* data, std::size_t size, std::size_t count, const Format& format)
{
    const std::size_t bits = format.bits;
    const std::size_t distance = format.packing == Bits ? bits : bits > 8 ? 16 : 8;
    const std::size_t total = format.packing == Pairs ? count * 12 : count * distance;
    if (size < (total + 7) / 8)
        return {};
    Samples samples(count);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t high
            = format.packing == Pairs ? (i / 2 * 3 + i % 2 * 2) * 8 : i * distance + bits - 8;
        const std::uint8_t* const byte = data + high / 8;
        const unsigned pair = byte[0] | (high % 8 ? byte[1] * 256U : 0U);
        samples[i] = static_cast<std::uint8_t>(pair >> high % 8);
    }
    return samples;
}

Pixel fromYuv(int y, int u, int v)
{
    const auto level
        = [](double value) { return static_cast<std::uint8_t>(std::clamp(value, 0.0, 255.0)); };
    return {level(y + 1.402 * (v - 128)), level(y - 0.344 * (u - 128) - 0.714 * (v - 128)),
            level(y + 1.772 * (u - 128))};
}

/// Every pixel takes the colours of the two by two samples that it is part of; the last of an odd
/// number those before it.
Pixel fromMosaic(const Samples& samples, std::size_t width, std::size_t x, std::size_t y,
                 Meaning mosaic)
{
    const std::size_t height = samples.size() / width;
    const auto sample = [&](std::size_t column, std::size_t row) {
        column = column < width ? column : column < 2 ? 0 : column - 2;
        row = row < height ? row : row < 2 ? 0 : row - 2;
        return samples[row * width + column];
    };
    const std::size_t redColumn = mosaic == Gr || mosaic == Bg ? 1 : 0;
    const std::size_t redRow = mosaic == Gb || mosaic == Bg ? 1 : 0;
    const std::size_t redX = x - x % 2 + redColumn;
    const std::size_t blueX = x - x % 2 + 1 - redColumn;
    return {sample(redX, y - y % 2 + redRow), sample(y % 2 == redRow ? blueX : redX, y),
            sample(blueX, y - y % 2 + 1 - redRow)};
}

Pixel pixelAt(const Samples& samples, std::size_t width, std::size_t x, std::size_t y,
              Meaning meaning)
{
    const std::size_t index = y * width + x;
    if (meaning == Bgr)
        return {samples[index * 3 + 2], samples[index * 3 + 1], samples[index * 3]};
    if (meaning < Rgb)
        return fromMosaic(samples, width, x, y, meaning);
    const std::uint8_t* const pair = samples.data() + index / 2 * 4;
    const std::size_t luma = meaning == Uyvy ? 1 : 0;
    return fromYuv(pair[luma + index % 2 * 2], pair[1 - luma], pair[3 - luma]);
}

} // namespace

Frame decodeFrame(const std::uint8_t* data, std::size_t size, int width, int height,
                  std::uint32_t format)
{
    Frame frame;
    frame.width = width;
    frame.height = height;
    const std::optional<Format> found = findFormat(format);
    if (!data || width <= 0 || height <= 0 || !found)
        return frame;
    const auto columns = static_cast<std::size_t>(width);
    const auto lines = static_cast<std::size_t>(height);
    const Meaning meaning = found->meaning;
    const std::size_t samplesPerPixel = meaning < Rgb ? 1 : meaning < Uyvy ? 3 : 2;
    if (meaning >= Uyvy && columns * lines % 2 != 0)
        return frame;
    Samples samples = unpack(data, size, columns * lines * samplesPerPixel, *found);
    frame.isColour = meaning != Grey;
    if (meaning == Grey || meaning == Rgb || samples.empty()) {
        frame.pixels = std::move(samples);
        return frame;
    }
    frame.pixels.reserve(columns * lines * 3);
    for (std::size_t y = 0; y < lines; ++y) {
        for (std::size_t x = 0; x < columns; ++x) {
            const Pixel pixel = pixelAt(samples, columns, x, y, meaning);
            frame.pixels.insert(frame.pixels.end(), pixel.begin(), pixel.end());
        }
    }
    return frame;
}

} // namespace genicam
