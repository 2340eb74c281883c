// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reference/ImageReferences.h"
#include "tests/reference/MaskReference.h"
#include "tests/reference/TestPictures.h"

#include <QObject>
#include <QPainter>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

// The references measure the fast kernels, so their own expectations come from
// elsewhere: worked out by hand, or with sixty decimal digits where no
// truncation comes nearer than 1e-9 to a whole number.

namespace {

using reference::Plane;
using reference::PlaneOf;

using Values = QList<int>;
using Lists = QList<QList<int>>;

Plane planeFrom(int width, int height, const Values &values)
{
    Plane plane(width, height);
    for (int i = 0; i < width * height; ++i)
        plane.data.at(static_cast<std::size_t>(i)) = static_cast<std::uint8_t>(values.at(i));
    return plane;
}

template <typename Value> Plane planeOf(int width, int height, Value value)
{
    Plane plane(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            plane.at(x, y) = static_cast<std::uint8_t>(value(x, y) & 0xff);
    return plane;
}

template <typename T> Values valuesOf(const std::vector<T> &data)
{
    Values values;
    for (const T value : data)
        values.append(static_cast<int>(value));
    return values;
}

Values valuesOf(const Plane &plane)
{
    return valuesOf(plane.data);
}

/// The formula picture that the blurs are tried on.
int mixture(int x, int y)
{
    return 37 * x + 91 * y + 13 * x * y + 5;
}

/// A picture of one row of free pixels: the rows above and below are frame.
QImage rowPicture(const Values &greys)
{
    std::vector<std::uint8_t> plane;
    for (int y = 0; y < 3; ++y)
        for (const int grey : greys)
            plane.push_back(static_cast<std::uint8_t>(grey));
    return testpictures::greyImage(static_cast<int>(greys.size()), 3, plane);
}

std::vector<std::uint8_t> rowEdges(const Values &edges)
{
    std::vector<std::uint8_t> plane(3 * static_cast<std::size_t>(edges.size()), 0);
    for (int x = 0; x < edges.size(); ++x)
        plane.at(static_cast<std::size_t>(edges.size() + x)) = static_cast<std::uint8_t>(edges.at(x));
    return plane;
}

/// Columns of its free row, as indices of the whole picture.
Values columns(int width, const Values &xs)
{
    Values indices;
    for (const int x : xs)
        indices.append(width + x);
    return indices;
}

std::vector<std::uint8_t> noEdges(const QImage &image)
{
    return testpictures::constantPlane(image.width(), image.height(), 0);
}

QImage maskFromRows(const QStringList &rows)
{
    QImage mask(static_cast<int>(rows.first().size()), static_cast<int>(rows.size()), QImage::Format_ARGB32);
    for (int y = 0; y < mask.height(); ++y)
        for (int x = 0; x < mask.width(); ++x)
            mask.setPixel(x, y, rows.at(y).at(x) == QLatin1Char('#') ? 0xff000000u : 0xffffffffu);
    return mask;
}

Values alphas(const QImage &picture)
{
    Values values;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            values.append(qAlpha(picture.pixel(x, y)));
    return values;
}

QImage argb(int width, int height, QRgb color)
{
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(color);
    return image;
}

} // namespace

class TestReference : public QObject
{
    Q_OBJECT

public:
    static void initMain()
    {
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
    }

private slots:
    void weights_data();
    void weights();
    void degenerateWeights_data();
    void degenerateWeights();
    void blurAnyInterior_data();
    void blurAnyInterior();
    void blurAnySmallPictureIsCopied();
    void blurAnyConstantLosesAtMostRadius();
    void blurAnyWithoutUsableSigmaCopies();
    void blur99Interior();
    void blur99Constant();
    void blur99SmallPictureIsCopied();
    void orderOfSums_data();
    void orderOfSums();
    void blurFastImpulseShowsKernel();
    void blurFastConstant();
    void blurFastBorderIsCopied();
    void blur33Constant();
    void blur33ImpulseShowsTable();
    void fourChannelBlurInterior();
    void fourChannelBlurEvenSize();
    void fourChannelBlurFrame();
    void fourChannelBlurPadded();

    void sobelSmall();
    void sobelStepWraps();
    void magnitudeWraps();
    void colorDifference_data();
    void colorDifference();
    void colorDifferenceUntouched();
    void edgeMapConstant();
    void edgeMapMixture();
    void edgeMapFrame();

    void luminance_data();
    void luminance();
    void luminanceGrey();
    void watershedUniform();
    void watershedFirstInFirstOut();
    void watershedRow_data();
    void watershedRow();
    void watershedStepDownUsesRightNeighbour();
    void watershedColorCosts();
    void watershedEnclosed();
    void watershedNothingDone_data();
    void watershedNothingDone();
    void watershedAppends();
    void watershedSeedInBothLists();
    void watershedSeedsOutside();
    void watershedFrameSeedCountsForNothing();
    void watershedPadded();
    void manyOneRegion();
    void manyThreeRegions();
    void manyRisingCosts();
    void manyLaterListWins();
    void manyEdgesCostTheMost();
    void manyNothingDone();
    void manyWithoutFirstList();

    void waveThresholdZero();
    void waveConstant();
    void waveSingleColumn();
    void waveRamp();
    void waveIgnoresFourthByteAndPadding();
    void wavePredicates();

    void featherRow_data();
    void featherRow();
    void featherDownLooksUp();
    void featherAboveFirstRow();
    void featherFirstOfSecondRow();
    void featherPlainMask_data();
    void featherPlainMask();
    void featherPaddedPicture();

    void seedSquare_data();
    void seedSquare();
    void markers();
    void overlay();
    void hardMask();
    void smoothMask();
    void cutOutAlpha();
    void brushAlpha_data();
    void brushAlpha();
    void brushOverlapCountsOnce();
    void brushLeavesLastSquareOut();
    void brushStaysInPicture();
    void brushOffset();
    void backgroundColors();
    void backgroundPicture();
    void exportPlain();
    void exportTransparent();
    void exportZoomed();
    void exportWithoutExtent();
    void exportHeight_data();
    void exportHeight();
    void exportWarning_data();
    void exportWarning();

    void everySizeSegments_data();
    void everySizeSegments();
    void randomIsPortable();
    void paddedPicture();
    void maskPictureHasTwoValues();
};

// Gaussian blurs

void TestReference::weights_data()
{
    QTest::addColumn<int>("n");
    QTest::addColumn<double>("sigma");
    QTest::addColumn<QList<double>>("expected");
    QTest::newRow("1 tap") << 1 << 2.5 << QList<double>{1.0};
    QTest::newRow("3 taps") << 3 << 1.0
                            << QList<double>{0.304504342420284, 0.390991315159432, 0.304504342420284};
    QTest::newRow("5 taps") << 5 << 1.0
                            << QList<double>{0.111703364064081, 0.236476023579351, 0.303641224713136,
                                             0.236476023579351, 0.111703364064081};
    QTest::newRow("7 taps") << 7 << 1.4
                            << QList<double>{0.069037580526494, 0.130634860073184, 0.191532817540808,
                                             0.217589483719028, 0.191532817540808, 0.130634860073184,
                                             0.069037580526494};
    QTest::newRow("even count") << 4 << 1.4
                                << QList<double>{0.178636196101523, 0.261910901385200, 0.297542001128077,
                                                 0.261910901385200};
    QTest::newRow("negative sigma") << 3 << -1.0
                                    << QList<double>{0.304504342420284, 0.390991315159432, 0.304504342420284};
}

void TestReference::weights()
{
    QFETCH(int, n);
    QFETCH(double, sigma);
    QFETCH(QList<double>, expected);
    const std::vector<double> actual = reference::gaussianWeights(n, sigma);
    QCOMPARE(static_cast<int>(actual.size()), static_cast<int>(expected.size()));
    for (int i = 0; i < expected.size(); ++i)
        QVERIFY2(std::abs(actual.at(static_cast<std::size_t>(i)) - expected.at(i)) < 2e-15,
                 qPrintable(QString::number(actual.at(static_cast<std::size_t>(i)), 'g', 17)));
}

void TestReference::degenerateWeights_data()
{
    QTest::addColumn<int>("n");
    QTest::addColumn<double>("sigma");
    QTest::addColumn<QList<double>>("expected");
    const QList<double> five{0.0, 0.0, 1.0, 0.0, 0.0};
    QTest::newRow("sigma 0") << 5 << 0.0 << five;
    QTest::newRow("sigma not a number") << 5 << std::numeric_limits<double>::quiet_NaN() << five;
    QTest::newRow("sigma infinite") << 5 << std::numeric_limits<double>::infinity() << five;
    QTest::newRow("sigma too large to square") << 5 << 1e200 << five;
    QTest::newRow("sigma too small to square") << 5 << 1e-200 << five;
    QTest::newRow("even count, sigma 0") << 4 << 0.0 << QList<double>{0.0, 0.0, 1.0, 0.0};
    QTest::newRow("no tap") << 0 << 1.0 << QList<double>{1.0};
    QTest::newRow("negative count") << -7 << 1.0 << QList<double>{1.0};
    // Just inside and just outside of where the quotient can be formed: with a
    // more exact constant than 6.283 the first of them would be outside too.
    QTest::newRow("largest sigma") << 2 << 5.348977782573272e+153 << QList<double>{0.5, 0.5};
    QTest::newRow("beyond the largest sigma") << 2 << 5.349512680351529e+153 << QList<double>{0.0, 1.0};
    // Narrow, but the centre weight can still be formed: the others vanish.
    QTest::newRow("sigma tiny") << 5 << 1e-3 << five;
}

void TestReference::degenerateWeights()
{
    QFETCH(int, n);
    QFETCH(double, sigma);
    QFETCH(QList<double>, expected);
    const std::vector<double> actual = reference::gaussianWeights(n, sigma);
    QCOMPARE(QList<double>(actual.begin(), actual.end()), expected);
}

void TestReference::blurAnyInterior_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("size");
    QTest::addColumn<double>("sigma");
    QTest::addColumn<bool>("bright");
    QTest::addColumn<Values>("expected");
    // clang-format off
    QTest::newRow("3 taps") << 7 << 6 << 3 << 0.8 << false << Values{
        5, 42, 79, 116, 153, 190, 227,
        96, 124, 143, 140, 144, 142, 140,
        187, 144, 161, 150, 150, 140, 53,
        22, 128, 141, 144, 153, 145, 222,
        113, 117, 139, 154, 150, 128, 135,
        204, 50, 152, 254, 100, 202, 48};
    QTest::newRow("7 taps") << 9 << 8 << 7 << 1.4 << false << Values{
        5, 42, 79, 116, 153, 190, 227, 8, 45,
        96, 146, 196, 246, 40, 90, 140, 190, 240,
        187, 250, 57, 120, 183, 246, 53, 116, 179,
        22, 98, 174, 140, 142, 141, 222, 42, 118,
        113, 202, 35, 134, 137, 136, 135, 224, 57,
        204, 50, 152, 254, 100, 202, 48, 150, 252,
        39, 154, 13, 128, 243, 102, 217, 76, 191,
        130, 2, 130, 2, 130, 2, 130, 2, 130};
    QTest::newRow("picture of 2r + 1 has one interior pixel") << 7 << 7 << 7 << 1.4 << false << Values{
        5, 42, 79, 116, 153, 190, 227,
        96, 146, 196, 246, 40, 90, 140,
        187, 250, 57, 120, 183, 246, 53,
        22, 98, 174, 140, 70, 146, 222,
        113, 202, 35, 124, 213, 46, 135,
        204, 50, 152, 254, 100, 202, 48,
        39, 154, 13, 128, 243, 102, 217};
    // Four weights make a kernel of five taps that adds up to more than 1, so
    // that bright values wrap around.
    QTest::newRow("even count wraps") << 8 << 7 << 4 << 2.0 << true << Values{
        255, 250, 245, 240, 235, 230, 225, 220,
        252, 247, 242, 237, 232, 227, 222, 217,
        249, 244, 94, 86, 81, 80, 219, 254,
        246, 241, 90, 84, 80, 83, 216, 251,
        243, 238, 86, 82, 82, 86, 253, 248,
        240, 235, 230, 225, 220, 255, 250, 245,
        237, 232, 227, 222, 217, 252, 247, 242};
    // clang-format on
}

void TestReference::blurAnyInterior()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(int, size);
    QFETCH(double, sigma);
    QFETCH(bool, bright);
    QFETCH(Values, expected);
    const Plane src = bright
                          ? planeOf(width, height, [](int x, int y) { return 255 - ((5 * x + 3 * y) % 40); })
                          : planeOf(width, height, mixture);
    Plane dst(width, height, 77);
    reference::blurAny(src, dst, sigma, size);
    QCOMPARE(valuesOf(dst), expected);
}

void TestReference::blurAnySmallPictureIsCopied()
{
    for (const QSize &size : testpictures::awkwardSizes()) {
        if (size.width() > 6 && size.height() > 6)
            continue;
        const Plane src = planeOf(size.width(), size.height(), mixture);
        Plane dst(size.width(), size.height(), 77);
        reference::blurAny(src, dst, 1.4, 7);
        QCOMPARE(valuesOf(dst), valuesOf(src));
    }
}

void TestReference::blurAnyConstantLosesAtMostRadius()
{
    int changed = 0;
    for (int value = 0; value < 256; ++value) {
        const Plane src(8, 8, static_cast<std::uint8_t>(value));
        Plane dst(8, 8, 77);
        reference::blurAny(src, dst, 1.4, 7);
        QVERIFY(dst.at(4, 4) <= value);
        QVERIFY(dst.at(4, 4) >= value - 3);
        QCOMPARE(static_cast<int>(dst.at(2, 4)), value);
        if (dst.at(4, 4) != value)
            ++changed;
    }
    QVERIFY(changed > 200);

    const Plane src(7, 7, 200);
    Plane dst(7, 7, 77);
    reference::blurAny(src, dst, 1.4, 7);
    QCOMPARE(static_cast<int>(dst.at(3, 3)), 198);
}

void TestReference::blurAnyWithoutUsableSigmaCopies()
{
    const Plane src = planeOf(12, 11, mixture);
    for (const double sigma : {0.0, 1e200, std::numeric_limits<double>::quiet_NaN()}) {
        for (const int size : {-3, 0, 1, 4, 5, 7, 40}) {
            Plane dst(12, 11, 77);
            reference::blurAny(src, dst, sigma, size);
            QCOMPARE(valuesOf(dst), valuesOf(src));
        }
    }
    for (const int size : {-3, 0, 1}) {
        Plane dst(12, 11, 77);
        reference::blurAny(src, dst, 1.4, size);
        QCOMPARE(valuesOf(dst), valuesOf(src));
    }
}

void TestReference::blur99Interior()
{
    const Plane src = planeOf(11, 10, mixture);
    Plane expected = src;
    expected.at(4, 4) = 140;
    expected.at(5, 4) = 138;
    expected.at(6, 4) = 137;
    expected.at(4, 5) = 133;
    expected.at(5, 5) = 132;
    expected.at(6, 5) = 131;
    Plane dst(11, 10, 77);
    reference::blur99(src, dst, 1.2);
    QCOMPARE(valuesOf(dst), valuesOf(expected));
}

void TestReference::blur99Constant()
{
    for (int value = 0; value < 256; ++value) {
        const Plane src(10, 10, static_cast<std::uint8_t>(value));
        Plane dst(10, 10, 77);
        reference::blur99(src, dst, 1.7);
        for (const std::uint8_t pixel : dst.data)
            QVERIFY(pixel == value || pixel == value - 1);
        QCOMPARE(static_cast<int>(dst.at(3, 5)), value);
    }
}

void TestReference::blur99SmallPictureIsCopied()
{
    for (const QSize &size : {QSize(1, 1), QSize(3, 20), QSize(20, 3), QSize(8, 20), QSize(20, 8)}) {
        const Plane src = planeOf(size.width(), size.height(), mixture);
        Plane dst(size.width(), size.height(), 77);
        reference::blur99(src, dst, 1.2);
        QCOMPARE(valuesOf(dst), valuesOf(src));
    }
}

void TestReference::orderOfSums_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<bool>("across");
    QTest::addColumn<Values>("values");
    QTest::addColumn<int>("expected");
    // With this sigma all weights are the same, whatever the exponential
    // function's last bit, and the exact result is a whole number. Which side
    // of it the sum of doubles falls on depends on the order of its terms:
    // outermost pair first, centre last or tap by tap, each of these comes out
    // 1 (blurAny: 2, fourChannelBlur: 4) higher than the centre with the pairs
    // from the inside out.
    QTest::newRow("blur99, horizontal pass")
        << "blur99" << true << Values{24, 250, 150, 255, 19, 157, 12, 36, 105} << 111;
    QTest::newRow("blur99, vertical pass")
        << "blur99" << false << Values{2, 202, 57, 26, 59, 225, 145, 93, 10} << 90;
    QTest::newRow("blurAny") << "blurAny" << true << Values{207, 112, 139, 254, 92, 30, 195} << 145;
    QTest::newRow("fourChannelBlur") << "fourChannelBlur" << true << Values{141, 147, 236, 82, 154, 183, 233}
                                     << 164;
}

void TestReference::orderOfSums()
{
    QFETCH(QString, filter);
    QFETCH(bool, across);
    QFETCH(Values, values);
    QFETCH(int, expected);
    const int n = static_cast<int>(values.size());
    const int centre = n / 2;
    const Plane src = planeOf(n, n, [&values, across](int x, int y) { return values.at(across ? x : y); });
    if (filter == QLatin1String("fourChannelBlur")) {
        const QImage picture = testpictures::greyImage(n, n, src.data);
        QImage image = picture.copy();
        reference::fourChannelBlur(picture, image, n, 1e100);
        QCOMPARE(qRed(image.pixel(centre, centre)), expected);
        return;
    }
    Plane dst(n, n, 77);
    if (filter == QLatin1String("blur99"))
        reference::blur99(src, dst, 1e100);
    else
        reference::blurAny(src, dst, 1e100, n);
    QCOMPARE(static_cast<int>(dst.at(centre, centre)), expected);
}

void TestReference::blurFastImpulseShowsKernel()
{
    // An impulse of the divisor's size leaves the kernel itself.
    Plane src(15, 15, 0);
    src.at(7, 7) = 159;
    // clang-format off
    const Values kernel{
        2, 4, 5, 4, 2,
        4, 9, 12, 9, 4,
        5, 12, 15, 12, 5,
        4, 9, 12, 9, 4,
        2, 4, 5, 4, 2};
    // clang-format on
    Plane expected(15, 15, 0);
    for (int i = 0; i < 25; ++i)
        expected.at(5 + i % 5, 5 + i / 5) = static_cast<std::uint8_t>(kernel.at(i));
    Plane dst(15, 15, 77);
    reference::blurFast(src, dst);
    QCOMPARE(valuesOf(dst), valuesOf(expected));
}

void TestReference::blurFastConstant()
{
    for (int value = 0; value < 256; ++value) {
        const Plane src(12, 11, static_cast<std::uint8_t>(value));
        Plane dst(12, 11, 77);
        reference::blurFast(src, dst);
        QCOMPARE(valuesOf(dst), valuesOf(src));
    }
}

void TestReference::blurFastBorderIsCopied()
{
    // The copied band is wider than the kernel reaches. The centre pixel sees
    // every pixel of its 5 x 5 neighbourhood; 2 / 159 and 5 / 159 of 255.
    Plane src(11, 11, 0);
    src.at(3, 3) = 255;
    src.at(7, 5) = 255;
    src.at(2, 5) = 255;
    Plane expected = src;
    expected.at(5, 5) = 7 * 255 / 159;
    Plane dst(11, 11, 77);
    reference::blurFast(src, dst);
    QCOMPARE(valuesOf(dst), valuesOf(expected));

    for (const QSize &size : {QSize(1, 1), QSize(2, 12), QSize(12, 4), QSize(10, 12), QSize(12, 10)}) {
        const Plane small = planeOf(size.width(), size.height(), mixture);
        Plane copy(size.width(), size.height(), 77);
        reference::blurFast(small, copy);
        QCOMPARE(valuesOf(copy), valuesOf(small));
    }
}

void TestReference::blur33Constant()
{
    const Plane src(6, 7, 255);
    Plane expected(6, 7, 0);
    for (int y = 2; y <= 4; ++y)
        for (int x = 2; x <= 3; ++x)
            expected.at(x, y) = 206;
    Plane dst(6, 7, 77);
    reference::blur33(src, dst);
    QCOMPARE(valuesOf(dst), valuesOf(expected));

    Plane small(4, 9, 77);
    reference::blur33(Plane(4, 9, 255), small);
    QCOMPARE(valuesOf(small), valuesOf(Plane(4, 9, 0)));
}

void TestReference::blur33ImpulseShowsTable()
{
    Plane src(9, 9, 0);
    src.at(4, 4) = 255;
    // The pixel left of the impulse has it as its right neighbour, which
    // weighs as little as a corner.
    Plane expected(9, 9, 0);
    for (int y = 3; y <= 5; ++y)
        for (int x = 3; x <= 5; ++x)
            expected.at(x, y) = 13;
    expected.at(4, 3) = 28;
    expected.at(4, 5) = 28;
    expected.at(5, 4) = 28;
    expected.at(4, 4) = 57;
    Plane dst(9, 9, 77);
    reference::blur33(src, dst);
    QCOMPARE(valuesOf(dst), valuesOf(expected));
}

namespace {

const QList<Values> fourChannelFactors{
    {37, 91, 13, 5},
    {29, 50, 17, 80},
    {53, 70, 31, 9},
    {71, 19, 43, 140},
};

QImage fourChannelPicture(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            for (int k = 0; k < 4; ++k) {
                const Values &f = fourChannelFactors.at(k);
                const int value = f.at(0) * x * x + f.at(1) * y * y + f.at(2) * x * y + f.at(3);
                image.scanLine(y)[4 * x + k] = static_cast<uchar>(value & 0xff);
            }
        }
    }
    return image;
}

Values channel(const QImage &image, int k)
{
    Values values;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            values.append(image.constScanLine(y)[4 * x + k]);
    return values;
}

// clang-format off
const QList<Values> fourChannelBlurred{
    {5, 42, 153, 82, 85, 162, 57,
     96, 97, 93, 115, 131, 125, 226,
     113, 111, 87, 91, 103, 111, 65,
     56, 99, 105, 121, 115, 103, 86,
     181, 109, 143, 173, 147, 117, 33,
     232, 78, 254, 248, 60, 202, 162},
    {80, 109, 196, 85, 32, 37, 100,
     130, 118, 126, 128, 124, 146, 252,
     24, 109, 150, 153, 150, 173, 248,
     18, 120, 162, 150, 148, 156, 88,
     112, 135, 130, 103, 118, 127, 28,
     50, 164, 80, 54, 86, 176, 68},
    {9, 62, 221, 230, 89, 54, 125,
     79, 111, 141, 133, 87, 67, 125,
     33, 96, 109, 116, 101, 80, 9,
     127, 61, 73, 111, 111, 89, 33,
     105, 86, 97, 134, 117, 94, 197,
     223, 175, 233, 141, 155, 19, 245},
    {140, 211, 168, 11, 252, 123, 136,
     159, 109, 93, 123, 151, 145, 157,
     216, 129, 107, 117, 139, 145, 216,
     55, 155, 113, 101, 135, 135, 57,
     188, 139, 91, 91, 119, 115, 192,
     103, 133, 49, 107, 51, 137, 109},
};
// clang-format on

} // namespace

void TestReference::fourChannelBlurInterior()
{
    const QImage src = fourChannelPicture(7, 6);
    QImage dst = src.copy();
    reference::fourChannelBlur(src, dst, 3, 0.6);
    for (int k = 0; k < 4; ++k)
        QCOMPARE(channel(dst, k), fourChannelBlurred.at(k));
}

void TestReference::fourChannelBlurEvenSize()
{
    const QImage src = fourChannelPicture(6, 5);
    for (const int size : {4, 5}) {
        QImage dst = src.copy();
        reference::fourChannelBlur(src, dst, size, 1.0);
        Values expected = channel(src, 0);
        expected[2 * 6 + 2] = 102;
        expected[2 * 6 + 3] = 108;
        QCOMPARE(channel(dst, 0), expected);
    }
}

void TestReference::fourChannelBlurFrame()
{
    const QImage src = fourChannelPicture(7, 6);
    QImage dst = argb(7, 6, 0x4d4d4d4du);
    reference::fourChannelBlur(src, dst, 3, 0.6);
    for (int y = 0; y < 6; ++y) {
        for (int x = 0; x < 7; ++x) {
            const bool frame = x == 0 || y == 0 || x == 6 || y == 5;
            for (int k = 0; k < 4; ++k)
                QCOMPARE(static_cast<int>(dst.constScanLine(y)[4 * x + k]),
                         frame ? 0x4d : fourChannelBlurred.at(k).at(7 * y + x));
        }
    }

    QImage small = argb(6, 30, 0x4d4d4d4du);
    reference::fourChannelBlur(fourChannelPicture(6, 30), small, 7, 1.4);
    QCOMPARE(small, argb(6, 30, 0x4d4d4d4du));

    // Without a usable kernel the picture itself arrives.
    QImage whole = argb(7, 6, 0x4d4d4d4du);
    reference::fourChannelBlur(src, whole, 0, 0.0);
    QCOMPARE(whole, src);
    whole.fill(0x4d4d4d4du);
    reference::fourChannelBlur(src, whole, -5, 1.0);
    QCOMPARE(whole, src);
}

void TestReference::fourChannelBlurPadded()
{
    const QImage src = testpictures::paddedImage(fourChannelPicture(7, 6), 3, 1);
    QImage dst = testpictures::paddedImage(fourChannelPicture(7, 6), 3, 2);
    QCOMPARE(static_cast<int>(src.bytesPerLine()), 40);
    reference::fourChannelBlur(src, dst, 3, 0.6);
    for (int k = 0; k < 4; ++k)
        QCOMPARE(channel(dst, k), fourChannelBlurred.at(k));
    QCOMPARE(static_cast<int>(dst.bytesPerLine()), 40);
    QVERIFY(testpictures::paddingUntouched(dst, 2));
}

// Edge detectors

void TestReference::sobelSmall()
{
    const Plane src = planeFrom(3, 3, {1, 2, 3, 4, 5, 6, 7, 8, 10});
    QCOMPARE(valuesOf(reference::sobel(src, 1).data), (Values{0, 0, 0, 0, 9, 0, 0, 0, 0}));
    QCOMPARE(valuesOf(reference::sobel(src, -2).data), (Values{0, 0, 0, 0, 9, 0, 0, 0, 0}));
    QCOMPARE(valuesOf(reference::sobel(src, 0).data), (Values{0, 0, 0, 0, -25, 0, 0, 0, 0}));
    QCOMPARE(valuesOf(reference::sobelMagnitude(src)), (Values{0, 0, 0, 0, 26, 0, 0, 0, 0}));
    QCOMPARE(valuesOf(reference::sobelMagnitude(Plane(2, 4, 9))), Values(8, 0));
}

void TestReference::sobelStepWraps()
{
    const Plane src = planeOf(4, 3, [](int x, int) { return x < 2 ? 0 : 255; });
    QCOMPARE(valuesOf(reference::sobel(src, 1).data), (Values{0, 0, 0, 0, 0, 1020, 1020, 0, 0, 0, 0, 0}));
    const Plane mirrored = planeOf(4, 3, [](int x, int) { return x < 2 ? 255 : 0; });
    QCOMPARE(valuesOf(reference::sobel(mirrored, 1).data),
             (Values{0, 0, 0, 0, 0, -1020, -1020, 0, 0, 0, 0, 0}));
    QCOMPARE(valuesOf(reference::sobelMagnitude(src)), (Values{0, 0, 0, 0, 0, 252, 252, 0, 0, 0, 0, 0}));
    // The row above minus the row below.
    const Plane lower = planeOf(3, 3, [](int, int y) { return y < 2 ? 0 : 255; });
    QCOMPARE(static_cast<int>(reference::sobel(lower, 0).at(1, 1)), -1020);
}

void TestReference::magnitudeWraps()
{
    // A rise of 75 over two columns, weighted 1, 2, 1: 300.
    const Plane src = planeOf(3, 3, [](int x, int) { return x == 2 ? 75 : 0; });
    QCOMPARE(static_cast<int>(reference::sobel(src, 1).at(1, 1)), 300);
    QCOMPARE(static_cast<int>(reference::sobelMagnitude(src).at(1, 1)), 44);
}

void TestReference::colorDifference_data()
{
    QTest::addColumn<Values>("bytes");
    QTest::addColumn<int>("sum");
    QTest::newRow("small") << Values{10, 20, 30, 99, 1, 2, 3, 98, 4, 5, 6, 97, 7, 8, 9, 96} << 135;
    QTest::newRow("bright corner") << Values{255, 255, 255, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0} << 2295;
    QTest::newRow("dark corner") << Values{0, 0, 0, 0, 255, 255, 255, 0, 255, 255, 255, 0, 255, 255, 255, 0}
                                 << 2295;
    QTest::newRow("mixed signs") << Values{0, 9, 0, 0, 1, 9, 0, 0, 2, 9, 0, 0, 4, 1, 0, 255} << 15;
    QTest::newRow("flat") << Values(16, 50) << 0;
}

void TestReference::colorDifference()
{
    QFETCH(Values, bytes);
    QFETCH(int, sum);
    const std::vector<std::uint8_t> picture(bytes.begin(), bytes.end());
    PlaneOf<std::uint16_t> wide(2, 2, 999);
    reference::colorDifference16(picture, wide);
    QCOMPARE(valuesOf(wide.data), (Values{sum, 999, 999, 999}));
    Plane narrow(2, 2, 77);
    reference::colorDifference8(picture, narrow);
    QCOMPARE(valuesOf(narrow), (Values{sum / 9, 77, 77, 77}));
}

void TestReference::colorDifferenceUntouched()
{
    // A single blue pixel in the middle of 4 x 3.
    std::vector<std::uint8_t> picture(48, 0);
    picture.at((1 * 4 + 1) * 4) = 10;
    PlaneOf<std::uint16_t> wide(4, 3, 999);
    reference::colorDifference16(picture, wide);
    QCOMPARE(valuesOf(wide.data), (Values{10, 10, 0, 999, 10, 30, 0, 999, 999, 999, 999, 999}));

    PlaneOf<std::uint16_t> flat(12, 1, 999);
    reference::colorDifference16(picture, flat);
    QCOMPARE(valuesOf(flat.data), Values(12, 999));
    Plane column(1, 12, 77);
    reference::colorDifference8(picture, column);
    QCOMPARE(valuesOf(column), Values(12, 77));
}

void TestReference::edgeMapConstant()
{
    QCOMPARE(valuesOf(reference::edgeMap(testpictures::constantImage(1, 1, 0x123456))), Values(1, 255));
    // Where every blurred plane is flat up to its border: black stays black.
    QCOMPARE(valuesOf(reference::edgeMap(testpictures::constantImage(12, 11, 0))), Values(132, 255));
    // Too small to be blurred.
    QCOMPARE(valuesOf(reference::edgeMap(testpictures::constantImage(6, 40, 0xc8c8c8))), Values(240, 255));
    QVERIFY(reference::edgeMap(QImage()).empty());

    // The interior of the blur loses two levels of 200 while its border is
    // copied, so a constant picture has edges there: at (2, 2) only the lower
    // right neighbour is darker, which gives -2 and 2 and a length of 2.
    const std::vector<std::uint8_t> edge = reference::edgeMap(testpictures::constantImage(13, 13, 0xc8c8c8));
    QVERIFY(edge.at(3 * 13 + 6) == 255);
    QCOMPARE(static_cast<int>(edge.at(2 * 13 + 2)), 255 - (8 - 2));
    QCOMPARE(static_cast<int>(edge.at(6 * 13 + 6)), 0);
    QCOMPARE(static_cast<int>(edge.at(0)), 0);
}

void TestReference::edgeMapMixture()
{
    QImage picture(10, 9, QImage::Format_RGB32);
    for (int y = 0; y < 9; ++y)
        for (int x = 0; x < 10; ++x)
            picture.setPixel(x, y,
                             qRgb(mixture(x, y) & 0xff, (200 - 11 * x - 7 * y) & 0xff, x < 5 ? 0 : 180));
    // clang-format off
    const Values expected{
        0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
        0, 142, 189, 153, 239, 234, 187, 191, 0, 0,
        0, 179, 208, 216, 212, 155, 177, 0, 143, 0,
        0, 187, 198, 255, 245, 245, 0, 213, 170, 0,
        0, 144, 196, 176, 145, 143, 166, 193, 0, 0,
        0, 0, 190, 211, 224, 209, 149, 206, 185, 0,
        0, 188, 204, 166, 151, 154, 176, 187, 196, 0,
        0, 0, 171, 0, 230, 195, 177, 142, 0, 0,
        0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    // clang-format on
    QCOMPARE(valuesOf(reference::edgeMap(picture)), expected);
    QCOMPARE(valuesOf(reference::edgeMap(testpictures::paddedImage(picture, 2, 3))), expected);
    QCOMPARE(valuesOf(reference::edgeMap(picture.convertToFormat(QImage::Format_RGB888))), expected);
}

void TestReference::edgeMapFrame()
{
    const QImage picture = testpictures::stepImage(20, 12, 10, 0x000000, 0x3c3c3c);
    const std::vector<std::uint8_t> edge = reference::edgeMap(picture);
    for (int x = 0; x < 20; ++x) {
        QCOMPARE(static_cast<int>(edge.at(static_cast<std::size_t>(x))), 0);
        QCOMPARE(static_cast<int>(edge.at(static_cast<std::size_t>(11 * 20 + x))), 0);
    }
    QCOMPARE(static_cast<int>(*std::max_element(edge.begin(), edge.end())), 255);
}

// Watershed

void TestReference::luminance_data()
{
    QTest::addColumn<QRgb>("p");
    QTest::addColumn<QRgb>("q");
    QTest::addColumn<int>("expected");
    QTest::newRow("equal") << 0xff123456u << 0xff123456u << 0;
    QTest::newRow("red 0.299") << 0xff010000u << 0xff000000u << 0;
    QTest::newRow("red 76.245") << 0xffff0000u << 0xff000000u << 76;
    QTest::newRow("green 149.685") << 0xff00ff00u << 0xff000000u << 149;
    QTest::newRow("blue 29.07") << 0xff0000ffu << 0xff000000u << 29;
    QTest::newRow("mixed 1.484") << 0xff030100u << 0xff000000u << 1;
    QTest::newRow("signs cancel 0.055") << qRgb(10, 0, 0) << qRgb(0, 5, 0) << 0;
    QTest::newRow("signs cancel -0.302") << qRgb(0, 100, 7) << qRgb(200, 0, 0) << 0;
    QTest::newRow("alpha unused") << 0x00000000u << 0xff000000u << 0;
    QTest::newRow("white and black") << 0xffffffffu << 0xff000000u << 255;
    // The sum of doubles falls a hair short of these whole numbers.
    QTest::newRow("grey 1") << qRgb(1, 1, 1) << qRgb(0, 0, 0) << 0;
    QTest::newRow("grey 128") << qRgb(128, 128, 128) << qRgb(0, 0, 0) << 127;
    QTest::newRow("grey 254") << qRgb(254, 254, 254) << qRgb(0, 0, 0) << 253;
    QTest::newRow("grey 3") << qRgb(3, 3, 3) << qRgb(0, 0, 0) << 3;
}

void TestReference::luminance()
{
    QFETCH(QRgb, p);
    QFETCH(QRgb, q);
    QFETCH(int, expected);
    QCOMPARE(reference::luminanceDifference(p, q), expected);
    QCOMPARE(reference::luminanceDifference(q, p), expected);
}

void TestReference::luminanceGrey()
{
    // All grey steps whose sum of doubles falls short.
    const Values shortOnes{1,   2,   4,   8,   11,  13,  16,  22,  26,  27,  32,  39,  44,
                           51,  52,  54,  57,  59,  61,  64,  78,  81,  88,  91,  95,  101,
                           102, 104, 108, 114, 115, 118, 122, 127, 128, 143, 149, 156, 157,
                           162, 169, 175, 176, 182, 183, 190, 195, 202, 203, 204, 208, 209,
                           216, 223, 225, 228, 230, 235, 236, 239, 241, 244, 249, 251, 254};
    for (int k = 0; k < 256; ++k)
        QCOMPARE(reference::luminanceDifference(qRgb(k, k, k), qRgb(0, 0, 0)),
                 shortOnes.contains(k) ? k - 1 : k);
}

void TestReference::watershedUniform()
{
    const QImage image = testpictures::constantImage(5, 5, 0x808080);
    Values result;
    QCOMPARE(reference::watershed(image, {11}, {13}, result, noEdges(image)), 0);
    QCOMPARE(result, (Values{6, 11, 16}));
}

void TestReference::watershedFirstInFirstOut()
{
    // The pixel on the Keep side of the middle is queued first.
    const QImage image = rowPicture(Values(8, 100));
    Values result;
    QCOMPARE(reference::watershed(image, columns(8, {1}), columns(8, {6}), result, noEdges(image)), 0);
    QCOMPARE(result, columns(8, {1, 2, 3}));
    result.clear();
    QCOMPARE(reference::watershed(image, columns(8, {6}), columns(8, {1}), result, noEdges(image)), 0);
    QCOMPARE(result, columns(8, {5, 6}));
}

void TestReference::watershedRow_data()
{
    QTest::addColumn<Values>("greys");
    QTest::addColumn<Values>("edges");
    QTest::addColumn<int>("keep");
    QTest::addColumn<int>("remove");
    QTest::addColumn<Values>("expected");
    const Values flat9(9, 100);
    QTest::newRow("edge meets in between")
        << flat9 << Values{0, 0, 10, 10, 10, 200, 10, 0, 0} << 1 << 7 << Values{1, 2, 3, 4};
    QTest::newRow("edge beside the Keep seed")
        << flat9 << Values{0, 0, 200, 0, 0, 0, 0, 0, 0} << 1 << 7 << Values{1};
    QTest::newRow("cheaper levels behind an edge")
        << flat9 << Values{0, 0, 5, 200, 90, 10, 250, 0, 0} << 1 << 7 << Values{1, 2, 3, 4, 5};
    // Once all queues are empty, dearer pixels follow cheaper ones.
    const Values flat8(8, 100);
    QTest::newRow("queues run empty, Remove side")
        << flat8 << Values{0, 3, 0, 0, 7, 20, 15, 0} << 2 << 3 << Values{1, 2};
    QTest::newRow("queues run empty, Keep side")
        << flat8 << Values{0, 3, 0, 0, 7, 20, 15, 0} << 3 << 2 << Values{3, 4, 5, 6};
    const Values step{50, 50, 50, 50, 50, 150, 150};
    QTest::newRow("edge value is the cost")
        << step << Values{0, 0, 1, 0, 0, 0, 0} << 1 << 5 << Values{1, 2, 3};
    QTest::newRow("edge value replaces colour")
        << step << Values{0, 0, 101, 0, 0, 0, 0} << 1 << 5 << Values{1};
    QTest::newRow("colour alone") << step << Values(7, 0) << 1 << 5 << Values{1, 2, 3};
    QTest::newRow("seeds side by side stay") << flat8 << Values(8, 0) << 3 << 4 << Values{1, 2, 3};
}

void TestReference::watershedRow()
{
    QFETCH(Values, greys);
    QFETCH(Values, edges);
    QFETCH(int, keep);
    QFETCH(int, remove);
    QFETCH(Values, expected);
    const QImage image = rowPicture(greys);
    const int width = image.width();
    Values result;
    QCOMPARE(reference::watershed(image, columns(width, {keep}), columns(width, {remove}), result,
                                  rowEdges(edges)),
             0);
    QCOMPARE(result, columns(width, expected));
}

void TestReference::watershedStepDownUsesRightNeighbour()
{
    // One free column; the frame pixel right of (1, 2) is bright, which makes
    // the step down from there dear and lets Remove come up to (1, 4).
    QImage image = testpictures::constantImage(3, 9, 0x646464);
    image.setPixel(2, 2, 0xffffffff);
    Values result;
    QCOMPARE(reference::watershed(image, {3 * 1 + 1}, {3 * 7 + 1}, result, noEdges(image)), 0);
    QCOMPARE(result, (Values{3 * 1 + 1, 3 * 2 + 1}));

    // Upwards and in the flat picture there is nothing to replace.
    image.setPixel(2, 2, 0xff646464);
    result.clear();
    QCOMPARE(reference::watershed(image, {3 * 1 + 1}, {3 * 7 + 1}, result, noEdges(image)), 0);
    QCOMPARE(result, (Values{3 * 1 + 1, 3 * 2 + 1, 3 * 3 + 1}));
}

void TestReference::watershedColorCosts()
{
    // Blue 255 costs 29 on the Keep side, red 150 costs 44 on the Remove side.
    QImage image = testpictures::constantImage(6, 3, 0);
    image.setPixel(2, 1, 0xff0000ff);
    image.setPixel(3, 1, 0xff960000);
    Values result;
    QCOMPARE(reference::watershed(image, columns(6, {1}), columns(6, {4}), result, noEdges(image)), 0);
    QCOMPARE(result, columns(6, {1, 2}));
    Lists regions{{}};
    QCOMPARE(reference::watershedMany(image, {{10}, {7}}, regions, noEdges(image)), 2);
    QCOMPARE(regions, (Lists{{}, columns(6, {4}), columns(6, {1, 2})}));

    // Green 80 costs 46: now the red pixel is the cheaper one.
    image.setPixel(2, 1, 0xff005000);
    result.clear();
    QCOMPARE(reference::watershed(image, columns(6, {1}), columns(6, {4}), result, noEdges(image)), 0);
    QCOMPARE(result, columns(6, {1}));
}

void TestReference::watershedEnclosed()
{
    const QImage image = testpictures::constantImage(9, 9, 0x336699);
    std::vector<std::uint8_t> edges(81, 0);
    for (int i = 2; i <= 6; ++i)
        for (const int index : {9 * 2 + i, 9 * 6 + i, 9 * i + 2, 9 * i + 6})
            edges.at(static_cast<std::size_t>(index)) = 255;
    Values result;
    QCOMPARE(reference::watershed(image, {40}, {10}, result, edges), 0);
    QCOMPARE(result, (Values{30, 31, 32, 39, 40, 41, 48, 49, 50}));
}

void TestReference::watershedNothingDone_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<Values>("keep");
    QTest::addColumn<Values>("remove");
    QTest::newRow("no Keep seed") << QSize(5, 5) << Values{} << Values{12};
    QTest::newRow("no Remove seed") << QSize(5, 5) << Values{12} << Values{};
    QTest::newRow("all seeds on the frame") << QSize(5, 5) << Values{0, 9} << Values{24, 20};
    QTest::newRow("no free pixel") << QSize(4, 3) << Values{5} << Values{6};
    QTest::newRow("no interior") << QSize(2, 2) << Values{0} << Values{3};
    QTest::newRow("one pixel") << QSize(1, 1) << Values{0} << Values{0};
    QTest::newRow("no seed in the picture") << QSize(5, 5) << Values{-1} << Values{25};
}

void TestReference::watershedNothingDone()
{
    QFETCH(QSize, size);
    QFETCH(Values, keep);
    QFETCH(Values, remove);
    const QImage image = testpictures::constantImage(size.width(), size.height(), 0x808080);
    Values result{7};
    QCOMPARE(reference::watershed(image, keep, remove, result, noEdges(image)), -1);
    QCOMPARE(result, Values{7});
}

void TestReference::watershedAppends()
{
    const QImage image = testpictures::constantImage(5, 5, 0x808080);
    Values result{99};
    QCOMPARE(reference::watershed(image, {11, 11}, {13, 13, 13}, result, noEdges(image)), 0);
    QCOMPARE(result, (Values{99, 6, 11, 16}));
}

void TestReference::watershedSeedInBothLists()
{
    const QImage image = testpictures::constantImage(5, 5, 0x808080);
    Values result;
    QCOMPARE(reference::watershed(image, {11, 13}, {13}, result, noEdges(image)), 0);
    QCOMPARE(result, (Values{6, 11, 16}));
}

void TestReference::watershedSeedsOutside()
{
    const QImage image = testpictures::constantImage(5, 5, 0x808080);
    Values result;
    QCOMPARE(reference::watershed(image, {-3, -1000, 11, 25, std::numeric_limits<int>::max()},
                                  {std::numeric_limits<int>::min(), 13, 26}, result, noEdges(image)),
             0);
    QCOMPARE(result, (Values{6, 11, 16}));
}

void TestReference::watershedFrameSeedCountsForNothing()
{
    const QImage image = testpictures::constantImage(5, 5, 0x808080);
    Values result;
    QCOMPARE(reference::watershed(image, {0, 10, 14, 22}, {12}, result, noEdges(image)), 0);
    QCOMPARE(result, Values{});
}

void TestReference::watershedPadded()
{
    for (const std::uint32_t seed : {1u, 2u, 3u}) {
        const QImage image = testpictures::randomImage(17, 13, seed);
        const QImage padded = testpictures::paddedImage(image, 5, seed + 100);
        const std::vector<std::uint8_t> edges = testpictures::sparsePlane(17, 13, 3, seed);
        Values packedResult;
        Values paddedResult;
        QCOMPARE(reference::watershed(image, {40, 41}, {150, 160}, packedResult, edges), 0);
        QCOMPARE(reference::watershed(padded, {40, 41}, {150, 160}, paddedResult, edges), 0);
        QVERIFY(packedResult.size() > 2);
        QCOMPARE(paddedResult, packedResult);
        // Two lists flooded by the many-region form on a map without edges
        // take the same way.
        Lists regions{{}};
        packedResult.clear();
        QCOMPARE(reference::watershed(image, {40, 41}, {150, 160}, packedResult, noEdges(image)), 0);
        QCOMPARE(reference::watershedMany(padded, {{40, 41}, {150, 160}}, regions, noEdges(image)), 2);
        QCOMPARE(regions.at(1), packedResult);
    }
}

void TestReference::manyOneRegion()
{
    const QImage image = testpictures::randomImage(5, 5, 7);
    Lists regions{{}};
    QCOMPARE(reference::watershedMany(image, {{12}}, regions, testpictures::randomPlane(5, 5, 8)), 1);
    QCOMPARE(regions, (Lists{{}, {6, 7, 8, 11, 12, 13, 16, 17, 18}}));
}

void TestReference::manyThreeRegions()
{
    const QImage image = testpictures::randomImage(5, 5, 7);
    Lists regions{{}};
    QCOMPARE(
        reference::watershedMany(image, {{11}, {13}, {7}}, regions, testpictures::constantPlane(5, 5, 1)), 3);
    QCOMPARE(regions, (Lists{{}, {11, 16}, {13, 18}, {7}}));
}

void TestReference::manyRisingCosts()
{
    // Each pixel waits alone and on a higher level than the one before.
    const QImage image = rowPicture({0, 0, 5, 20, 50, 100, 180, 0});
    Lists regions{{}};
    QCOMPARE(reference::watershedMany(image, {{9}}, regions, noEdges(image)), 1);
    QCOMPARE(regions, (Lists{{}, columns(8, {1, 2, 3, 4, 5, 6})}));
}

void TestReference::manyLaterListWins()
{
    const QImage image = testpictures::constantImage(5, 5, 0x808080);
    Lists regions{{3}};
    QCOMPARE(reference::watershedMany(image, {{12}, {12, -1, 25}, {}}, regions, noEdges(image)), 3);
    QCOMPARE(regions, (Lists{{3}, {}, {6, 7, 8, 11, 12, 13, 16, 17, 18}, {}}));
}

void TestReference::manyEdgesCostTheMost()
{
    // The two-region form lets the first region pass here, since 1 is cheap.
    const QImage image = rowPicture({50, 50, 50, 50, 50, 150, 150});
    Lists regions{{}};
    QCOMPARE(reference::watershedMany(image, {{8}, {12}}, regions, rowEdges({0, 0, 1, 0, 0, 0, 0})), 2);
    QCOMPARE(regions, (Lists{{}, {8}, {10, 11, 12}}));
}

void TestReference::manyNothingDone()
{
    const QImage image = testpictures::constantImage(5, 5, 0x808080);
    const Lists before{{4}};
    Lists regions = before;
    QCOMPARE(reference::watershedMany(image, {}, regions, noEdges(image)), -1);
    QCOMPARE(regions, before);
    QCOMPARE(reference::watershedMany(image, {{}, {}}, regions, noEdges(image)), -1);
    QCOMPARE(regions, before);
    QCOMPARE(reference::watershedMany(image, {{0}, {24}}, regions, noEdges(image)), -1);
    QCOMPARE(regions, before);
}

void TestReference::manyWithoutFirstList()
{
    const QImage image = testpictures::constantImage(5, 5, 0x808080);
    Lists regions;
    QCOMPARE(reference::watershedMany(image, {{11}, {13}}, regions, noEdges(image)), 2);
    QCOMPARE(regions, (Lists{{}, {6, 11, 16}}));
}

// Wave segmentation

void TestReference::waveThresholdZero()
{
    for (const int threshold : {0, -5}) {
        Lists regions{{42}};
        QCOMPARE(reference::waveSegment(testpictures::constantImage(3, 2, 0), regions, threshold), 0);
        QCOMPARE(regions, (Lists{{42}, {0}, {1}, {2}, {3}, {4}, {5}}));
    }
}

void TestReference::waveConstant()
{
    Lists regions;
    QCOMPARE(reference::waveSegment(testpictures::constantImage(3, 2, 0x102030), regions, 1), 0);
    QCOMPARE(regions, (Lists{{0, 1, 3, 0, 2, 4, 5}}));
    regions.clear();
    QCOMPARE(reference::waveSegment(testpictures::constantImage(1, 1, 0), regions, 1), 0);
    QCOMPARE(regions, (Lists{{0}}));
}

void TestReference::waveSingleColumn()
{
    // The pixel below the start never steps up, so the start comes only once.
    Lists regions;
    QCOMPARE(reference::waveSegment(testpictures::constantImage(1, 3, 0x102030), regions, 1), 0);
    QCOMPARE(regions, (Lists{{0, 1, 2}}));
}

void TestReference::waveRamp()
{
    // To the right each channel steps by -1, which is 255; to the left by 1.
    const QImage ramp = testpictures::greyImage(4, 1, testpictures::rampPlane(4, 1, 10, 1));
    Lists regions;
    reference::waveSegment(ramp, regions, 4);
    QCOMPARE(regions, (Lists{{0}, {1, 0}, {2, 1}, {3, 2}}));
    regions.clear();
    reference::waveSegment(ramp, regions, 3);
    QCOMPARE(regions, (Lists{{0}, {1}, {2}, {3}}));
    // 765 is below 766: now the right is open as well.
    regions.clear();
    reference::waveSegment(ramp, regions, 766);
    QCOMPARE(regions, (Lists{{0, 1, 0, 2, 3}}));
}

void TestReference::waveIgnoresFourthByteAndPadding()
{
    QImage image(3, 2, QImage::Format_ARGB32);
    for (int i = 0; i < 6; ++i)
        image.setPixel(i % 3, i / 3, qRgba(1, 2, 3, 40 * i));
    Lists regions;
    QCOMPARE(reference::waveSegment(testpictures::paddedImage(image, 4, 9), regions, 1), 0);
    QCOMPARE(regions, (Lists{{0, 1, 3, 0, 2, 4, 5}}));
}

void TestReference::wavePredicates()
{
    for (int value = 0; value < 256; ++value) {
        QCOMPARE(reference::isBlack(static_cast<unsigned char>(value)), value == 0);
        QCOMPARE(reference::isWhite(static_cast<unsigned char>(value)), value == 255);
    }
}

// Feathering

void TestReference::featherRow_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<Values>("expected");
    // clang-format off
    const Values onlyFirst{
        9, 9, 9, 9, 9, 9, 9, 9,
        9, 9, 9, 0, 9, 9, 9, 9,
        9, 9, 9, 9, 9, 9, 9, 9};
    const Values all{
        9, 9, 9, 9, 100, 180, 9, 9,
        9, 9, 9, 0, 0, 100, 180, 9,
        9, 9, 9, 9, 100, 180, 9, 9};
    QTest::newRow("no further ring") << 0 << onlyFirst;
    QTest::newRow("negative count") << -1 << onlyFirst;
    QTest::newRow("one further ring") << 1 << Values{
        9, 9, 9, 9, 9, 9, 9, 9,
        9, 9, 9, 0, 0, 9, 9, 9,
        9, 9, 9, 9, 9, 9, 9, 9};
    QTest::newRow("two further rings") << 2 << Values{
        9, 9, 9, 9, 100, 9, 9, 9,
        9, 9, 9, 0, 0, 100, 9, 9,
        9, 9, 9, 9, 100, 9, 9, 9};
    QTest::newRow("full fade") << 3 << all;
    QTest::newRow("more rings change nothing") << 20 << all;
    QTest::newRow("largest count") << std::numeric_limits<int>::max() << all;
    // clang-format on
}

void TestReference::featherRow()
{
    QFETCH(int, count);
    QFETCH(Values, expected);
    QImage picture = argb(8, 3, 0x09112233u);
    reference::featherWithMaskImage(picture, maskFromRows({"    ####", "    ####", "    ####"}), count);
    QCOMPARE(alphas(picture), expected);
    QCOMPARE(picture.pixel(3, 1) & 0xffffffu, 0x112233u);

    QBitmap bitmap(8, 3);
    bitmap.fill(Qt::color0);
    QPainter painter(&bitmap);
    painter.fillRect(4, 0, 4, 3, Qt::color1);
    painter.end();
    QImage second = argb(8, 3, 0x09112233u);
    reference::feather(second, bitmap, count);
    QCOMPARE(alphas(second), expected);
}

void TestReference::featherDownLooksUp()
{
    // Black lies above only, yet the walk takes white pixels below.
    QImage picture = argb(3, 5, 0x09112233u);
    reference::featherWithMaskImage(picture, maskFromRows({"###", "###", "   ", "   ", "   "}), 3);
    // clang-format off
    QCOMPARE(alphas(picture), (Values{
        180, 100, 180,
        100, 0, 100,
        180, 0, 180,
        9, 0, 9,
        9, 9, 9}));
    // clang-format on
}

void TestReference::featherAboveFirstRow()
{
    QImage picture = argb(5, 4, 0x09112233u);
    reference::featherWithMaskImage(picture, maskFromRows({"#####", "     ", "     ", "     "}), 3);
    // clang-format off
    QCOMPARE(alphas(picture), (Values{
        100, 0, 0, 0, 100,
        9, 0, 0, 0, 9,
        9, 0, 0, 0, 9,
        9, 9, 9, 9, 9}));
    // clang-format on
}

void TestReference::featherFirstOfSecondRow()
{
    // The first pixel of the second row never steps up.
    QImage picture = argb(4, 3, 0x09112233u);
    reference::featherWithMaskImage(picture, maskFromRows({"#   ", "#   ", "    "}), 3);
    // clang-format off
    QCOMPARE(alphas(picture), (Values{
        9, 9, 9, 9,
        0, 0, 9, 9,
        100, 9, 9, 9}));
    // clang-format on
}

void TestReference::featherPlainMask_data()
{
    QTest::addColumn<QRgb>("color");
    QTest::newRow("no black pixel") << 0xffffffffu;
    QTest::newRow("no white pixel") << 0xff000000u;
    QTest::newRow("neither") << 0xff808080u;
}

void TestReference::featherPlainMask()
{
    QFETCH(QRgb, color);
    QImage picture = argb(6, 5, 0x55112233u);
    reference::featherWithMaskImage(picture, argb(6, 5, color), 3);
    QCOMPARE(picture, argb(6, 5, 0x55112233u));
}

void TestReference::featherPaddedPicture()
{
    QImage picture = testpictures::paddedImage(argb(8, 3, 0x09112233u), 3, 4);
    reference::featherWithMaskImage(picture, maskFromRows({"    ####", "    ####", "    ####"}), 3);
    // clang-format off
    QCOMPARE(alphas(picture), (Values{
        9, 9, 9, 9, 100, 180, 9, 9,
        9, 9, 9, 0, 0, 100, 180, 9,
        9, 9, 9, 9, 100, 180, 9, 9}));
    // clang-format on
    QVERIFY(testpictures::paddingUntouched(picture, 4));
}

// Mask, brushes, background and export

void TestReference::seedSquare_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<Values>("expected");
    // In a picture of 5 x 4.
    QTest::newRow("inside") << QRectF(2, 1, 2, 2) << Values{7, 12, 8, 13};
    QTest::newRow("past the right edge") << QRectF(4, 1, 3, 3) << Values{9, 14, 19};
    QTest::newRow("past the bottom edge") << QRectF(1, 3, 2, 2) << Values{16, 17};
    QTest::newRow("coordinates are truncated") << QRectF(-0.9, 1.7, 2.9, 2.9) << Values{5, 10, 6, 11};
    QTest::newRow("height is not read") << QRectF(2, 1, 2, 99) << Values{7, 12, 8, 13};
    QTest::newRow("left of the picture")
        << QRectF(-3, 1, 4, 4) << Values{2, 7, 12, 3, 8, 13, 4, 9, 14, 5, 10, 15};
    QTest::newRow("left of the first row") << QRectF(-1, 0, 1, 1) << Values{-1};
    QTest::newRow("above the picture") << QRectF(1, -1, 2, 2) << Values{-4, 1, -3, 2};
    QTest::newRow("begins at the right edge") << QRectF(5, 1, 2, 2) << Values{};
    QTest::newRow("begins right of the picture") << QRectF(6, 1, 2, 2) << Values{};
    QTest::newRow("begins at the bottom edge") << QRectF(1, 4, 2, 2) << Values{};
    QTest::newRow("begins below the picture") << QRectF(1, 5, 2, 2) << Values{};
    QTest::newRow("no width") << QRectF(1, 1, 0.99, 5) << Values{};
    QTest::newRow("negative width") << QRectF(1, 1, -2, 5) << Values{};
}

void TestReference::seedSquare()
{
    QFETCH(QRectF, rect);
    QFETCH(Values, expected);
    QCOMPARE(reference::seedSquare(rect, 5, 4), expected);
}

void TestReference::markers()
{
    const QList<reference::Marker> items{
        {3, QColor(50, 255, 50, 255), QRectF(0, 0, 1, 1)}, {3, QColor(10, 10, 255, 255), QRectF(1, 0, 1, 1)},
        {4, QColor(255, 10, 10, 255), QRectF(2, 0, 1, 1)}, {4, QColor(10, 10, 255, 255), QRectF(3, 0, 1, 1)},
        {4, QColor(10, 10, 254, 255), QRectF(4, 0, 1, 1)}, {4, QColor(50, 255, 50, 255), QRectF(0, 1, 1, 1)},
        {7, QColor(255, 10, 10, 255), QRectF(1, 1, 1, 1)}, {4, QColor(10, 10, 255, 254), QRectF(2, 1, 1, 1)},
        {3, QColor(50, 255, 50, 255), QRectF(0, 0, 1, 1)},
    };
    const reference::Seeds seeds = reference::collectSeeds(items, 5, 4);
    QCOMPARE(seeds.keep, (Values{0, 1, 0}));
    QCOMPARE(seeds.remove, (Values{2, 4, 5, 7}));
    QCOMPARE(seeds.blue, (Values{3}));
}

void TestReference::overlay()
{
    const Values indices{0, 6, 6, 14};
    const QImage image = reference::overlayImage(indices, 5, 3);
    QCOMPARE(image.format(), QImage::Format_RGB32);
    QCOMPARE(image.size(), QSize(5, 3));
    for (int i = 0; i < 15; ++i)
        QCOMPARE(image.pixel(i % 5, i / 5), indices.contains(i) ? 0xff00ff00u : 0xffffffffu);
    QVERIFY(reference::overlayImage({}, 0, 0).isNull());
}

void TestReference::hardMask()
{
    const Values indices{1, 7, 13};
    const QImage image = reference::maskImage(indices, 5, 3, false, 5);
    QCOMPARE(image.format(), QImage::Format_RGB32);
    for (int i = 0; i < 15; ++i)
        QCOMPARE(image.constScanLine(i / 5)[4 * (i % 5)], static_cast<uchar>(indices.contains(i) ? 0 : 255));
}

void TestReference::smoothMask()
{
    Values indices;
    for (int y = 0; y < 9; ++y)
        for (int x = 3; x <= 5; ++x)
            indices.append(9 * y + x);
    const QImage image = reference::maskImage(indices, 9, 9, true, 5);
    const Values hard{255, 255, 255, 0, 0, 0, 255, 255, 255};
    const Values soft{255, 255, 165, 86, 55, 86, 165, 255, 255};
    for (int y = 0; y < 9; ++y) {
        for (int x = 0; x < 9; ++x) {
            const uchar *pixel = image.constScanLine(y) + 4 * x;
            const int expected = y < 2 || y > 6 ? hard.at(x) : soft.at(x);
            QCOMPARE(static_cast<int>(pixel[0]), expected);
            QCOMPARE(static_cast<int>(pixel[1]), expected);
            QCOMPARE(static_cast<int>(pixel[2]), expected);
        }
    }
    // The fourth byte is a constant 255 and is smoothed like the colours: up
    // to one level is lost across and one for each of three steps down.
    const int fourth = image.constScanLine(4)[4 * 4 + 3];
    QVERIFY(fourth < 255);
    QVERIFY(fourth >= 251);
    QCOMPARE(static_cast<int>(image.constScanLine(1)[4 * 4 + 3]), 255);
}

void TestReference::cutOutAlpha()
{
    QImage photo(3, 1, QImage::Format_RGB32);
    photo.setPixel(0, 0, 0xff102030);
    photo.setPixel(1, 0, 0xff405060);
    photo.setPixel(2, 0, 0xff708090);
    QImage mask(3, 1, QImage::Format_RGB32);
    mask.setPixel(0, 0, qRgb(0, 0, 0));
    mask.setPixel(1, 0, qRgb(7, 8, 128));
    mask.setPixel(2, 0, qRgb(255, 255, 255));
    const QImage result = reference::cutOut(QPixmap::fromImage(photo), mask);
    QCOMPARE(result.format(), QImage::Format_ARGB32);
    QCOMPARE(result.pixel(0, 0), 0xff102030u);
    QCOMPARE(result.pixel(1, 0), 0x7f405060u);
    QCOMPARE(result.pixel(2, 0), 0x00708090u);
}

void TestReference::brushAlpha_data()
{
    QTest::addColumn<bool>("keep");
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("intensity");
    QTest::addColumn<int>("after");
    QTest::newRow("raised to the limit") << true << 200 << 150 << 255;
    QTest::newRow("raised") << true << 20 << 150 << 170;
    QTest::newRow("raised exactly to 255") << true << 105 << 150 << 255;
    QTest::newRow("lowered to the limit") << false << 50 << 100 << 0;
    QTest::newRow("lowered") << false << 250 << 100 << 150;
    QTest::newRow("lowered exactly to 0") << false << 100 << 100 << 0;
    QTest::newRow("no intensity") << true << 77 << 0 << 77;
    QTest::newRow("full intensity") << false << 255 << 255 << 0;
}

void TestReference::brushAlpha()
{
    QFETCH(bool, keep);
    QFETCH(int, before);
    QFETCH(int, intensity);
    QFETCH(int, after);
    const QImage original = argb(20, 20, qRgba(11, 22, 33, before));
    QImage preview = original;
    const reference::BrushBatch batch =
        reference::applyBrush(preview, {QRect(4, 5, 9, 9)}, QPoint(0, 0),
                              keep ? reference::Brush::Keep : reference::Brush::Remove, intensity);
    QCOMPARE(preview.pixel(8, 9), qRgba(11, 22, 33, after));
    QCOMPARE(preview.pixel(6, 9), qRgba(11, 22, 33, after));
    // Corners of the square and what lies outside stay.
    QCOMPARE(preview.pixel(4, 5), qRgba(11, 22, 33, before));
    QCOMPARE(preview.pixel(12, 13), qRgba(11, 22, 33, before));
    QCOMPARE(preview.pixel(15, 9), qRgba(11, 22, 33, before));
    QCOMPARE(batch.box, QRect(4, 5, 9, 9));
    QCOMPARE(batch.before, original.copy(4, 5, 9, 9));
}

void TestReference::brushOverlapCountsOnce()
{
    QImage preview = argb(40, 20, qRgba(1, 2, 3, 10));
    const reference::BrushBatch batch =
        reference::applyBrush(preview, {QRect(2, 2, 12, 12), QRect(6, 2, 12, 12), QRect(2, 2, 12, 12)},
                              QPoint(0, 0), reference::Brush::Keep, 20);
    int changed = 0;
    for (const int alpha : alphas(preview)) {
        QVERIFY(alpha == 10 || alpha == 30);
        changed += alpha == 30;
    }
    // Two discs of radius 6 whose centres are 4 apart cover 160.7.
    QVERIFY(changed > 140 && changed < 180);
    QCOMPARE(qAlpha(preview.pixel(10, 8)), 30);
    QCOMPARE(batch.box, QRect(2, 2, 16, 12));

    // A second batch counts again.
    reference::applyBrush(preview, {QRect(2, 2, 12, 12)}, QPoint(0, 0), reference::Brush::Keep, 20);
    QCOMPARE(qAlpha(preview.pixel(8, 8)), 50);
    QCOMPARE(qAlpha(preview.pixel(16, 8)), 30);
}

void TestReference::brushLeavesLastSquareOut()
{
    // Only on request, and in scene coordinates: the square is not moved by
    // the offset that the dab is moved by.
    const QRect last(8, 0, 4, 20);
    for (const bool skip : {true, false}) {
        QImage preview = argb(20, 20, qRgba(1, 2, 3, 10));
        const reference::BrushBatch batch = reference::applyBrush(
            preview, {QRect(6, 4, 12, 12)}, QPoint(2, 0), reference::Brush::Keep, 20, skip, last);
        QCOMPARE(qAlpha(preview.pixel(7, 10)), 30);
        QCOMPARE(qAlpha(preview.pixel(8, 10)), skip ? 30 : 10);
        QCOMPARE(qAlpha(preview.pixel(11, 10)), skip ? 30 : 10);
        QCOMPARE(qAlpha(preview.pixel(12, 10)), 30);
        QCOMPARE(batch.box, QRect(4, 4, 12, 12));
    }
}

void TestReference::brushStaysInPicture()
{
    // Qt warns of pixels outside of an image.
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    const QImage original = argb(10, 10, qRgba(1, 2, 3, 200));
    QImage preview = original;
    const reference::BrushBatch batch = reference::applyBrush(
        preview, {QRect(-6, -6, 12, 12), QRect(50, 50, 5, 5)}, QPoint(0, 0), reference::Brush::Remove, 100);
    QCOMPARE(qAlpha(preview.pixel(0, 0)), 100);
    QCOMPARE(qAlpha(preview.pixel(3, 3)), 100);
    QCOMPARE(qAlpha(preview.pixel(9, 9)), 200);
    QCOMPARE(batch.box, QRect(-6, -6, 61, 61));
    QCOMPARE(batch.before.size(), QSize(61, 61));
    QCOMPARE(batch.before.pixel(6, 6), original.pixel(0, 0));
    QCOMPARE(batch.before.pixel(5, 5), 0u);

    QImage outside = original;
    reference::applyBrush(outside, {QRect(30, 0, 8, 8)}, QPoint(0, 0), reference::Brush::Remove, 100);
    QCOMPARE(outside, original);
}

void TestReference::brushOffset()
{
    QImage preview = argb(150, 150, qRgba(1, 2, 3, 0));
    const reference::BrushBatch batch = reference::applyBrush(preview, {QRect(100, 100, 20, 20)},
                                                              QPoint(30, -10), reference::Brush::Keep, 255);
    QCOMPARE(batch.box, QRect(70, 110, 20, 20));
    int changed = 0;
    for (int y = 0; y < 150; ++y) {
        for (int x = 0; x < 150; ++x) {
            if (qAlpha(preview.pixel(x, y)) == 0)
                continue;
            ++changed;
            QVERIFY(QRect(70, 110, 20, 20).contains(x, y));
        }
    }
    // A disc of radius 10 covers 314.
    QVERIFY(changed > 290 && changed < 340);
    QCOMPARE(qAlpha(preview.pixel(80, 120)), 255);
}

void TestReference::backgroundColors()
{
    QImage checkerboard(2, 2, QImage::Format_RGB32);
    checkerboard.setPixel(0, 0, 0xffffffff);
    checkerboard.setPixel(1, 0, 0xff808080);
    checkerboard.setPixel(0, 1, 0xff808080);
    checkerboard.setPixel(1, 1, 0xffffffff);

    const QImage white = reference::backgroundLayer(0xffffffff, QImage(), checkerboard, 6, 4).toImage();
    const QImage open = reference::backgroundLayer(0x00000000, QImage(), checkerboard, 6, 4).toImage();
    const QImage tinted = reference::backgroundLayer(0x80ff0000, QImage(), checkerboard, 6, 4).toImage();
    QCOMPARE(white.size(), QSize(6, 4));
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 6; ++x) {
            const QRgb square = (x < 3) == (y < 2) ? 0xffffffffu : 0xff808080u;
            QCOMPARE(white.pixel(x, y), 0xffffffffu);
            QCOMPARE(open.pixel(x, y), square);
            // 128 / 255 of red over what remains of the checkerboard.
            const QRgb pixel = tinted.pixel(x, y);
            QCOMPARE(qAlpha(pixel), 255);
            QVERIFY(std::abs(qRed(pixel) - (128 * 255 + 127 * qRed(square)) / 255) <= 1);
            QVERIFY(std::abs(qGreen(pixel) - 127 * qGreen(square) / 255) <= 1);
        }
    }
    QTest::ignoreMessage(QtWarningMsg, "QImage::scaled: Image is a null image");
    QVERIFY(reference::backgroundLayer(0xffffffff, QImage(), QImage(), 6, 4).isNull());
}

void TestReference::backgroundPicture()
{
    const QImage checkerboard = argb(2, 2, 0xffffffff);
    const QImage picture = testpictures::constantImage(200, 100, 0x204060);
    const QPixmap layer = reference::backgroundLayer(0xffff0000, picture, checkerboard, 50, 50);
    QCOMPARE(layer.size(), QSize(50, 25));
    QCOMPARE(layer.toImage().pixel(25, 12), 0xff204060u);
}

namespace {

reference::ExportSource plainSource(QRgb backgroundColor)
{
    reference::ExportSource source;
    source.backgroundColor = backgroundColor;
    source.backgroundPixmap = QPixmap::fromImage(argb(4, 3, 0xff0000ff));
    source.backgroundExtent = QSizeF(4, 3);
    source.previewImage = argb(4, 3, 0x00000000);
    source.previewImage.setPixel(1, 1, 0xffff0000);
    source.previewOffset = QPoint(1, -1);
    return source;
}

} // namespace

void TestReference::exportPlain()
{
    const QImage result = reference::exportComposition(plainSource(0xffffffff), 4, 3).toImage();
    QCOMPARE(result.size(), QSize(4, 3));
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 4; ++x)
            QCOMPARE(result.pixel(x, y), x == 2 && y == 0 ? 0xffff0000u : 0xffffffffu);
}

void TestReference::exportTransparent()
{
    const QImage result = reference::exportComposition(plainSource(0x00000000), 4, 3).toImage();
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 4; ++x)
            QCOMPARE(result.pixel(x, y), x == 2 && y == 0 ? 0xffff0000u : 0x00000000u);
}

void TestReference::exportZoomed()
{
    // The background item is zoomed twice, so it measures 110 x 55 and the
    // object shrinks to 90 x 45 and moves from (23, 12) to (20, 10).
    reference::ExportSource source;
    source.backgroundImage = testpictures::constantImage(100, 50, 0x00ff00);
    source.backgroundPixmap = QPixmap::fromImage(source.backgroundImage);
    source.backgroundExtent = QSizeF(100, 50);
    source.m11 = 1.1025;
    source.m22 = 1.1025;
    source.previewImage = argb(100, 50, 0xffff0000);
    const auto redRect = [&source]() {
        const QImage result = reference::exportComposition(source, 100, 50).toImage();
        QRect rect;
        for (int y = 0; y < result.height(); ++y)
            for (int x = 0; x < result.width(); ++x)
                if (qRed(result.pixel(x, y)) >= 128)
                    rect |= QRect(x, y, 1, 1);
        return rect;
    };
    QCOMPARE(redRect(), QRect(0, 0, 90, 45));
    source.previewOffset = QPoint(23, 12);
    QCOMPARE(redRect(), QRect(20, 10, 80, 40));
    // Truncated toward zero on the other side too.
    source.previewOffset = QPoint(-23, -12);
    QCOMPARE(redRect(), QRect(0, 0, 70, 35));
}

void TestReference::exportWithoutExtent()
{
    reference::ExportSource source = plainSource(0xffffffff);
    source.m11 = 0.2;
    QVERIFY(reference::exportComposition(source, 4, 3).isNull());
    source = plainSource(0xffffffff);
    source.backgroundExtent = QSizeF(0, 0);
    QVERIFY(reference::exportComposition(source, 4, 3).isNull());
}

void TestReference::exportHeight_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<float>("aspect");
    QTest::addColumn<int>("height");
    QTest::newRow("exact") << 1000 << 0.75f << 750;
    QTest::newRow("truncated") << 333 << 0.75f << 249;
    // 0.7f lies below 0.7: the product is 6.9999999, which single precision
    // rounds up to 7 before it is truncated.
    QTest::newRow("single precision") << 10 << 0.7f << 7;
    QTest::newRow("nothing") << 0 << 0.75f << 0;
}

void TestReference::exportHeight()
{
    QFETCH(int, width);
    QFETCH(float, aspect);
    QFETCH(int, height);
    QCOMPARE(reference::exportHeight(width, aspect), height);
}

void TestReference::exportWarning_data()
{
    QTest::addColumn<QRgb>("color");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<bool>("expected");
    QTest::newRow("transparent jpg") << 0x00000000u << "jpg" << true;
    QTest::newRow("nearly opaque JPEG") << 0xfeffffffu << "JPEG" << true;
    QTest::newRow("opaque jpg") << 0xffffffffu << "jpg" << false;
    QTest::newRow("transparent png") << 0x00000000u << "png" << false;
    QTest::newRow("mixed case") << 0x10000000u << "JpEg" << true;
    QTest::newRow("no suffix") << 0x10000000u << "" << false;
}

void TestReference::exportWarning()
{
    QFETCH(QRgb, color);
    QFETCH(QString, suffix);
    QFETCH(bool, expected);
    QCOMPARE(reference::losesTransparency(color, suffix), expected);
}

// What holds at every size

void TestReference::everySizeSegments_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize &size : testpictures::awkwardSizes())
        QTest::addRow("%d x %d", size.width(), size.height()) << size;
}

void TestReference::everySizeSegments()
{
    QFETCH(QSize, size);
    const int width = size.width();
    const int height = size.height();
    const int pixels = width * height;
    const QImage image = testpictures::blobImage(width, height, 1);
    const std::vector<std::uint8_t> edges = reference::edgeMap(image);
    QCOMPARE(static_cast<int>(edges.size()), pixels);
    QCOMPARE(static_cast<int>(*std::max_element(edges.begin(), edges.end())), 255);

    // Every region lies in the interior, in increasing order, and no pixel is
    // in two of them.
    const Values first = testpictures::randomIndices(width, height, 3, 2);
    const Values second = testpictures::randomIndices(width, height, 4, 3);
    const Values third = testpictures::randomIndices(width, height, 2, 4);
    const auto interior = [width, height](int index) {
        const int x = index % width;
        const int y = index / width;
        return x > 0 && y > 0 && x < width - 1 && y < height - 1;
    };
    const auto check = [&interior](const Values &region) {
        for (int i = 0; i < region.size(); ++i)
            if (!interior(region.at(i)) || (i > 0 && region.at(i) <= region.at(i - 1)))
                return false;
        return true;
    };
    Values keep;
    const int done = reference::watershed(image, first, second, keep, edges);
    QVERIFY(check(keep));
    if (done == 0) {
        for (const int index : first)
            QCOMPARE(keep.contains(index), interior(index) && !second.contains(index));
    } else {
        QCOMPARE(done, -1);
        QVERIFY(keep.isEmpty());
    }

    Lists regions{{}};
    const std::vector<std::vector<int>> seeds{
        {first.begin(), first.end()}, {second.begin(), second.end()}, {third.begin(), third.end()}};
    const int count = reference::watershedMany(image, seeds, regions, edges);
    QVERIFY(count == 3 || count == -1);
    QCOMPARE(static_cast<int>(regions.size()), count == 3 ? 4 : 1);
    Values owners(pixels, 0);
    for (const Values &region : regions) {
        QVERIFY(check(region));
        for (const int index : region)
            QCOMPARE(++owners[index], 1);
    }

    // Every pixel is in some wave region; only starts can occur twice.
    Lists waves;
    reference::waveSegment(image, waves, 60);
    Values found(pixels, 0);
    for (const Values &region : waves)
        for (const int index : region)
            ++found[index];
    for (const int times : found)
        QVERIFY(times == 1 || times == 2);

    // Feathering changes no colour and sets only its three alphas.
    QImage picture = argb(width, height, 0x09112233u);
    reference::featherWithMaskImage(picture, testpictures::blobMaskImage(width, height, 5), 4);
    for (int i = 0; i < pixels; ++i) {
        const QRgb pixel = picture.pixel(i % width, i / width);
        QCOMPARE(pixel & 0xffffffu, 0x112233u);
        QVERIFY((Values{9, 0, 100, 180}.contains(qAlpha(pixel))));
    }
}

// Test pictures

void TestReference::randomIsPortable()
{
    // The standard fixes the ten thousandth number of this generator.
    testpictures::Random random(5489);
    for (int i = 1; i < 10000; ++i)
        random.next();
    QCOMPARE(random.next(), 4123659995u);
    QVERIFY(testpictures::randomPlane(9, 7, 1) == testpictures::randomPlane(9, 7, 1));
    QVERIFY(testpictures::randomPlane(9, 7, 1) != testpictures::randomPlane(9, 7, 2));
}

void TestReference::paddedPicture()
{
    const QImage image = testpictures::randomArgbImage(6, 4, 3);
    QImage padded = testpictures::paddedImage(image, 2, 8);
    QCOMPARE(static_cast<int>(padded.bytesPerLine()), 32);
    QCOMPARE(padded, image);
    QVERIFY(testpictures::paddingUntouched(padded, 8));
    padded.scanLine(3)[6 * 4 + 1] ^= 1;
    QVERIFY(!testpictures::paddingUntouched(padded, 8));
    QVERIFY(testpictures::paddedImage(QImage(), 2, 8).isNull());
}

void TestReference::maskPictureHasTwoValues()
{
    int blacks = 0;
    int whites = 0;
    const QImage mask = testpictures::blobMaskImage(40, 30, 5);
    for (int y = 0; y < 30; ++y) {
        for (int x = 0; x < 40; ++x) {
            blacks += mask.pixel(x, y) == 0xff000000u;
            whites += mask.pixel(x, y) == 0xffffffffu;
        }
    }
    QVERIFY(blacks > 0 && whites > 0);
    QCOMPARE(blacks + whites, 1200);
    for (const std::uint8_t value : testpictures::plateauPlane(20, 20, 3, 1))
        QVERIFY(value < 3);
    QCOMPARE(valuesOf(testpictures::rampPlane(4, 1, 254, 1)), (Values{254, 255, 0, 1}));
    QCOMPARE(valuesOf(testpictures::stepPlane(3, 1, 1, 5, 9)), (Values{5, 9, 9}));
    QCOMPARE(testpictures::rampImage(3, 2, 100).pixel(2, 1), qRgb(200, 100, 44));
}

QTEST_MAIN(TestReference)

#include "tst_reference.moc"
