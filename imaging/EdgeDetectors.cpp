// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "imaging/EdgeDetectors.h"

#include "core/EdgeDetectors.h"

#include <algorithm>
#include <cstddef>
#include <memory>

namespace {

template <typename Element, typename T>
ornevo::WordPlaneView<Element> words(const CFrImage<T> &plane, int width, int height)
{
    return {plane.data, width, height, width};
}

ornevo::PictureView colours(const CFrImage<unsigned char> &picture)
{
    return {picture.data, picture.width, picture.height};
}

} // namespace

int cvSobel(CFrImage<unsigned char> const *src, CFrImage<short> *dst, int xOrder, int /*yOrder*/,
            int /*aperture*/)
{
    ornevo::sobelDerivative({src->data, src->width, src->height},
                            words<std::int16_t>(*dst, src->width, src->height),
                            xOrder != 0 ? ornevo::Derivative::horizontal : ornevo::Derivative::vertical);
    return 0;
}

int FrSobelEdgeDetector(CFrImage<unsigned char> *src, CFrImage<unsigned char> *dst)
{
    const int width = src->width;
    const int height = src->height;
    const auto elements =
        static_cast<std::size_t>(std::max(width, 0)) * static_cast<std::size_t>(std::max(height, 0));
    std::unique_ptr<unsigned char[]> magnitudes(new unsigned char[elements]);
    ornevo::sobelMagnitude({src->data, width, height}, {magnitudes.get(), width, height});
    *dst = {magnitudes.release(), width, height, 1, 1};
    return 0;
}

int FrColorRCEdgeDetector(CFrImage<unsigned char> *src, CFrImage<unsigned short> *dst)
{
    ornevo::colourDifference(colours(*src), words<std::uint16_t>(*dst, src->width, src->height));
    return 0;
}

int FrColorRCEdgeDetector(CFrImage<unsigned char> *src, CFrImage<unsigned char> *dst)
{
    ornevo::colourDifference(colours(*src), ornevo::MutablePlaneView(dst->data, src->width, src->height));
    return 0;
}
