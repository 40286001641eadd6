#include "Frame.h"

#include <algorithm>

namespace genicam {

namespace {

/// How the samples of a format lie in memory.
enum class Packing {
    Bytes,   ///< in one byte or two, the low one first
    Grouped, ///< two samples in three bytes, of which the first and last hold the high bits
    Stream,  ///< one behind the other, low bits first
};

/// What the first red pixel's column and row are; none for grey.
struct Mosaic
{
    int redColumn = -1;
    int redRow = -1;
};

constexpr Mosaic gr{1, 0}, rg{0, 0}, gb{0, 1}, bg{1, 1};

struct Format
{
    std::uint16_t id;
    std::uint8_t bits;
    Packing packing;
    Mosaic mosaic;
};

constexpr Format formats[] = {
    {0x01, 8, Packing::Bytes, {}},    {0x03, 10, Packing::Bytes, {}},
    {0x04, 10, Packing::Grouped, {}}, {0x05, 12, Packing::Bytes, {}},
    {0x06, 12, Packing::Grouped, {}}, {0x07, 16, Packing::Bytes, {}},
    {0x25, 14, Packing::Bytes, {}},   {0x46, 10, Packing::Stream, {}},
    {0x47, 12, Packing::Stream, {}},  {0x08, 8, Packing::Bytes, gr},
    {0x09, 8, Packing::Bytes, rg},    {0x0a, 8, Packing::Bytes, gb},
    {0x0b, 8, Packing::Bytes, bg},    {0x0c, 10, Packing::Bytes, gr},
    {0x0d, 10, Packing::Bytes, rg},   {0x0e, 10, Packing::Bytes, gb},
    {0x0f, 10, Packing::Bytes, bg},   {0x10, 12, Packing::Bytes, gr},
    {0x11, 12, Packing::Bytes, rg},   {0x12, 12, Packing::Bytes, gb},
    {0x13, 12, Packing::Bytes, bg},   {0x26, 10, Packing::Grouped, gr},
    {0x27, 10, Packing::Grouped, rg}, {0x28, 10, Packing::Grouped, gb},
    {0x29, 10, Packing::Grouped, bg}, {0x2a, 12, Packing::Grouped, gr},
    {0x2b, 12, Packing::Grouped, rg}, {0x2c, 12, Packing::Grouped, gb},
    {0x2d, 12, Packing::Grouped, bg}, {0x2e, 16, Packing::Bytes, gr},
    {0x2f, 16, Packing::Bytes, rg},   {0x30, 16, Packing::Bytes, gb},
    {0x31, 16, Packing::Bytes, bg},   {0x52, 10, Packing::Stream, bg},
    {0x53, 12, Packing::Stream, bg},  {0x54, 10, Packing::Stream, gb},
    {0x55, 12, Packing::Stream, gb},  {0x56, 10, Packing::Stream, gr},
    {0x57, 12, Packing::Stream, gr},  {0x58, 10, Packing::Stream, rg},
    {0x59, 12, Packing::Stream, rg},
};

enum ColourFormat : std::uint32_t {
    Rgb8 = 0x02180014,
    Bgr8 = 0x02180015,
    Uyvy = 0x0210001f,
    Yuyv = 0x02100032,
};

/// The eight highest bits of every sample; nothing when there are too few.
std::vector<std::uint8_t> unpack(const std::uint8_t* data, std::size_t size, std::size_t count,
                                 const Format& format)
{
    const std::size_t bits = format.bits;
    const std::size_t needed = format.packing == Packing::Bytes ? count * (bits > 8 ? 2 : 1)
        : format.packing == Packing::Grouped                    ? (count * 3 + 1) / 2
                                                                : (count * bits + 7) / 8;
    if (size < needed)
        return {};
    std::vector<std::uint8_t> samples(count);
    for (std::size_t i = 0; i < count; ++i) {
        if (format.packing == Packing::Grouped) {
            samples[i] = data[i / 2 * 3 + i % 2 * 2];
        } else if (bits == 8) {
            samples[i] = data[i];
        } else {
            const std::size_t high
                = format.packing == Packing::Bytes ? i * 16 + bits - 8 : i * bits + bits - 8;
            const std::size_t byte = high / 8;
            const unsigned pair = data[byte] | (high % 8 ? data[byte + 1] << 8 : 0U);
            samples[i] = static_cast<std::uint8_t>(pair >> (high % 8));
        }
    }
    return samples;
}

/// Every pixel takes the colours of the two by two samples that it is part of.
std::vector<std::uint8_t> demosaic(const std::vector<std::uint8_t>& samples, int width, int height,
                                   const Mosaic& mosaic)
{
    const auto sample = [&](int x, int y) {
        x = x < width ? x : std::max(0, x - 2);
        y = y < height ? y : std::max(0, y - 2);
        return samples[static_cast<std::size_t>(y) * static_cast<std::size_t>(width)
                       + static_cast<std::size_t>(x)];
    };
    std::vector<std::uint8_t> pixels;
    pixels.reserve(samples.size() * 3);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const int column = x - x % 2;
            const int row = y - y % 2;
            const int redX = column + mosaic.redColumn;
            const int redY = row + mosaic.redRow;
            const int blueX = column + 1 - mosaic.redColumn;
            const int blueY = row + 1 - mosaic.redRow;
            pixels.push_back(sample(redX, redY));
            pixels.push_back(sample(y % 2 == mosaic.redRow ? blueX : redX, y));
            pixels.push_back(sample(blueX, blueY));
        }
    }
    return pixels;
}

void appendYuv(std::vector<std::uint8_t>& pixels, int y, int u, int v)
{
    const auto level
        = [](double value) { return static_cast<std::uint8_t>(std::clamp(value, 0.0, 255.0)); };
    pixels.push_back(level(y + 1.402 * (v - 128)));
    pixels.push_back(level(y - 0.344 * (u - 128) - 0.714 * (v - 128)));
    pixels.push_back(level(y + 1.772 * (u - 128)));
}

std::vector<std::uint8_t> decodeColour(const std::uint8_t* data, std::size_t size,
                                       std::size_t count, std::uint32_t format)
{
    const bool isYuv = format == Uyvy || format == Yuyv;
    if (size < count * (isYuv ? 2 : 3) || (isYuv && count % 2 != 0))
        return {};
    if (format == Rgb8)
        return {data, data + count * 3};
    std::vector<std::uint8_t> pixels;
    pixels.reserve(count * 3);
    for (std::size_t i = 0; i < count; ++i) {
        if (format == Bgr8) {
            pixels.insert(pixels.end(), {data[i * 3 + 2], data[i * 3 + 1], data[i * 3]});
        } else {
            const std::uint8_t* const pair = data + i / 2 * 4;
            const int luma = format == Uyvy ? 1 : 0;
            appendYuv(pixels, pair[luma + static_cast<int>(i % 2) * 2], pair[1 - luma],
                      pair[3 - luma]);
        }
    }
    return pixels;
}

} // namespace

Frame decodeFrame(const std::uint8_t* data, std::size_t size, int width, int height,
                  std::uint32_t format)
{
    Frame frame;
    frame.width = width;
    frame.height = height;
    if (!data || width <= 0 || height <= 0)
        return frame;
    const std::size_t count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    if (format == Rgb8 || format == Bgr8 || format == Uyvy || format == Yuyv) {
        frame.isColour = true;
        frame.pixels = decodeColour(data, size, count, format);
        return frame;
    }
    const auto* const found
        = std::find_if(std::begin(formats), std::end(formats), [&](const Format& one) {
              return one.id == (format & 0xffff) && format >> 24 == 0x01;
          });
    if (found == std::end(formats))
        return frame;
    frame.pixels = unpack(data, size, count, *found);
    frame.isColour = found->mosaic.redColumn >= 0;
    if (frame.isColour && !frame.pixels.empty())
        frame.pixels = demosaic(frame.pixels, width, height, found->mosaic);
    return frame;
}

} // namespace genicam
