// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/RasterFormat.h"

#include <QByteArrayView>

namespace cutout {

namespace {

struct Beginning
{
    QByteArrayView bytes;
    const char *format;
};

// Icons of the Mac are not here: they hold pictures in further formats, which Qt would guess.
constexpr Beginning beginnings[] = {
    {"\xFF\xD8\xFF", "jpeg"},
    {"\x89PNG\r\n\x1A\n", "png"},
    {"GIF87a", "gif"},
    {"GIF89a", "gif"},
    {"BM", "bmp"},
    {{"II*\0", 4}, "tiff"},
    {{"MM\0*", 4}, "tiff"},
    {{"II+\0", 4}, "tiff"},
    {{"MM\0+", 4}, "tiff"},
    {{"\0\0\1\0", 4}, "ico"},
    {{"\0\0\2\0", 4}, "cur"},
    {"P1", "pbm"},
    {"P2", "pgm"},
    {"P3", "ppm"},
    {"P4", "pbmraw"},
    {"P5", "pgmraw"},
    {"P6", "ppmraw"},
    {"/* XPM", "xpm"},
};

} // namespace

QList<QByteArray> rasterFormats(const QByteArray &beginning)
{
    for (const Beginning &known : beginnings)
        if (beginning.startsWith(known.bytes))
            return {known.format};
    if (beginning.startsWith("RIFF") && beginning.mid(8, 4) == "WEBP")
        return {"webp"};
    if (beginning.contains("#define "))
        return {"xbm"};
    // These two begin with nothing of their own; their readers look at the header's numbers.
    return {"wbmp", "tga"};
}

} // namespace cutout
