// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "imaging/EdgeDetectors.h"

#include "imaging/RowFilters.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>

namespace {

int colorDifference(const unsigned char *above, const unsigned char *here)
{
    int sum = 0;
    for (int colour = 0; colour < 3; ++colour)
        sum += std::abs(3 * above[colour] - above[colour + 4] - here[colour + 4] - here[colour]);
    return sum;
}

template <int divisor, typename T> int colorDifferences(const CFrImage<unsigned char> &src, CFrImage<T> &dst)
{
    for (int y = 1; y < src.height; ++y) {
        const unsigned char *above = src.data + std::ptrdiff_t{y - 1} * src.width * 4;
        const unsigned char *here = above + std::ptrdiff_t{src.width} * 4;
        T *out = dst.data + std::ptrdiff_t{y - 1} * src.width;
        for (int x = 1; x < src.width; ++x)
            out[x - 1] = static_cast<T>(
                colorDifference(above + std::ptrdiff_t{x - 1} * 4, here + std::ptrdiff_t{x - 1} * 4) /
                divisor);
    }
    return 0;
}

} // namespace

int cvSobel(CFrImage<unsigned char> const *src, CFrImage<short> *dst, int xOrder, int /*yOrder*/,
            int /*aperture*/)
{
    const int width = src->width;
    const int height = src->height;
    for (int y = 0; y < height; ++y) {
        const unsigned char *mid = src->data + std::ptrdiff_t{y} * width;
        short *out = dst->data + std::ptrdiff_t{y} * width;
        std::fill(out, out + width, short{0});
        if (y == 0 || y == height - 1)
            continue;
        const unsigned char *above = mid - width;
        const unsigned char *below = mid + width;
        for (int x = 1; x < width - 1; ++x) {
            const int gradient = xOrder != 0 ? above[x + 1] + 2 * mid[x + 1] + below[x + 1] - above[x - 1] -
                                                   2 * mid[x - 1] - below[x - 1]
                                             : above[x - 1] + 2 * above[x] + above[x + 1] - below[x - 1] -
                                                   2 * below[x] - below[x + 1];
            out[x] = static_cast<short>(gradient);
        }
    }
    return 0;
}

int FrSobelEdgeDetector(CFrImage<unsigned char> *src, CFrImage<unsigned char> *dst)
{
    const int width = src->width;
    const int height = src->height;
    auto *magnitudes = new unsigned char[static_cast<std::size_t>(width) * static_cast<std::size_t>(height)];
    for (int y = 0; y < height; ++y) {
        unsigned char *out = magnitudes + std::ptrdiff_t{y} * width;
        const unsigned char *mid = src->data + std::ptrdiff_t{y} * width;
        if (y == 0 || y == height - 1 || width == 0)
            std::fill(out, out + width, static_cast<unsigned char>(0));
        else
            rowfilters::sobelMagnitudeRow(mid - width, mid, mid + width, width, out);
    }
    *dst = {magnitudes, width, height, 1, 1};
    return 0;
}

int FrColorRCEdgeDetector(CFrImage<unsigned char> *src, CFrImage<unsigned short> *dst)
{
    return colorDifferences<1>(*src, *dst);
}

int FrColorRCEdgeDetector(CFrImage<unsigned char> *src, CFrImage<unsigned char> *dst)
{
    return colorDifferences<9>(*src, *dst);
}
