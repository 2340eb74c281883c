// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reference/TestPictures.h"
#include "tests/support/TestMain.h"
#include "tests/support/WindowUnderTest.h"

#include <QGraphicsPixmapItem>
#include <QScreen>
#include <QScrollBar>

#include <cstdlib>

using testsupport::WindowUnderTest;

namespace {

// Drawing in parts rounds a little otherwise than drawing in one go, see tst_pictureitem.
constexpr int roundingOfParts = 3;

bool alike(QRgb a, QRgb b)
{
    return std::abs(qRed(a) - qRed(b)) <= roundingOfParts &&
           std::abs(qGreen(a) - qGreen(b)) <= roundingOfParts &&
           std::abs(qBlue(a) - qBlue(b)) <= roundingOfParts;
}

/// Whether the pixel is that of `whole` or, where an enlarged pixel ends one earlier or later, of a
/// neighbour.
bool isAt(QRgb pixel, const QImage &whole, int x, int y)
{
    for (int j = y - 1; j <= y + 1; ++j)
        for (int i = x - 1; i <= x + 1; ++i)
            if (whole.valid(i, j) && alike(pixel, whole.pixel(i, j)))
                return true;
    return false;
}

/// Where the screen does not show what it would show if all of the window were painted.
QRect stale(QMainWindow &window)
{
    const QImage shown = window.screen()->grabWindow(window.winId()).toImage();
    const QImage whole = window.grab().toImage();
    if (shown.size() != whole.size())
        return shown.rect();
    QRect area;
    for (int y = 0; y < shown.height(); ++y)
        for (int x = 0; x < shown.width(); ++x)
            if (!alike(shown.pixel(x, y), whole.pixel(x, y)) && !isAt(shown.pixel(x, y), whole, x, y))
                area |= QRect(x, y, 1, 1);
    return area;
}

/// Somebody who works on the preview and changes the view of it meanwhile.
class Restless
{
public:
    Restless(WindowUnderTest &t, std::uint32_t seed) : m_t(t), m_random(seed) {}

    QString act()
    {
        switch (m_random.below(9)) {
        case 0:
            return zoom();
        case 1:
            return scroll();
        case 2:
            m_t.window.resize(500 + m_random.below(300), 400 + m_random.below(200));
            return "resize";
        case 3:
            m_t.action("actionPreview").toggle();
            return "preview";
        case 4:
            return drag("actionHandTool");
        case 5:
            m_t.probe.undoStack().undo();
            return "undo";
        case 6:
            m_t.probe.undoStack().redo();
            return "redo";
        default:
            return drag(m_random.below(2) == 0 ? "actionBackground_Brush" : "actionForeground_Brush");
        }
    }

private:
    QString zoom()
    {
        const double factor = m_random.below(2) == 0 ? 0.7 : 1.4;
        const double scale = m_t.view.transform().m11() * factor;
        if (scale > 0.1 && scale < 4.0)
            m_t.view.scale(factor, factor);
        return "zoom";
    }

    QString scroll()
    {
        for (QScrollBar *bar : {m_t.view.horizontalScrollBar(), m_t.view.verticalScrollBar()})
            bar->setValue(bar->value() + m_random.below(121) - 60);
        return "scroll";
    }

    QString drag(const char *tool)
    {
        if (m_t.action("actionPreview").isChecked())
            m_t.action(tool).setChecked(true);
        QPoint position(m_random.below(m_t.view.viewport()->width()),
                        m_random.below(m_t.view.viewport()->height()));
        QList<QPoint> positions{position};
        for (int i = m_random.below(9); i >= 0; --i)
            positions << (position += QPoint(m_random.below(41) - 20, m_random.below(41) - 20));
        m_t.mouse.stroke(positions);
        return tool;
    }

    WindowUnderTest &m_t;
    testpictures::Random m_random;
};

} // namespace

/// Little is repainted for a change; what stands on the screen is the whole of it all the same.
class TestScreen : public QObject
{
    Q_OBJECT

private slots:
    void nothingStaleIsLeft_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addRow("small photo") << QSize(230, 170);
        QTest::addRow("large photo") << QSize(1500, 1100);
    }

    void nothingStaleIsLeft()
    {
        QFETCH(QSize, size);
        QTemporaryDir folder;
        const QString path = folder.filePath("photo.png");
        QVERIFY(testpictures::randomImage(size.width(), size.height(), 3).save(path));
        WindowUnderTest t;
        t.openPicture(path);
        t.dab("actionKeep_arker", size.width() / 2, size.height() / 2);
        t.dab("action_Remove_Marker", 20, 20);
        t.action("actionPreview").setChecked(true);
        Restless user(t, 17);
        QStringList done;
        for (int step = 0; step < 120; ++step) {
            done << user.act();
            if (step % 3 == 0)
                QCoreApplication::processEvents();
            if (step % 6 != 5)
                continue;
            QTRY_VERIFY(!t.probe.brushTimer().isActive()); // the batch of a brush waits for more dabs
            QRect area;
            // What is due to be painted may be painted a little later, but not never.
            QVERIFY2(QTest::qWaitFor([&] { return (area = stale(t.window)).isEmpty(); }),
                     qPrintable(QStringLiteral("%1 x %2 at %3, %4 after %5")
                                    .arg(area.width())
                                    .arg(area.height())
                                    .arg(area.x())
                                    .arg(area.y())
                                    .arg(done.mid(done.size() - 6).join(", "))));
        }
    }
};

ORNEVO_TEST_MAIN(TestScreen)
#include "tst_screen.moc"
