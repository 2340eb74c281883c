// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/CutOut.h"
#include "cutout/FourChannelBlur.h"
#include "cutout/LargePicture.h"
#include "tests/reference/TestPictures.h"
#include "tests/support/TestMain.h"

#include <QPixmap>

#include <cstdint>
#include <vector>

/// A picture in huge pages behaves like any other.
class TestLargePicture : public QObject
{
    Q_OBJECT

private slots:
    void pictures_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("format");
        for (const QSize &size :
             {QSize(3, 2), QSize(723, 725), QSize(724, 724), QSize(1025, 513), QSize(2, 300000)})
            for (const int format : {int(QImage::Format_RGB32), int(QImage::Format_ARGB32),
                                     int(QImage::Format_ARGB32_Premultiplied), int(QImage::Format_Grayscale8),
                                     int(QImage::Format_RGBA64), int(QImage::Format_Mono)})
                QTest::addRow("%d x %d, format %d", size.width(), size.height(), format) << size << format;
    }

    void pictures()
    {
        QFETCH(QSize, size);
        QFETCH(int, format);
        QImage picture = cutout::makeLargePicture(size, QImage::Format(format));
        const QImage ordinary(size, QImage::Format(format));
        QCOMPARE(picture.size(), ordinary.size());
        QCOMPARE(picture.format(), ordinary.format());
        QCOMPARE(picture.bytesPerLine(), ordinary.bytesPerLine());
        QCOMPARE(picture.devicePixelRatio(), ordinary.devicePixelRatio());
        QCOMPARE(picture.dotsPerMeterX(), ordinary.dotsPerMeterX());
        QCOMPARE(picture.text(), ordinary.text());

        const QRgb *const before = reinterpret_cast<const QRgb *>(picture.constBits());
        picture.fill(1);
        QCOMPARE(reinterpret_cast<const QRgb *>(picture.constBits()), before); // its own, and not read-only
        QImage copy = picture;
        copy.fill(0);
        QVERIFY(copy != picture);
        QCOMPARE(reinterpret_cast<const QRgb *>(picture.constBits()), before);
    }

    /// From two megabytes on they lie in pages of that size, where the system has them.
    void whereThePixelsLie()
    {
        constexpr quintptr hugePage = 2 << 20;
        for (const QSize &size : {QSize(1024, 512), QSize(2, 262144), QSize(1200, 800), QSize(800, 1200)}) {
            const QImage picture = cutout::makeLargePicture(size, QImage::Format_RGB32);
            QCOMPARE(reinterpret_cast<quintptr>(picture.constBits()) % hugePage, quintptr{0});
        }
    }

    /// The pixels live as long as anyone shows them.
    void pixmapOutlivesItsPicture()
    {
        QImage picture = cutout::makeLargePicture(QSize(1200, 800), QImage::Format_RGB32);
        picture.fill(qRgb(1, 2, 3));
        const uchar *const pixels = picture.constBits();
        QPixmap pixmap = QPixmap::fromImage(std::move(picture));
        picture = QImage();
        QCOMPARE(pixmap.toImage().constBits(), pixels); // without a copy
        QCOMPARE(pixmap.toImage().pixel(1199, 799), qRgb(1, 2, 3));
    }

    void noPicture()
    {
        QVERIFY(cutout::makeLargePicture(QSize(), QImage::Format_RGB32).isNull());
        QVERIFY(cutout::makeLargePicture(QSize(0, 5), QImage::Format_RGB32).isNull());
        QVERIFY(cutout::makeLargePicture(QSize(-3, 5), QImage::Format_RGB32).isNull());
        QVERIFY(cutout::makeLargePicture(QSize(1000, 1000), QImage::Format_Invalid).isNull());
        QVERIFY(cutout::makeLargePicture(QSize(0x7FFFFFFF, 0x7FFFFFFF), QImage::Format_RGB32).isNull());
        QVERIFY(cutout::makeLargePicture(QSize(1 << 28, 1 << 28), QImage::Format_RGB32).isNull());
    }

    void premultipliedIsWhatQtMakes()
    {
        QImage everything(256 * 16, 256 * 16, QImage::Format_ARGB32); // each alpha with each grey, and noise
        const QImage noise = testpictures::randomArgbImage(256, 256, 3);
        for (int y = 0; y < everything.height(); ++y)
            for (int x = 0; x < everything.width(); ++x)
                everything.setPixel(
                    x, y, y < 256 ? qRgba(x % 256, 255 - x % 256, x / 16, y) : noise.pixel(x % 256, y % 256));
        QCOMPARE(cutout::premultiplied(everything),
                 everything.convertToFormat(QImage::Format_ARGB32_Premultiplied));
        for (const QSize &size : {QSize(1, 1), QSize(40000, 3), QSize(7, 5000), QSize(300, 301)}) {
            QImage picture = testpictures::randomArgbImage(size.width(), size.height(), 5);
            picture.setDevicePixelRatio(2);
            QCOMPARE(cutout::premultiplied(picture),
                     picture.convertToFormat(QImage::Format_ARGB32_Premultiplied));
            QCOMPARE(cutout::premultiplied(picture).devicePixelRatio(), 2.0);
        }
        const QImage opaque = testpictures::randomImage(30, 20, 6);
        QCOMPARE(cutout::premultiplied(opaque), opaque.convertToFormat(QImage::Format_ARGB32_Premultiplied));
        QVERIFY(cutout::premultiplied(QImage()).isNull());
    }

    /// Blurred into its destination, a picture is what it is when blurred into a copy.
    void blurDestinationHoldsWhatStays()
    {
        for (const QSize &size :
             {QSize(1, 1), QSize(4, 9), QSize(5, 5), QSize(6, 5), QSize(40, 31), QSize(900, 800)})
            for (const int taps : {-3, 0, 1, 2, 3, 5, 6, 15, 99}) {
                const QImage picture = testpictures::randomImage(size.width(), size.height(), 9);
                QImage destination = cutout::blurDestination(picture, taps);
                QImage copy = picture.copy();
                cutout::blurFourChannels(picture, destination, taps, std::max(taps, 1) / 5.0, {});
                cutout::blurFourChannels(picture, copy, taps, std::max(taps, 1) / 5.0, {});
                QVERIFY2(destination == copy,
                         qPrintable(QString("%1 x %2, %3").arg(size.width()).arg(size.height()).arg(taps)));
            }
        QVERIFY(cutout::blurDestination(QImage(), 5).isNull());
    }
};

ORNEVO_TEST_MAIN(TestLargePicture)
#include "tst_largepicture.moc"
