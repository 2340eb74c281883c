// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/SettingsKeys.h"
#include "tests/reference/TestPictures.h"
#include "tests/reliability/PictureFiles.h"
#include "tests/support/Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace {

QString plainName(QString name)
{
    static const QRegularExpression odd("[^A-Za-z0-9.]");
    return name.remove(odd);
}

} // namespace

/// Writes the inputs that the fuzzers start from into the folder that is named.
int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (argc != 2)
        return 1;
    const QDir corpus(argv[1]);
    const auto put = [&corpus](const QString &target, const QString &name, const QByteArray &bytes) {
        corpus.mkpath(target);
        testsupport::put(corpus.filePath(target + '/' + name), bytes);
    };
    for (const QString &target : QStringLiteral(TARGETS_OF_BYTES).split(',')) {
        put(target, "nothing", {});
        for (int i = 0; i < 12; ++i) {
            testpictures::Random random(static_cast<std::uint32_t>(i));
            QByteArray bytes(4 + i * i * 4, 0);
            for (char &byte : bytes)
                byte = static_cast<char>(i % 3 == 0 ? random.below(4) : random.byte());
            put(target, QStringLiteral("random-%1").arg(i), bytes);
        }
    }

    const QTemporaryDir pictures;
    for (const QString &path : picturefiles::writeAssortment(pictures.path())) {
        QFile file(path);
        const QFileInfo info(path);
        if (info.isFile() && info.size() < 12000 && file.open(QIODevice::ReadOnly))
            put("fuzz_open", plainName(info.fileName()), file.readAll());
    }
    for (const char *format : {"jpg", "png", "bmp", "tiff", "ppm", "xbm", "xpm", "webp", "ico", "tga"})
        if (const QByteArray bytes = picturefiles::encoded(picturefiles::smallPicture(12, 9, 3), format);
            !bytes.isEmpty())
            put("fuzz_open", QStringLiteral("small.%1").arg(format), bytes);

    const QByteArrayList values = {"10",    "0",          "-1",         "300",
                                   "many",  "2147483648", "0.5",        "-4.5",
                                   "nan",   "inf",        "1e99",       "true",
                                   "false", "a, b",       "@Invalid()", "@ByteArray(\\x1)",
                                   "",      "@Size(3 4)", "17",         "@Variant(\\0\\0\\0\\x7f)"};
    for (int i = 0; i < values.size(); ++i) {
        QByteArray file = "[General]\n";
        int row = 0;
        for (const settings::Key *key : settings::all)
            file += key->name + ('=' + values[(i + row++ * (i % 3)) % values.size()]) + '\n';
        put("fuzz_settings", QStringLiteral("values-%1").arg(i), file);
    }
    return 0;
}
