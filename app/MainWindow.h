// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "canvas/DrawingTools.h"
#include "canvas/ItemPointer.h"
#include "core/LargeMemory.h"

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
/// The names of the slots bind them to the actions of the form, misspellings included
/// (docs/compatibility.md): setupUi() connects on_<object>_<signal>() by name, and no connect() is to be
/// found.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    /// Reads the picture named by `currentFile` and makes it the one that is worked on. On failure the status
    /// bar says so and both scenes are left empty; `workingImage`, `imagePixmap` and `edgeMap` stay those of
    /// the photo before.
    void open();
    /// Writes the topmost picture of the editing scene (the overlay, if there is one) as JPEG, whatever the
    /// name ends in. A failure is not reported. (All of it is kept, see docs/compatibility.md.)
    void save(const QString &path);

    /// Fills `edgeMap` from `workingImage`.
    void colorsobel();
    /// Smooths the four-byte pixels of `src` into `dst`, with progress; see cutout::blurFourChannels().
    void blur(QImage *src, QImage *dst, int size, double sigma);
    /// Recomputes `outmask` from the marker dabs on the editing scene and takes the overlay off it.
    void updatemask();
    /// Rebuilds the mask and the preview scene from `outmask`.
    void updatepreview();
    /// Makes `maskImage` from `outmask`.
    void updatepreviewmask();
    /// Builds the preview scene anew, with what applypreviewmasktopixmap() makes.
    void applypreviewmask();
    /// Makes both pictures of the preview, after cutting `previewImage` anew if it is null. Leaves them alone
    /// when it is and there is no photo to cut from.
    void applypreviewmasktopixmap(QPixmap *background, QPixmap *object);
    /// Reads the tool settings from the store.
    void updatetoolssettings();

    // Kept for those who call them; neither does anything.
    void finematt(QList<QList<int>> regions, QList<int> pixels);
    void canny(QImage *image, unsigned char *edges);

signals:
    void mwquit();

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

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

    // In ToolActions.h.
    struct ToolSetting;
    struct ToolAction;
    struct ToolTable;

    void setUpProgress();
    void setUpStatusBar();
    void setUpHint();
    void setUpTools();
    void setUpUndo();
    void retranslate();
    void nameToolBar();
    void letTabIntoTheToolBar();
    void connectCanvas();
    void repaintAfterDialog();
    bool saveAndReopen(const QString &path);
    void chooseTool(DrawingTools tool, bool checked);
    void setEditingActionsEnabled(bool editing);
    void putToolsDown(bool editing);
    [[nodiscard]] QString lastDirectory() const;
    [[nodiscard]] QGraphicsPixmapItem *topmostPicture() const;
    void stepToolSize(int step);
    void stepBrushIntensity(int step);
    [[nodiscard]] const ToolAction *toolInUse(ToolSetting ToolAction::*setting) const;
    void changeByte(const ToolSetting &setting, const QString &message, int step);
    void applyBrush(const QList<QRect> &rects, int alphaChange);
    void showCutOut(const QRect &area);
    void framePreview();
    void showScene(QGraphicsScene &scene);
    void scaleBackground(double factor);
    bool exportTo(const QString &fileName, const QByteArray &format, QSize size);
    bool writeScene(const QString &path);

    std::unique_ptr<Ui_MainWindow> form;
    QSettings settings;
    QGraphicsScene imageScene;                 ///< for editing: the photo, the dabs, the overlay
    QGraphicsScene previewScene;               ///< the background and the cut-out
    QBitmap emptyMask;                         ///< stays null: setMask() with it drops transparency
    QImage maskImage;                          ///< RGB32, black keeps, white removes; soft where smoothEdges
    QString currentFile;                       ///< path of the photo; empty once a file dialog was cancelled
    bool isOriginalFile = false;               ///< currentFile is the user's photo: saving over it asks first
    QImage workingImage;                       ///< the photo in RGB32; imagePixmap is the same
    ornevo::LargeArray<unsigned char> edgeMap; ///< of workingImage, a byte a pixel
    canvas::ItemPointer<QGraphicsPixmapItem> maskItem; ///< the overlay; the scene's, null while there is none
    bool memoryRanOut = false;                         ///< in the last finding of edges or of the mask
    QList<int> outmask;   ///< the pixels found, y · width + x, in increasing order
    QPoint previewOffset; ///< where the object lies on the preview, in pixels
    canvas::ItemPointer<QGraphicsPixmapItem> backgroundItem; ///< the preview scene's
    QImage previewImage;      ///< the cut-out, ARGB32, brushed; null: to be cut anew
    QTimer brushTimer;        ///< ends the wait for more dabs of a batch
    QTimer skipLastRectTimer; ///< sets skipLastRect a while after a batch
    QRect lastBrushRect;      ///< the last dab of the last batch, in scene pixels
    bool skipLastRect = true; ///< false: lastBrushRect is left out of the next batch; never in this program
    QList<QRect> pendingBrushRects; ///< the batch that is being collected
    QUndoStack undoStack;
    QPixmap imagePixmap;
    // Bytes, as the settings hold them; for units see SettingsKeys.h. The view has sizes of its own.
    unsigned char keepMarkerSize = 0;
    unsigned char removeMarkerSize = 0;
    unsigned char keepBrushSize = 0;
    unsigned char removeBrushSize = 0;
    unsigned char eraserSize = 0;
    float maskOpacity = 0.0F;               ///< 0 .. 1
    unsigned char brushIntensityKeep = 0;   ///< added to the alpha by a batch
    unsigned char brushIntensityRemove = 0; ///< taken from the alpha by a batch
    bool smoothEdges = false;
    int gaussSize = 0;                 ///< taps; a fifth of it is the sigma
    QRgb backgroundColor = 0xFFFFFFFF; ///< not premultiplied; counts while backgroundImage is null
    QImage backgroundImage;
    canvas::ItemPointer<QGraphicsPixmapItem> previewItem; ///< shows previewImage; the preview scene's
};
