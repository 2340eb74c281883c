// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "canvas/ItemPointer.h"

#include <QBitmap>
#include <QGraphicsScene>
#include <QImage>
#include <QList>
#include <QMainWindow>
#include <QPixmap>
#include <QPoint>
#include <QRect>
#include <QSettings>
#include <QString>
#include <QTimer>
#include <QUndoStack>

#include <memory>

class Ui_MainWindow;

/// The program's one window. It owns the state that the canvas, the mask pipeline and the output share; the
/// loops over pixels are elsewhere. Its bodies are split by concern over MainWindow*.cpp.
///
/// The names of the slots bind them to the actions of the form, misspellings included.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    /// Reads the picture named by `currentFile` and makes it the one that is worked on.
    void open();
    /// Writes the topmost picture of the editing scene as JPEG.
    void save(const QString &path);

    /// Fills `edgeMap` from `workingImage`.
    void colorsobel();
    /// Smooths the four-byte pixels of `src` into `dst`, with progress; see blurFourChannels().
    void blur(QImage *src, QImage *dst, int size, double sigma);
    /// Recomputes `outmask` from the marker dabs on the editing scene.
    void updatemask();
    /// Rebuilds the mask and the preview scene from `outmask`.
    void updatepreview();
    void updatepreviewmask();
    void applypreviewmask();
    void applypreviewmasktopixmap(QPixmap *background, QPixmap *object);
    /// Reads the tool settings from the store.
    void updatetoolssettings();

    // Kept for those who call them; neither does anything.
    void finematt(QList<QList<int>> regions, QList<int> pixels);
    void canny(QImage *image, unsigned char *edges);

signals:
    void mwquit();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void on_actionTestMenu_triggered();
    void on_actionDecreaseBrushIntensity_triggered();
    void on_actionIncreaseBrushIntensity_triggered();
    void on_actionDecreaseToolSoze_triggered();
    void on_actionIncreaseToolSize_triggered();
    void on_actionBlueMarker_toggled(bool checked);
    void on_actionContact_Us_triggered();
    void on_actionFinematt_triggered();
    void on_actionExport_triggered();
    void on_actionBackgroundZoomMinus_triggered();
    void on_actionBackgroundZoomPlus_triggered();
    void on_actionSelect_Background_toggled(bool checked);
    void on_actionHandTool_toggled(bool checked);
    void on_actionForeground_Brush_toggled(bool checked);
    void on_actionBackground_Brush_toggled(bool checked);
    void on_actionEraser_toggled(bool checked);
    void on_actionSelect_Background_triggered();
    void on_actionPreferences_triggered();
    void on_actionMask_triggered();
    void on_actionIndex_triggered();
    void on_actionAbout_triggered();
    void on_actionSave_As_triggered();
    void on_actionSave_triggered();
    void on_actionPreview_toggled(bool checked);
    void on_action_Remove_Marker_toggled(bool checked);
    void on_actionKeep_arker_toggled(bool checked);
    void on_actionZoom_Out_triggered();
    void on_actionZoom_In_triggered();
    void on_actionQuit_triggered();
    void on_actionOpen_triggered();
    void on_KeepBrushPressed(QList<QRect> rects);
    void on_RemoveBrushPressed(QList<QRect> rects);
    void on_BrushMouseEvent(QRect rect, bool now);
    void on_ProcessBrushMouseEvent();
    void on_TimeToSkipLastRect();
    void on_HandToolPressed(QPoint prevpos, QPoint pos);

private:
    friend class MainWindowProbe; // the tests' look at the state below

    void hideProgress();
    void setUpActions();
    void letTabIntoTheToolBar();
    void connectCanvas();
    void chooseTool(int tool, bool checked);
    void setEditingActionsEnabled(bool editing);
    [[nodiscard]] QString lastDirectory() const;
    [[nodiscard]] QGraphicsPixmapItem *topmostPicture() const;
    void stepToolSize(int step);
    void stepBrushIntensity(int step);
    void changeToolSize(unsigned char &size, const QString &message, const char *key, int step);
    void applyBrush(const QList<QRect> &rects, int alphaChange);
    void showChangeByOlderEntry(int undoIndex);
    void scaleBackground(double factor);
    [[nodiscard]] QPixmap exportCanvas() const;

    std::unique_ptr<Ui_MainWindow> form;
    QSettings settings;
    QGraphicsScene imageScene;
    QGraphicsScene previewScene;
    QBitmap emptyMask;
    QImage maskImage;
    QString currentFile;
    bool isOriginalFile = false;
    QImage workingImage;
    std::unique_ptr<unsigned char[]> edgeMap;
    ItemPointer<QGraphicsPixmapItem> maskItem;
    QList<int> outmask;
    QPoint previewOffset;
    ItemPointer<QGraphicsPixmapItem> backgroundItem;
    QImage previewImage;
    QTimer brushTimer;
    QTimer skipLastRectTimer;
    QRect lastBrushRect;
    bool skipLastRect = true;
    QList<QRect> pendingBrushRects;
    QUndoStack undoStack;
    int entriesOlderThanPreviewItem = 0;
    QPixmap imagePixmap;
    unsigned char keepMarkerSize = 0;
    unsigned char removeMarkerSize = 0;
    unsigned char keepBrushSize = 0;
    unsigned char removeBrushSize = 0;
    unsigned char eraserSize = 0;
    float maskOpacity = 0.0F;
    unsigned char brushIntensityKeep = 0;
    unsigned char brushIntensityRemove = 0;
    bool smoothEdges = false;
    int gaussSize = 0;
    QRgb backgroundColor = 0xFFFFFFFF;
    QImage backgroundImage;
    ItemPointer<QGraphicsPixmapItem> previewItem;
};
