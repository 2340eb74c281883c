// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/CBrushCommand.h"
#include "canvas/PictureItem.h"
#include "canvas/UndoSnapshot.h"
#include "tests/reference/TestPictures.h"
#include "tests/support/FullDisk.h"
#include "tests/support/TestMain.h"

#include <QDir>
#include <QFile>
#include <QGraphicsScene>
#include <QMap>
#include <QUndoStack>

#include <memory>
#include <vector>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using testpictures::randomArgbImage;

namespace {

/// For its life temporary files go to another folder.
class OtherTemporaryFolder
{
public:
    explicit OtherTemporaryFolder(const QString &path) : m_before(qgetenv("TMPDIR"))
    {
        qputenv("TMPDIR", path.toLocal8Bit());
    }
    ~OtherTemporaryFolder() { qputenv("TMPDIR", m_before); }

private:
    QByteArray m_before;
};

/// Files in the temporary folder, and those without a name on its disk that we hold open. A path for each
/// file by its number on the disk, for one file can have both.
QMap<quint64, QString> filesOfTheMoment()
{
    QMap<quint64, QString> found;
    struct stat folder
    {
    };
    stat(qgetenv("TMPDIR").constData(), &folder);
    for (const QString &path : {QDir::tempPath(), QString("/proc/self/fd")}) {
        const QDir entries(path);
        for (const QString &name : entries.entryList(QDir::AllEntries | QDir::Hidden | QDir::System)) {
            struct stat file
            {
            };
            if (stat(entries.filePath(name).toLocal8Bit().constData(), &file) != 0 || !S_ISREG(file.st_mode))
                continue;
            // An open file counts where it is on the folder's disk and has no name left.
            if (path == QDir::tempPath() || (file.st_dev == folder.st_dev && file.st_nlink == 0))
                found.insert(file.st_ino, entries.filePath(name));
        }
    }
    return found;
}

/// Without what the program that runs the tests had open, such as a log that somebody has deleted meanwhile.
QMap<quint64, QString> temporaryFiles()
{
    static const QMap<quint64, QString> inherited = filesOfTheMoment();
    QMap<quint64, QString> found = filesOfTheMoment();
    for (const quint64 number : inherited.keys())
        found.remove(number);
    return found;
}

/// What the item shows, in the colours of a picture without premultiplied alpha.
QImage shown(const QGraphicsPixmapItem &item)
{
    return item.pixmap().toImage();
}

/// What a pixmap makes of a picture.
QImage asShown(const QImage &image)
{
    return QPixmap::fromImage(image).toImage();
}

bool same(const QImage &left, const QImage &right)
{
    return left.convertToFormat(QImage::Format_ARGB32_Premultiplied) ==
           right.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

class TestBrushCommand : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void firstRedoShowsTheAfterPixmap();
    void snapshotGoesToDisk();
    void undoAndRedoToThePixel();
    void onlyTheBoxComesBack();
    void manyCommands();
    void noFileOutlivesItsCommand();
    void foldersThatTakeNoFile_data();
    void foldersThatTakeNoFile();
    void fullDisk_data();
    void fullDisk();
    void oneStateOnTheDisk();
    void fewDescriptors();
    void removesWhatAKilledProgramLeft();
    void deadItem();
    void boxOutsideThePicture_data();
    void boxOutsideThePicture();
    void otherPictureMeanwhile_data();
    void otherPictureMeanwhile();

private:
    QPixmap push(const QRect &area, quint32 seed);
    void checkUndoRedo(const QImage &before, const QImage &after);

    std::unique_ptr<QGraphicsScene> scene;
    QGraphicsPixmapItem *item = nullptr;
    QImage image;
    QUndoStack stack;
};

void TestBrushCommand::init()
{
    QCOMPARE(temporaryFiles().size(), 0);
    image = randomArgbImage(40, 30, 1);
    scene = std::make_unique<QGraphicsScene>();
    item = new canvas::PictureItem(QPixmap::fromImage(image));
    scene->addItem(item);
}

void TestBrushCommand::cleanup()
{
    stack.clear();
    scene.reset();
    QCOMPARE(temporaryFiles().size(), 0);
}

/// Fills the box with other pixels and pushes the command for it, as the window does.
QPixmap TestBrushCommand::push(const QRect &area, quint32 seed)
{
    const QImage before = image.copy(area);
    const QImage paint = randomArgbImage(image.width(), image.height(), seed);
    const QRect inside = area.intersected(image.rect());
    for (int y = inside.top(); y <= inside.bottom(); ++y)
        for (int x = inside.left(); x <= inside.right(); ++x)
            image.setPixel(x, y, paint.pixel(x, y));
    QPixmap after = QPixmap::fromImage(image);
    stack.push(new CBrushCommand(item, area, &after, &image, before));
    return after;
}

void TestBrushCommand::checkUndoRedo(const QImage &before, const QImage &after)
{
    QVERIFY(before != after);
    for (int i = 0; i < 5; ++i) {
        stack.undo();
        QVERIFY(image == before);
        QVERIFY(same(shown(*item), asShown(before)));
        stack.redo();
        QVERIFY(image == after);
        QVERIFY(same(shown(*item), asShown(after)));
    }
}

void TestBrushCommand::firstRedoShowsTheAfterPixmap()
{
    // A pixmap that has nothing to do with the picture shows that it is the caller's that is taken, whole.
    QPixmap after = QPixmap::fromImage(randomArgbImage(17, 9, 5));
    stack.push(new CBrushCommand(item, QRect(2, 2, 5, 5), &after, &image, image.copy(2, 2, 5, 5)));
    QCOMPARE(item->pixmap().size(), QSize(17, 9));
    QVERIFY(shown(*item) == after.toImage());
}

void TestBrushCommand::snapshotGoesToDisk()
{
    const QRect area(5, 4, 20, 15);
    const QImage before = image.copy(area);
    push(area, 2);
    QCOMPARE(temporaryFiles().size(), 1);
    QFile file(temporaryFiles().first());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QImage stored;
    QVERIFY(stored.load(&file, "PNG"));
    QVERIFY(stored.convertToFormat(QImage::Format_ARGB32) == before);
}

void TestBrushCommand::undoAndRedoToThePixel()
{
    const QImage before = image.copy();
    push(QRect(5, 4, 20, 15), 2);
    QCOMPARE(stack.count(), 1);
    checkUndoRedo(before, image.copy());
}

void TestBrushCommand::onlyTheBoxComesBack()
{
    const QRect area(5, 4, 20, 15);
    push(area, 2);
    image.setPixel(0, 0, 0x12345678); // outside the box
    image.setPixel(30, 29, 0x87654321);
    image.setPixel(6, 6, 0x11223344); // inside it, whoever painted it
    stack.undo();
    QCOMPARE(image.pixel(0, 0), 0x12345678U);
    QCOMPARE(image.pixel(30, 29), 0x87654321U);
    QCOMPARE(image.pixel(6, 6), randomArgbImage(40, 30, 1).pixel(6, 6));
}

void TestBrushCommand::manyCommands()
{
    testpictures::Random random(9);
    QList<QImage> states{image.copy()};
    for (int i = 0; i < 40; ++i) {
        push(QRect(random.below(30), random.below(20), 1 + random.below(10), 1 + random.below(10)),
             static_cast<quint32>(100 + i));
        states.append(image.copy());
    }
    for (int i = 0; i < 300; ++i) {
        if (random.below(2) == 0)
            stack.undo();
        else
            stack.redo();
        QVERIFY(image == states.at(stack.index()));
    }
    for (int index = stack.index(); index > 0; --index) {
        stack.undo();
        QCOMPARE(stack.index(), index - 1);
    }
    QVERIFY(image == states.first());
    QVERIFY(same(shown(*item), asShown(states.first())));
}

void TestBrushCommand::noFileOutlivesItsCommand()
{
    QUndoStack limited;
    limited.setUndoLimit(7);
    for (int i = 0; i < 12; ++i) {
        QPixmap after = QPixmap::fromImage(image);
        limited.push(new CBrushCommand(item, QRect(1, 1, 8, 8), &after, &image, image.copy(1, 1, 8, 8)));
        QCOMPARE(temporaryFiles().size(), std::min(i + 1, 7));
    }
    limited.undo();
    limited.undo();
    QCOMPARE(temporaryFiles().size(), 7);
    QPixmap after = QPixmap::fromImage(image);
    limited.push(new CBrushCommand(item, QRect(1, 1, 8, 8), &after, &image, image.copy(1, 1, 8, 8)));
    QCOMPARE(temporaryFiles().size(), 6); // what could be redone is gone
    limited.clear();
    QCOMPARE(temporaryFiles().size(), 0);
}

void TestBrushCommand::foldersThatTakeNoFile_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("missing") << "/nonexistent/folder";
    QTest::newRow("a file") << QCoreApplication::applicationFilePath();
    QTest::newRow("takes none from anybody") << "/proc";
}

void TestBrushCommand::foldersThatTakeNoFile()
{
    QFETCH(QString, path);
    const QImage before = image.copy();
    const OtherTemporaryFolder elsewhere(path);
    push(QRect(5, 4, 20, 15), 2);
    checkUndoRedo(before, image.copy());
    stack.clear();
}

void TestBrushCommand::fullDisk_data()
{
    QTest::addColumn<int>("bytes");
    QTest::newRow("nothing fits") << 0;
    QTest::newRow("the header fits") << 60;
    QTest::newRow("half of it fits") << 700;
    QTest::newRow("nearly all of it fits") << 1150;
}

void TestBrushCommand::fullDisk()
{
    QFETCH(int, bytes);
    const QImage before = image.copy();
    {
        const testsupport::FullDisk full(static_cast<rlim_t>(bytes));
        push(QRect(5, 4, 20, 15), 2);
    }
    QCOMPARE(temporaryFiles().size(), 0); // a part of the picture is of no use
    checkUndoRedo(before, image.copy());
}

/// What can be had from the picture is not stored a second time, neither after the batch nor after undo.
void TestBrushCommand::oneStateOnTheDisk()
{
    image = randomArgbImage(300, 200, 1);
    const QRect area = image.rect();
    const qint64 pixels = image.sizeInBytes();
    const QImage before = image.copy();
    for (int y = 0; y < image.height(); ++y) // as the brushes do
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, image.pixel(x, y) | 0xFF000000U);
    QPixmap after = QPixmap::fromImage(image);
    stack.push(new CBrushCommand(item, area, &after, &image, before));
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(temporaryFiles().size(), 1);
        QFile file(temporaryFiles().first());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY2(file.size() > pixels && file.size() < pixels + pixels / 2,
                 qPrintable(QString::number(file.size())));
        stack.setIndex(stack.index() == 0 ? 1 : 0);
    }
}

/// Snapshots leave descriptors for others, and work without.
void TestBrushCommand::fewDescriptors()
{
    rlimit before{};
    getrlimit(RLIMIT_NOFILE, &before);
    const rlimit few{64, before.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_NOFILE, &few), 0);
    QList<QImage> states{image.copy()};
    for (int i = 0; i < 100; ++i) {
        push(QRect(i % 30, i % 20, 9, 9), static_cast<quint32>(i + 10));
        states.append(image.copy());
    }
    std::vector<std::unique_ptr<QFile>> others;
    for (int i = 0; i < 20; ++i) {
        others.push_back(std::make_unique<QFile>(QCoreApplication::applicationFilePath()));
        QVERIFY2(others.back()->open(QIODevice::ReadOnly), qPrintable(QString::number(i)));
    }
    for (int i = 100; i >= 0; --i) {
        stack.setIndex(i);
        QVERIFY(image == states.at(i));
    }
    setrlimit(RLIMIT_NOFILE, &before);
    stack.setIndex(100);
    QVERIFY(image == states.last());
}

void TestBrushCommand::removesWhatAKilledProgramLeft()
{
    const QTemporaryDir folder;
    const OtherTemporaryFolder elsewhere(folder.path());
    const auto put = [&folder](const QString &name) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    };
    for (const char *name :
         {"ornevo-undo-Ab1234", "ornevo-undo-held00", "ornevo-undo-too-long", "other-undo-Ab1234"})
        put(name);
    QVERIFY(QFile::link("ornevo-undo-Ab1234", folder.filePath("ornevo-undo-link00")));
    const int held =
        ::open(folder.filePath("ornevo-undo-held00").toLocal8Bit().constData(), O_RDWR | O_CLOEXEC);
    QCOMPARE(flock(held, LOCK_EX), 0); // by a program that runs
    QCOMPARE(mkfifo(folder.filePath("ornevo-undo-pipe00").toLocal8Bit().constData(), 0600), 0);
    canvas::removeAbandonedSnapshots();
    const auto names = [&folder] {
        return QDir(folder.path()).entryList(QDir::Files | QDir::System | QDir::Hidden, QDir::Name);
    };
    const QStringList others{"ornevo-undo-link00", "ornevo-undo-pipe00", "ornevo-undo-too-long",
                             "other-undo-Ab1234"};
    QCOMPARE(names(), QStringList("ornevo-undo-held00") + others);
    ::close(held);
    canvas::removeAbandonedSnapshots();
    QCOMPARE(names(), others);
}

void TestBrushCommand::deadItem()
{
    const QImage before = image.copy();
    push(QRect(5, 4, 20, 15), 2);
    const QImage after = image.copy();
    scene->clear();
    stack.undo();
    QVERIFY(image == before);
    stack.redo();
    QVERIFY(image == after);
    QPixmap pixmap = QPixmap::fromImage(image);
    stack.push(new CBrushCommand(nullptr, QRect(0, 0, 3, 3), &pixmap, &image, image.copy(0, 0, 3, 3)));
    stack.undo();
    stack.redo();
    QVERIFY(image == after);
}

void TestBrushCommand::boxOutsideThePicture_data()
{
    QTest::addColumn<QRect>("area");
    QTest::newRow("left above") << QRect(-7, -5, 20, 20);
    QTest::newRow("right below") << QRect(30, 22, 20, 20);
    QTest::newRow("all round") << QRect(-3, -4, 60, 60);
    QTest::newRow("elsewhere") << QRect(100, 100, 10, 10);
    QTest::newRow("above") << QRect(0, -20, 10, 10);
    QTest::newRow("no area") << QRect(5, 5, 0, 0);
    QTest::newRow("null") << QRect();
}

void TestBrushCommand::boxOutsideThePicture()
{
    QFETCH(QRect, area);
    const QImage before = image.copy();
    push(area, 3);
    const QImage after = image.copy();
    for (int i = 0; i < 3; ++i) {
        stack.undo();
        QVERIFY(image == before);
        QVERIFY(same(shown(*item), asShown(before)));
        stack.redo();
        QVERIFY(image == after);
        QVERIFY(same(shown(*item), asShown(after)));
    }
}

void TestBrushCommand::otherPictureMeanwhile_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("smaller") << QSize(12, 9);
    QTest::newRow("one pixel") << QSize(1, 1);
    QTest::newRow("narrower and higher") << QSize(8, 100);
    QTest::newRow("larger") << QSize(90, 80);
    QTest::newRow("null") << QSize(0, 0);
}

void TestBrushCommand::otherPictureMeanwhile()
{
    QFETCH(QSize, size);
    const QRect area(5, 4, 20, 15);
    const QImage first = image.copy();
    push(area, 2);
    const QImage brushed = image.copy();
    image = size.isEmpty() ? QImage() : randomArgbImage(size.width(), size.height(), 77);
    const QImage other = image.copy();
    const auto check = [&](const QImage &source) {
        QCOMPARE(image.size(), other.size());
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                QCOMPARE(image.pixel(x, y), area.contains(x, y) ? source.pixel(x, y) : other.pixel(x, y));
    };
    stack.undo();
    check(first);
    stack.redo();
    check(brushed);
    stack.undo();
    check(first);
}

ORNEVO_TEST_MAIN(TestBrushCommand)
#include "tst_brushcommand.moc"
