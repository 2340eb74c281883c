// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/MarkerDabs.h"
#include "cutout/Pipeline.h"
#include "tests/reference/TestPictures.h"
#include "tests/support/TestMain.h"
#include "tests/support/WindowUnderTest.h"

#include <QFile>
#include <QProcess>

using testsupport::WindowUnderTest;

/// What the window makes of its members step by step is what the functions of the pipeline make without it.
class TestPipeline : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void stepsAreThoseOfTheWindow();
    void exampleWritesWhatTheWindowExports_data();
    void exampleWritesWhatTheWindowExports();
    void exampleSaysWhatItMisses();
    void withoutSeedsThereIsNoObject();

private:
    QString file(const QString &name) const { return m_folder.filePath(name); }
    void mark(WindowUnderTest &t) const;
    [[nodiscard]] int runExample(const QStringList &arguments);

    static constexpr int width = 90;
    static constexpr int height = 70;
    QTemporaryDir m_folder;
    QByteArray m_complaint;
};

void TestPipeline::init()
{
    QSettings().clear();
    QVERIFY(testpictures::blobImage(width, height, 11).save(file("photo.png")));
    QVERIFY(testpictures::randomImage(50, 40, 12).save(file("background.png")));
}

void TestPipeline::mark(WindowUnderTest &t) const
{
    t.openPicture(file("photo.png"));
    t.dab("actionKeep_arker", 44, 34);
    t.dab("action_Remove_Marker", 8, 6);
    t.trigger("actionPreview");
}

int TestPipeline::runExample(const QStringList &arguments)
{
    QProcess example;
    example.start(ORNEVO_PIPELINE_EXAMPLE, arguments);
    if (!example.waitForFinished() || example.exitStatus() != QProcess::NormalExit)
        return -1;
    m_complaint = example.readAllStandardError();
    return example.exitCode();
}

void TestPipeline::stepsAreThoseOfTheWindow()
{
    WindowUnderTest t;
    mark(t);
    const QImage photo = cutout::readPhoto(file("photo.png"));
    QCOMPARE(photo, t.probe.workingImage());
    cutout::EdgeMap edges = cutout::newEdgeMap(photo);
    cutout::findEdges(photo, edges);
    QVERIFY(std::equal(edges.get(), edges.get() + width * height, t.probe.edgeMap()));
    const cutout::Seeds seeds = markers::seedsOf(t.probe.imageScene().items(), photo.size());
    const QList<int> object = cutout::floodObject(photo, edges, seeds);
    QVERIFY(!object.isEmpty());
    QCOMPARE(object, t.probe.outmask());
    const QImage mask = cutout::smoothMask(cutout::objectMask(photo.size(), object), t.probe.gaussSize());
    QCOMPARE(mask, t.probe.maskImage());
    const QImage cutOut = cutout::cutOut(photo, mask);
    QCOMPARE(cutOut, t.probe.previewImage());
    QCOMPARE(t.probe.previewItem()->pixmap().toImage(), cutout::premultiplied(cutOut));
}

void TestPipeline::exampleWritesWhatTheWindowExports_data()
{
    QTest::addColumn<bool>("picture");
    QTest::newRow("on white") << false;
    QTest::newRow("on a picture") << true;
}

void TestPipeline::exampleWritesWhatTheWindowExports()
{
    QFETCH(bool, picture);
    WindowUnderTest t;
    mark(t);
    QSize size(width, height);
    t.probe.backgroundColor() = qRgb(255, 255, 255);
    if (picture) {
        t.probe.backgroundImage() = QImage(file("background.png"));
        size = t.probe.backgroundImage().size();
    }
    const cutout::Seeds seeds = markers::seedsOf(t.probe.imageScene().items(), QSize(width, height));
    QImage marks(width, height, QImage::Format_RGB32);
    marks.fill(Qt::black);
    for (const int index : seeds.keep)
        marks.setPixel(index % width, index / width, qRgb(0, 255, 0));
    for (const int index : seeds.remove)
        marks.setPixel(index % width, index / width, qRgb(255, 0, 0));
    QVERIFY(marks.save(file("marks.png")));
    QStringList arguments{file("photo.png"), file("marks.png"), file("example.png")};
    if (picture)
        arguments << file("background.png");
    QCOMPARE(runExample(arguments), 0);

    // The preview stretches the background to the photo; the example puts the object on it pixel by pixel.
    QCOMPARE(cutout::composeExport(
                 {cutout::exportCanvas(size, t.probe.backgroundColor(), t.probe.backgroundImage()),
                  t.probe.previewImage(),
                  {},
                  size},
                 size)
                 .convertToFormat(QImage::Format_RGB32),
             QImage(file("example.png")).convertToFormat(QImage::Format_RGB32));
    if (picture)
        return;
    QVERIFY(t.probe.exportTo(file("window.png"), "png", size));
    QFile ours(file("example.png"));
    QFile theirs(file("window.png"));
    QVERIFY(ours.open(QIODevice::ReadOnly) && theirs.open(QIODevice::ReadOnly));
    QCOMPARE(ours.readAll(), theirs.readAll());
}

void TestPipeline::exampleSaysWhatItMisses()
{
    QCOMPARE(runExample({}), 2);
    QVERIFY(m_complaint.contains("usage"));
    QCOMPARE(runExample({file("none.png"), file("photo.png"), file("out.png")}), 1);
    QVERIFY(m_complaint.contains("a photo is needed"));
    QCOMPARE(runExample({file("photo.png"), file("photo.png"), file("out.png")}), 1);
    QVERIFY(m_complaint.contains("marks of both kinds"));
    QVERIFY(!QFile::exists(file("out.png")));
}

void TestPipeline::withoutSeedsThereIsNoObject()
{
    const QImage photo = cutout::readPhoto(file("photo.png"));
    cutout::EdgeMap edges = cutout::newEdgeMap(photo);
    cutout::findEdges(photo, edges);
    QVERIFY(cutout::floodObject(photo, edges, {}).isEmpty());
    QVERIFY(cutout::floodObject(photo, edges, {{100}, {}}).isEmpty());
    QVERIFY(cutout::floodObject(photo, edges, {{}, {100}}).isEmpty());
    QVERIFY(cutout::floodObject(photo, edges, {{0}, {1}}).isEmpty()); // both on the frame
}

ORNEVO_TEST_MAIN(TestPipeline)
#include "tst_pipeline.moc"
