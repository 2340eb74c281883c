// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QBitmap>

class QImage;

/// Softens the border of a cut-out over three pixels: walks from the border of the mask into its set (black)
/// area in rings of one pixel and lowers the alpha of the picture there.
///
/// A QBitmap is a pixmap, so that there has to be a QGuiApplication. A set bit (Qt::color1, drawn black) is a
/// pixel of the object, whose border fades out; clear bits (Qt::color0) are what was cut away. Without Qt:
/// ornevo::featherEdge() in core/Feathering.h.
///
/// \param picture four bytes a pixel, the fourth is the alpha; changed in place. Must not be null; nothing is
///                done to a picture of another depth
/// \param mask    the mask, of the size of the picture; where it is larger, what lies off the picture is
///                left out. Nothing is done when it is null
/// \param count   how many rings are walked beyond the first, none below 1; more than 3 make no difference
///
/// Ring 1 are the clear pixels that touch a set one (eight neighbours, the outermost rows and columns left
/// out); each further ring are the set pixels next to the ring before (four neighbours). A step down looks at
/// the mask pixel above and not at the one below, so that a pixel below is taken whenever the pixel above is
/// set. Rings 1 to 4 get the alpha 0, 0, 100 and 180; further rings change nothing.
///
/// Takes time linear in the pixels and two bytes a pixel of working storage. Throws std::bad_alloc.
void OvDoFeathering(QImage *picture, QBitmap mask, int count);
