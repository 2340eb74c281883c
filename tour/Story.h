// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tour/Driver.h"
#include "tour/Strokes.h"

/// The tour itself: the program's whole job on the sample photograph, step by step, each of them looked at.
class Story
{
public:
    /// `samples` is the folder of the sample pictures; `helpPictures` where the screenshots of the help are
    /// renewed, or empty.
    Story(QMainWindow &window, const QString &folder, const QString &samples, const QString &helpPictures);

    /// Throws TourError where the program does not show what it should.
    void tell();

private:
    void openPhoto();
    void layMarks();
    void undoAndErase();
    void showMask();
    void showPreview();
    void touchUp();
    void chooseColours();
    void choosePicture();
    void moveAndZoom();
    void exportPictures();
    void readHelp();
    void leavePreview();

    void chooseBackground(const QString &radioButton, const std::function<void(QWidget &)> &choose);
    void exportTo(const QString &name);
    void helpPicture(int number);
    [[nodiscard]] QPixmap pixmapAt(qreal z) const;
    [[nodiscard]] qsizetype itemCount(int type) const;

    QMainWindow &m_window;
    Driver m_driver;
    QDir m_samples;
    QString m_helpPictures;
    Strokes m_strokes;
    QImage m_truth;
};
