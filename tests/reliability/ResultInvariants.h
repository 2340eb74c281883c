// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/reliability/RandomAnswers.h"
#include "tests/support/MainWindowProbe.h"

#include <QList>
#include <QObject>
#include <QPixmap>
#include <QString>

#include <functional>

/// Whether what the window makes is what plain code makes of the same state: the mask, the overlay, the
/// cut-out, the layers of the preview, the files. Listens to the actions, so that it looks right after each.
class ResultInvariants : public QObject
{
public:
    ResultInvariants(MainWindow &window, const RandomAnswers &answers);

    /// Called when another picture was opened through the dialog, and when the cut-out was made anew.
    std::function<void()> opened;
    std::function<void()> cutAnew;

    /// Notes what a step that follows may write or replace.
    void beforeStep();
    /// What the actions since beforeStep() have got wrong; empty when nothing.
    QString afterStep();
    /// Whether the canvas on the screen is what a repaint from nothing shows. Processes events.
    QString staleScreen();

private:
    void check(const QString &complaint);
    [[nodiscard]] QGraphicsPixmapItem *photo() const;
    [[nodiscard]] bool isSmall() const;
    [[nodiscard]] QString afterOpening();
    [[nodiscard]] QString mask();
    [[nodiscard]] QString floodedMask();
    [[nodiscard]] QString seedsOnTheirSide();
    [[nodiscard]] QString overlay();
    [[nodiscard]] QString cutOut();
    [[nodiscard]] QString layers();
    [[nodiscard]] QString savedFile();
    [[nodiscard]] QString exportedFile();
    [[nodiscard]] QString shownCutOut();
    [[nodiscard]] QString storedSettings();

    MainWindow &m_window;
    mutable MainWindowProbe m_probe;
    const RandomAnswers &m_answers;
    QString m_complaint;
    QPixmap m_topmostBefore;
    qint64 m_photoBefore = 0;
    bool m_photoWasThere = false;
    int m_exportsBefore = 0;
    qint64 m_shownChecked = 0;
    qint64 m_shownPixmap = 0;
};
