#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace genicam {

/// A picture of 8 bits a channel: one channel or red, green, blue; lines without gaps.
struct Frame
{
    int x = 0; ///< of the region, in the camera's pixels
    int y = 0;
    int width = 0;
    int height = 0;
    bool isColour = false;
    std::vector<std::uint8_t> pixels;
    // Of the stream, by then.
    double framesPerSecond = 0.0;
    std::uint64_t lostFrames = 0;
};

/// Makes a picture of what a camera sent, in one of the formats Mono and Bayer of 8 to 16 bits
/// (also packed, in both ways), RGB8, BGR8 and YUV422. Leaves the pixels empty for other formats
/// and for too little data. @p format is the code that GigE Vision and USB3 Vision share.
Frame decodeFrame(const std::uint8_t* data, std::size_t size, int width, int height,
                  std::uint32_t format);

} // namespace genicam
