// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "python/Pixels.h"

#include <array>
#include <bit>
#include <cstring>
#include <limits>
#include <type_traits>
#include <utility>

namespace ornevo::python {

namespace {

/// One pixel, whose channels lie `stride` bytes apart, as four bytes.
template <int channels, ChannelOrder order>
void writePixel(const std::uint8_t *in, std::ptrdiff_t stride, std::uint8_t *out)
{
    constexpr bool grey = channels == 1;
    constexpr bool blueFirst = order == ChannelOrder::BlueFirst;
    out[blueFirst ? 2 : 0] = in[0];
    out[1] = in[grey ? 0 : stride];
    out[blueFirst ? 0 : 2] = in[grey ? 0 : 2 * stride];
    out[3] = channels == 4 ? in[3 * stride] : std::uint8_t{255};
}

/// RGB pixels without gaps, of which all but the last have a byte behind them: four bytes at a time.
template <ChannelOrder order> void writePackedRgb(const std::uint8_t *in, int width, std::uint8_t *out)
{
    for (int x = 0; x < width - 1; ++x) {
        std::uint32_t pixel = 0;
        std::memcpy(&pixel, in + std::ptrdiff_t{3} * x, sizeof pixel);
        if constexpr (order == ChannelOrder::BlueFirst)
            pixel = (pixel & 0xFF) << 16 | (pixel & 0xFF00) | (pixel >> 16 & 0xFF);
        pixel |= 0xFF000000U;
        std::memcpy(out + std::ptrdiff_t{4} * x, &pixel, sizeof pixel);
    }
    const std::ptrdiff_t last = width - 1;
    writePixel<3, order>(in + 3 * last, 1, out + 4 * last);
}

template <int channels, ChannelOrder order> void writeRows(const StridedView &image, std::uint8_t *out)
{
    constexpr bool littleEndian = std::endian::native == std::endian::little;
    const bool packed = image.columnStride == channels && (channels == 1 || image.channelStride == 1);
    for (int y = 0; y < image.height; ++y) {
        const std::uint8_t *row = image.row(y);
        std::uint8_t *to = out + std::ptrdiff_t{4} * image.width * y;
        if (littleEndian && channels == 3 && packed && image.width > 0) {
            writePackedRgb<order>(row, image.width, to);
        } else if (packed) { // with strides that the compiler knows
            for (int x = 0; x < image.width; ++x)
                writePixel<channels, order>(row + std::ptrdiff_t{channels} * x, 1,
                                            to + std::ptrdiff_t{4} * x);
        } else {
            for (int x = 0; x < image.width; ++x)
                writePixel<channels, order>(row + image.columnStride * x, image.channelStride,
                                            to + std::ptrdiff_t{4} * x);
        }
    }
}

template <ChannelOrder order> void writeInOrder(const StridedView &image, std::uint8_t *out)
{
    switch (image.channels) {
    case 1:
        return writeRows<1, order>(image, out);
    case 3:
        return writeRows<3, order>(image, out);
    default:
        return writeRows<4, order>(image, out);
    }
}

constexpr int blockBytes = 32;

bool isAllZero(const std::uint8_t *bytes)
{
    std::array<std::uint64_t, blockBytes / sizeof(std::uint64_t)> words{};
    std::memcpy(words.data(), bytes, blockBytes);
    std::uint64_t any = 0;
    for (const std::uint64_t word : words)
        any |= word;
    return any == 0;
}

/// Calls `visit(x, element)` for each element of a row, in order; those of blocks that are 0 may be left
/// out, since most of a mask or of markers is 0.
template <typename Visit>
void visitRow(const std::uint8_t *row, int width, std::ptrdiff_t stride, int elementBytes, Visit visit)
{
    int x = 0;
    if (stride == elementBytes) {
        const int perBlock = blockBytes / elementBytes;
        for (; x <= width - perBlock; x += perBlock) {
            const std::uint8_t *block = row + std::ptrdiff_t{x} * elementBytes;
            if (isAllZero(block))
                continue;
            for (int i = 0; i < perBlock; ++i)
                visit(x + i, block + std::ptrdiff_t{i} * elementBytes);
        }
    }
    for (; x < width; ++x)
        visit(x, row + stride * x);
}

template <typename Integer> Integer swapped(Integer value)
{
    std::array<std::uint8_t, sizeof(Integer)> bytes{};
    std::memcpy(bytes.data(), &value, sizeof value);
    for (std::size_t i = 0; i < sizeof(Integer) / 2; ++i)
        std::swap(bytes[i], bytes[sizeof(Integer) - 1 - i]);
    return std::bit_cast<Integer>(bytes);
}

template <typename Integer> MarkedPixels markedOf(const StridedView &markers, bool isSwapped)
{
    MarkedPixels marked;
    for (int y = 0; y < markers.height; ++y) {
        const int first = y * markers.width;
        visitRow(markers.row(y), markers.width, markers.columnStride, static_cast<int>(sizeof(Integer)),
                 [&](int x, const std::uint8_t *element) {
                     Integer value{};
                     std::memcpy(&value, element, sizeof value);
                     if (value == 0)
                         return;
                     if (isSwapped)
                         value = swapped(value);
                     if (std::is_signed_v<Integer> && value < Integer{0}) {
                         marked.hasNegative = true;
                     } else if (static_cast<std::uint64_t>(value) >
                                std::uint64_t{std::numeric_limits<std::int32_t>::max()}) {
                         marked.hasTooLarge = true;
                     } else {
                         marked.indices.push_back(first + x);
                         marked.labels.push_back(static_cast<std::int32_t>(value));
                     }
                 });
    }
    return marked;
}

} // namespace

void writeFourChannels(const StridedView &image, ChannelOrder order, std::uint8_t *out)
{
    if (order == ChannelOrder::BlueFirst)
        writeInOrder<ChannelOrder::BlueFirst>(image, out);
    else
        writeInOrder<ChannelOrder::RedFirst>(image, out);
}

void writePacked(const StridedView &image, std::uint8_t *out)
{
    const std::ptrdiff_t rowBytes = std::ptrdiff_t{image.channels} * image.width;
    const bool packedRows =
        image.columnStride == image.channels && (image.channels == 1 || image.channelStride == 1);
    for (int y = 0; y < image.height; ++y, out += rowBytes) {
        const std::uint8_t *row = image.row(y);
        if (packedRows) {
            std::memcpy(out, row, static_cast<std::size_t>(rowBytes));
            continue;
        }
        std::uint8_t *to = out;
        for (int x = 0; x < image.width; ++x)
            for (int channel = 0; channel < image.channels; ++channel)
                *to++ = row[image.columnStride * x + image.channelStride * channel];
    }
}

std::vector<int> indicesOfSet(const StridedView &mask)
{
    std::vector<int> indices;
    for (int y = 0; y < mask.height; ++y) {
        const int first = y * mask.width;
        visitRow(mask.row(y), mask.width, mask.columnStride, 1, [&](int x, const std::uint8_t *element) {
            if (*element != 0)
                indices.push_back(first + x);
        });
    }
    return indices;
}

MarkedPixels markedPixels(const StridedView &markers, IntegerType type)
{
    switch (type.bytes) {
    case 1:
        return type.isSigned ? markedOf<std::int8_t>(markers, false) : markedOf<std::uint8_t>(markers, false);
    case 2:
        return type.isSigned ? markedOf<std::int16_t>(markers, type.isSwapped)
                             : markedOf<std::uint16_t>(markers, type.isSwapped);
    case 4:
        return type.isSigned ? markedOf<std::int32_t>(markers, type.isSwapped)
                             : markedOf<std::uint32_t>(markers, type.isSwapped);
    default:
        return type.isSigned ? markedOf<std::int64_t>(markers, type.isSwapped)
                             : markedOf<std::uint64_t>(markers, type.isSwapped);
    }
}

} // namespace ornevo::python
