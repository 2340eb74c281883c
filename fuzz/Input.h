// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/reference/TestPictures.h"

#include <QImage>
#include <QList>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <vector>

/// The bytes of the fuzzer, taken one after the other. What they do not suffice for goes on at random, seeded
/// with them, so that a few bytes already make a whole picture.
class Input
{
public:
    Input(const std::uint8_t *data, std::size_t size) : m_data(data), m_size(size), m_more(sum(data, size)) {}

    std::uint8_t byte() { return m_next < m_size ? m_data[m_next++] : m_more.byte(); }
    /// 0 .. bound - 1.
    int below(int bound) { return (byte() << 8 | byte()) % bound; }
    int integer()
    {
        std::uint32_t value = 0;
        for (int i = 0; i < 4; ++i)
            value = value << 8 | byte();
        return static_cast<int>(value);
    }

    /// Bytes as a picture has them: noise, plateaus, nearly nothing, or ramps.
    std::vector<std::uint8_t> bytes(std::size_t count)
    {
        std::vector<std::uint8_t> result(count);
        const int kind = byte() % 4;
        const int levels = 1 + byte() % 8;
        std::uint8_t value = byte();
        for (std::uint8_t &item : result) {
            const std::uint8_t next = byte();
            if (kind == 0)
                value = next;
            else if (kind == 1)
                value = static_cast<std::uint8_t>(next % levels * 36);
            else if (kind == 2)
                value = next % 16 == 0 ? next : std::uint8_t{0};
            else
                value = static_cast<std::uint8_t>(value + next % levels);
            item = value;
        }
        return result;
    }

    /// Four bytes a pixel; now and then with padding between the rows.
    QImage picture(int width, int height, QImage::Format format)
    {
        QImage image(width, height, format);
        const std::vector<std::uint8_t> pixels =
            bytes(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4);
        auto from = pixels.cbegin();
        for (int y = 0; y < height; ++y, from += std::ptrdiff_t{4} * width)
            std::copy(from, from + std::ptrdiff_t{4} * width, image.scanLine(y));
        const int padding = byte() % 8;
        return padding < 4 ? image : testpictures::paddedImage(image, padding, 1);
    }

    /// Indices of pixels, some of them off the picture.
    QList<int> indices(int pixels)
    {
        QList<int> result;
        const int count = byte() % 40;
        for (int i = 0; i < count; ++i)
            result.append(byte() % 16 == 0 ? integer() : below(pixels));
        return result;
    }

private:
    static std::uint32_t sum(const std::uint8_t *data, std::size_t size)
    {
        std::uint32_t hash = 2166136261U;
        for (std::size_t i = 0; i < size; ++i)
            hash = (hash ^ data[i]) * 16777619U;
        return hash;
    }

    const std::uint8_t *m_data;
    std::size_t m_size;
    std::size_t m_next = 0;
    testpictures::Random m_more;
};

/// Stops the fuzzer at the input that it is at.
inline void require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "not so: %s\n", what);
    __builtin_trap();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);
