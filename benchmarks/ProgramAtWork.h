// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/MainWindowDriver.h"

#include <QTemporaryDir>

/// Writes a mosaic of photographs of so many megapixels as a JPEG.
void writePhoto(int megapixels, const QString &file);

/// The real window with a photo, and the marks that a user would lay, for whoever measures its steps.
class ProgramAtWork
{
public:
    /// Works on a mosaic of so many megapixels, written to a file of its own.
    explicit ProgramAtWork(int megapixels);
    /// Works on the picture in a file.
    explicit ProgramAtWork(const QString &photo);

    MainWindow &window() { return m_driver.window; }
    MainWindowProbe &state() { return m_driver.probe; }
    /// Size of the picture that is open.
    [[nodiscard]] QSize size() { return state().workingImage().size(); }

    /// Opens the picture from its file, a JPEG, without the dialog.
    void open() { m_driver.openFile(m_photo); }
    /// Lays the marks of two regions on the editing scene.
    void layMarks();
    /// Runs a slot of the window that takes no arguments.
    void run(const char *slot);
    /// Switches the preview on.
    void preview();
    /// One batch of ten dabs of 20 pixels in the middle of the picture.
    void brush();
    /// Where the dabs of brush() lie.
    [[nodiscard]] QList<QRect> brushSquares();
    /// What follows the choice of a background: a colour, or a picture that is not null.
    void changeBackground(QRgb colour, const QImage &picture);
    [[nodiscard]] QString file() const { return m_photo; }
    [[nodiscard]] QString fileFor(const QString &name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
    QString m_photo;
    testsupport::MainWindowDriver m_driver;
};
