// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/ZelGraphicsView.h"
#include "resources/Resources.h"
#include "tests/support/TestMain.h"

#include <QCursor>
#include <QGuiApplication>
#include <QImage>
#include <QLibrary>
#include <QSettings>

#include <cstdint>
#include <cstdlib>

Q_DECLARE_METATYPE(DrawingTools)

namespace {

constexpr int eraserWidth = 64;

QImage drawing(const QString &path)
{
    QImage picture = QImage(path).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(1.0); // Qt reads it from the name
    return picture;
}

QImage scaled(const QImage &picture, int width)
{
    return picture.scaledToWidth(width, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/// The mean square of the steps from each pixel to its right neighbour, over all channels: blowing a picture
/// up makes it fall to a fraction.
double sharpness(const QImage &picture)
{
    double sum = 0.0;
    for (int y = 0; y < picture.height(); ++y) {
        const uchar *row = picture.constScanLine(y);
        for (int i = 4; i < 4 * picture.width(); ++i) {
            const double step = double(row[i]) - double(row[i - 4]);
            sum += step * step;
        }
    }
    return sum / (4.0 * picture.width() * picture.height());
}

struct ServersCursor
{
    QSize size;
    QPoint hotSpot;
};

/// The cursor that an X server shows at this moment, in its own words. Qt's plugin has loaded the library
/// that asks it.
ServersCursor cursorOnTheScreen()
{
    struct Reply // of the protocol's extension for cursors; the drawing follows
    {
        std::uint8_t type;
        std::uint8_t unused;
        std::uint16_t sequence;
        std::uint32_t length;
        std::int16_t x, y;
        std::uint16_t width, height, hotX, hotY;
    };
    struct Cookie
    {
        unsigned int sequence;
    };
    QLibrary library("xcb-xfixes", 0);
    const auto version = reinterpret_cast<Cookie (*)(void *, std::uint32_t, std::uint32_t)>(
        library.resolve("xcb_xfixes_query_version"));
    const auto versionReply = reinterpret_cast<void *(*)(void *, Cookie, void **)>(
        library.resolve("xcb_xfixes_query_version_reply"));
    const auto ask = reinterpret_cast<Cookie (*)(void *)>(library.resolve("xcb_xfixes_get_cursor_image"));
    const auto answer = reinterpret_cast<Reply *(*)(void *, Cookie, void **)>(
        library.resolve("xcb_xfixes_get_cursor_image_reply"));
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr || version == nullptr || versionReply == nullptr || ask == nullptr ||
        answer == nullptr)
        qFatal("the X server can't be asked for its cursor: %s", qPrintable(library.errorString()));
    void *connection = x11->connection();
    std::free(versionReply(connection, version(connection, 4, 0), nullptr)); // it answers nobody before
    Reply *reply = answer(connection, ask(connection), nullptr);
    const ServersCursor cursor =
        reply != nullptr ? ServersCursor{QSize(reply->width, reply->height), QPoint(reply->hotX, reply->hotY)}
                         : ServersCursor{};
    std::free(reply);
    return cursor;
}

} // namespace

/// The cursors on a screen with two pixels a point.
class TestDenseCursors : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cursorsAreDense_data();
    void cursorsAreDense();

private:
    static QCursor cursorOf(DrawingTools tool, ServersCursor &seen);
};

void TestDenseCursors::initTestCase()
{
    resources::registerAll();
    QSettings().setValue("ERASERMSIZE", eraserWidth);
}

QCursor TestDenseCursors::cursorOf(DrawingTools tool, ServersCursor &seen)
{
    QSettings settings;
    ZelGraphicsView view;
    view.settings = &settings;
    view.updatetoolssettings();
    view.show();
    if (!QTest::qWaitForWindowExposed(&view))
        qFatal("the view does not come up");
    if (view.devicePixelRatioF() != 2.0)
        qFatal("the screen is not dense");
    view.SetTool(tool);
    const QSize expected = view.viewport()->cursor().pixmap().size();
    if (QGuiApplication::platformName() == "xcb") {
        QCursor::setPos(view.viewport()->mapToGlobal(view.viewport()->rect().center()));
        if (!QTest::qWaitFor([&] { return (seen = cursorOnTheScreen()).size == expected; }))
            qWarning("the server shows a cursor of %d x %d", seen.size.width(), seen.size.height());
    }
    return view.viewport()->cursor();
}

void TestDenseCursors::cursorsAreDense_data()
{
    QTest::addColumn<DrawingTools>("tool");
    QTest::addColumn<QString>("plain");
    QTest::addColumn<QString>("taken");
    QTest::addColumn<QSize>("size"); // in points, as the hot spot
    QTest::addColumn<QPoint>("hotSpot");
    QTest::newRow("pen") << ToolPen << ":/cursors/pen_cursor.png"
                         << ":/cursors/pen_cursor@2x.png" << QSize(32, 32) << QPoint(0, 26);
    QTest::newRow("eraser") << ToolEraser << ":/icons/eraser.ico"
                            << ":/icons/eraser@2x.ico" << QSize(eraserWidth, eraserWidth) << QPoint(32, 32);
    // The plain pencils have pixels to spare, since they are shown at a quarter of their width.
    QTest::newRow("keep marker") << ToolKeepMarker << ":/icons/greenpencil.PNG"
                                 << ":/icons/greenpencil.PNG" << QSize(8, 22) << QPoint(4, 21);
    QTest::newRow("remove marker") << ToolRemoveMarker << ":/icons/redpencilv.PNG"
                                   << ":/icons/redpencilv.PNG" << QSize(8, 22) << QPoint(4, 21);
}

void TestDenseCursors::cursorsAreDense()
{
    QFETCH(DrawingTools, tool);
    QFETCH(QString, plain);
    QFETCH(QString, taken);
    QFETCH(QSize, size);
    QFETCH(QPoint, hotSpot);
    ServersCursor seen;
    const QCursor cursor = cursorOf(tool, seen);
    QCOMPARE(cursor.shape(), Qt::BitmapCursor);
    QCOMPARE(cursor.pixmap().devicePixelRatio(), 2.0);
    QCOMPARE(cursor.pixmap().size(), 2 * size);
    if (QGuiApplication::platformName() == "xcb") { // what counts is what the server is told, in pixels
        QCOMPARE(seen.size, cursor.pixmap().size());
        QCOMPARE(seen.hotSpot, 2 * hotSpot);
    } else {
        QCOMPARE(cursor.hotSpot(), hotSpot);
    }

    QImage shown = cursor.pixmap().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    shown.setDevicePixelRatio(1.0);
    QVERIFY(!drawing(taken).isNull());
    QVERIFY(drawing(taken).width() >= shown.width()); // never blown up
    QCOMPARE(shown, scaled(drawing(taken), 2 * size.width()));

    const QImage blownUp = scaled(scaled(drawing(plain), size.width()), 2 * size.width());
    QVERIFY2(sharpness(shown) > 1.3 * sharpness(blownUp),
             qPrintable(QString("%1 and %2").arg(sharpness(shown)).arg(sharpness(blownUp))));
}

int main(int argc, char *argv[])
{
    qputenv("QT_SCALE_FACTOR", "2"); // read once, when the application starts: hence a program of its own
    return testsupport::runTest<TestDenseCursors>(argc, argv);
}
#include "tst_densecursors.moc"
