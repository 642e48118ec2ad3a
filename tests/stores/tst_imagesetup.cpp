#include "recording/imagesetup.h"
#include "stores/filetag.h"
#include "support/testkit.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {

Snapshot grab(const QString& directory, const QString& tag, const QString& extension = "png")
{
    Snapshot shot;
    shot.extension = extension;
    shot.name = "shot";
    shot.directory = directory;
    shot.fileTag = tag;
    return shot;
}

} // namespace

class TestImageSetup : public QObject
{
    Q_OBJECT

private slots:
    void init() { FileTag::setClock([] { return QDateTime(QDate(2024, 3, 7), QTime(9, 5, 2)); }); }
    void cleanup() { FileTag::resetClock(); }
    void nextFreeName_data()
    {
        QTest::addColumn<QStringList>("existing");
        QTest::addColumn<QString>("tag");
        QTest::addColumn<QString>("expected");

        QTest::newRow("empty directory") << QStringList{} << "%P" << "shot.png";
        QTest::newRow("two taken") << QStringList{"shot.png", "shot 2.png"} << "%P" << "shot 3.png";
        QTest::newRow("first gap") << QStringList{"shot.png", "shot 3.png"} << "%P" << "shot 2.png";
        QTest::newRow("other format") << QStringList{"shot.jpg"} << "%P" << "shot.png";
        QTest::newRow("directory in the way") << QStringList{"shot.png/"} << "%P" << "shot 2.png";
        QTest::newRow("expanded tag") << QStringList{"shot 09-05 PROGRAM.png"} << "%P %h-%m %S"
                                      << "shot 09-05 PROGRAM 2.png";
    }
    void nextFreeName()
    {
        QFETCH(QStringList, existing);
        QFETCH(QString, tag);
        QFETCH(QString, expected);

        QTemporaryDir dir;
        for (const QString& name : existing)
            QVERIFY(name.endsWith('/') ? QDir(dir.path()).mkdir(name.chopped(1))
                                       : TestKit::writeFile(dir.filePath(name), {}));

        const QString path = ImageSetup::localPath(grab(dir.path(), tag));
        QCOMPARE(path, dir.path() + QDir::separator() + expected);
        // Nothing is created but what is asked for.
        QCOMPARE(TestKit::entries(dir.path()).size(), existing.size());
    }

    void missingDirectoryIsCreated()
    {
        QTemporaryDir dir;
        const QString nested = dir.path() + "/grabs/today";
        const QString path = ImageSetup::localPath(grab(nested, "%P", "jpg"));
        QCOMPARE(path, nested + "/shot.jpg");
        QVERIFY(QFileInfo(nested).isDir());
        QVERIFY(!QFileInfo::exists(path));

        // A tag with folders in it makes them too.
        QCOMPARE(ImageSetup::localPath(grab(nested, "%Y/%M/%P")), nested + "/2024/03/shot.png");
        QVERIFY(QFileInfo(nested + "/2024/03").isDir());
    }
};

QTEST_GUILESS_MAIN(TestImageSetup)
#include "tst_imagesetup.moc"
