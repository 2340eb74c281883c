// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/MainWindow.h"

/// The tests' look at a window's state; a friend of it.
class MainWindowProbe
{
public:
    explicit MainWindowProbe(MainWindow &window) : m_window(window) {}

    QSettings &settings() { return m_window.settings; }
    QGraphicsScene &imageScene() { return m_window.imageScene; }
    QGraphicsScene &previewScene() { return m_window.previewScene; }
    QImage &maskImage() { return m_window.maskImage; }
    QString &currentFile() { return m_window.currentFile; }
    bool &isOriginalFile() { return m_window.isOriginalFile; }
    QImage &workingImage() { return m_window.workingImage; }
    unsigned char *edgeMap() { return m_window.edgeMap.get(); }
    QGraphicsPixmapItem *maskItem() { return m_window.maskItem; }
    QList<int> &outmask() { return m_window.outmask; }
    QPoint &previewOffset() { return m_window.previewOffset; }
    QGraphicsPixmapItem *backgroundItem() { return m_window.backgroundItem; }
    QImage &previewImage() { return m_window.previewImage; }
    QTimer &brushTimer() { return m_window.brushTimer; }
    QTimer &skipLastRectTimer() { return m_window.skipLastRectTimer; }
    QRect &lastBrushRect() { return m_window.lastBrushRect; }
    bool &skipLastRect() { return m_window.skipLastRect; }
    QList<QRect> &pendingBrushRects() { return m_window.pendingBrushRects; }
    QUndoStack &undoStack() { return m_window.undoStack; }
    QPixmap &imagePixmap() { return m_window.imagePixmap; }
    unsigned char &keepMarkerSize() { return m_window.keepMarkerSize; }
    unsigned char &removeMarkerSize() { return m_window.removeMarkerSize; }
    unsigned char &keepBrushSize() { return m_window.keepBrushSize; }
    unsigned char &removeBrushSize() { return m_window.removeBrushSize; }
    unsigned char &eraserSize() { return m_window.eraserSize; }
    float &maskOpacity() { return m_window.maskOpacity; }
    unsigned char &brushIntensityKeep() { return m_window.brushIntensityKeep; }
    unsigned char &brushIntensityRemove() { return m_window.brushIntensityRemove; }
    bool &smoothEdges() { return m_window.smoothEdges; }
    int &gaussSize() { return m_window.gaussSize; }
    QRgb &backgroundColor() { return m_window.backgroundColor; }
    QImage &backgroundImage() { return m_window.backgroundImage; }
    QGraphicsPixmapItem *previewItem() { return m_window.previewItem; }

    bool exportTo(const QString &fileName, const QByteArray &format, QSize size)
    {
        return m_window.exportTo(fileName, format, size);
    }

private:
    MainWindow &m_window;
};
