// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "imaging/GaussianBlur.h"

#include "core/GaussianBlur.h"

#include <cassert>

namespace {

ornevo::PlaneView source(const CFrImage<unsigned char> &plane)
{
    return {plane.data, plane.width, plane.height};
}

ornevo::MutablePlaneView destination(const CFrImage<unsigned char> &plane)
{
    return {plane.data, plane.width, plane.height};
}

} // namespace

int FrGaussianBlurAny(CFrImage<unsigned char> *src, CFrImage<unsigned char> *dst, double sigma, int size)
{
    ornevo::blurPlane(source(*src), destination(*dst), sigma, size);
    return 0;
}

int FrGaussianBlur99(CFrImage<unsigned char> *src, CFrImage<unsigned char> *dst, double sigma)
{
    ornevo::blurPlaneNineTaps(source(*src), destination(*dst), sigma);
    return 0;
}

int FrGaussianBlurFast(CFrImage<unsigned char> *src, CFrImage<unsigned char> *dst)
{
    assert(src->channels == 1);
    if (src->channels == 1)
        ornevo::blurPlaneFiveByFive(source(*src), destination(*dst));
    return 0;
}

int FrGaussianBlur33(CFrImage<unsigned char> *src, CFrImage<unsigned char> *dst)
{
    assert(src->channels == 1);
    if (src->channels == 1)
        ornevo::blurPlaneThreeByThree({src->data, dst->width, dst->height}, destination(*dst));
    return 0;
}
