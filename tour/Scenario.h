// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/MainWindow.h"
#include "tests/support/MainWindowProbe.h"
#include "tour/Driver.h"
#include "tour/Strokes.h"

/// The tour's one scenario: the program's whole job on the sample photograph, step by step, each of them
/// checked.
class Scenario
{
public:
    /// `samples` is the folder of the sample pictures; `helpPictures` where the screenshots of the help are
    /// renewed, or empty.
    Scenario(MainWindow &window, const QString &folder, const QString &samples, const QString &helpPictures);

    /// Throws TourError where the program does not show what it should.
    void run();

private:
    void openPhoto();
    void layMarks();
    void undoAndErase();
    void showMask();
    void showPreview();
    void touchUp();
    void waitForBatch();
    void undoAndRedoTouchUp(const QImage &before);
    void chooseColours();
    void choosePicture();
    void moveAndZoom();
    void touchUpMoved();
    void exportPictures();
    [[nodiscard]] QImage expectedComposition(const QImage &background);
    void readHelp();
    void leavePreview();

    void chooseBackground(const QString &radioButton, const std::function<void(QWidget &)> &choose);
    void exportTo(const QString &name);
    void helpPicture(int number);
    [[nodiscard]] QPixmap pixmapAt(qreal z) const;
    [[nodiscard]] qsizetype itemCount(int type) const;

    MainWindow &m_window;
    MainWindowProbe m_state;
    Driver m_driver;
    QDir m_samples;
    QString m_helpPictures;
    Strokes m_strokes;
    QImage m_truth;
};
