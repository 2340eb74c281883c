// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "benchmarks/ProgramAtWork.h"

#include "benchmarks/BenchmarkPictures.h"

#include <cmath>
#include <stdexcept>

namespace {

constexpr int dabSide = 20;
constexpr int strokeCount = 8;
constexpr int jpegQuality = 92;

} // namespace

void writePhoto(int megapixels, const QString &file)
{
    if (!benchmarkpictures::photoMosaic(megapixels).save(file, "JPG", jpegQuality))
        throw std::runtime_error("can't write the photo to measure with");
}

ProgramAtWork::ProgramAtWork(int megapixels) : ProgramAtWork(QString())
{
    m_photo = fileFor("photo.jpg");
    writePhoto(megapixels, m_photo);
}

ProgramAtWork::ProgramAtWork(const QString &photo) : m_photo(photo)
{
    window().resize(1280, 900);
    window().show();
}

void ProgramAtWork::layMarks()
{
    // Wavy strokes across the picture in turn, a dab every few pixels, as a moving pointer lays them.
    const QColor removeColour(markers::removeColour);
    for (int stroke = 0; stroke < strokeCount; ++stroke) {
        const double middle = size().height() * (stroke + 0.5) / strokeCount;
        for (double x = dabSide; x < size().width() - 2.0 * dabSide; x += 1.5 * dabSide) {
            const QRectF dab(x, middle + 3 * dabSide * std::sin(x / 400), dabSide, dabSide);
            if (stroke % 2 == 0)
                state().imageScene().addRect(dab)->setZValue(layers::dabZ);
            else
                state().imageScene().addEllipse(dab, QPen(removeColour))->setZValue(layers::dabZ);
        }
    }
}

void ProgramAtWork::run(const char *slot)
{
    if (!QMetaObject::invokeMethod(&window(), slot))
        throw std::runtime_error(slot);
}

void ProgramAtWork::preview()
{
    m_driver.preview(true);
    m_driver.action("actionBackground_Brush").setChecked(true);
}

QList<QRect> ProgramAtWork::brushSquares()
{
    QList<QRect> squares;
    for (int i = 0; i < 10; ++i)
        squares.append(QRect(size().width() / 2 + 8 * i, size().height() / 2, dabSide, dabSide));
    return squares;
}

void ProgramAtWork::brush()
{
    if (!QMetaObject::invokeMethod(&window(), "on_RemoveBrushPressed", Q_ARG(QList<QRect>, brushSquares())))
        throw std::runtime_error("on_RemoveBrushPressed");
}

void ProgramAtWork::changeBackground(QRgb colour, const QImage &picture)
{
    state().backgroundColor() = colour;
    state().backgroundImage() = picture;
    window().applypreviewmask();
}
