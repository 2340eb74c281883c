// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "benchmarks/ProgramAtWork.h"

#include "benchmarks/BenchmarkPictures.h"
#include "canvas/MarkerDabs.h"

#include <QAction>
#include <QGraphicsRectItem>

#include <stdexcept>

namespace {

constexpr int dabSide = 20;
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

ProgramAtWork::ProgramAtWork(const QString &photo) : m_photo(photo), m_state(m_window)
{
    m_window.resize(1280, 900);
    m_window.show();
}

void ProgramAtWork::open()
{
    m_state.currentFile() = file();
    m_window.open();
}

void ProgramAtWork::layMarks()
{
    const auto regions = benchmarkpictures::strokes(size(), 2);
    const auto corner = [this](int index) { return QPointF(index % size().width(), index / size().width()); };
    // A square of one pixel a seed: the same seeds as the flooding alone is measured with.
    for (const int index : regions[0])
        m_state.imageScene().addRect(QRectF(corner(index), QSizeF(1, 1)));
    for (const int index : regions[1])
        m_state.imageScene().addEllipse(QRectF(corner(index), QSizeF(1, 1)),
                                        QPen(QColor(markers::removeColour)));
}

void ProgramAtWork::run(const char *slot)
{
    if (!QMetaObject::invokeMethod(&m_window, slot))
        throw std::runtime_error(slot);
}

void ProgramAtWork::preview()
{
    m_window.findChild<QAction *>("actionPreview")->setChecked(true);
    m_window.findChild<QAction *>("actionBackground_Brush")->setChecked(true);
}

void ProgramAtWork::brush()
{
    QList<QRect> squares;
    for (int i = 0; i < 10; ++i)
        squares.append(QRect(size().width() / 2 + 8 * i, size().height() / 2, dabSide, dabSide));
    if (!QMetaObject::invokeMethod(&m_window, "on_RemoveBrushPressed", Q_ARG(QList<QRect>, squares)))
        throw std::runtime_error("on_RemoveBrushPressed");
}
