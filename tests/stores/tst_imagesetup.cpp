#include "filetag.h"
#include "imagesetup.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

namespace {

Snapshot grab(const QString& directory, const QString& tag, const QString& extension = QStringLiteral("png"))
{
    Snapshot shot;
    shot.source = 0;
    shot.extension = extension;
    shot.name = QStringLiteral("shot");
    shot.directory = directory;
    shot.fileTag = tag;
    return shot;
}

} // namespace

class TestImageSetup : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void nextFreeName_data();
    void nextFreeName();
    void missingDirectoryIsCreated();
    void tagFromNameExpandsTheGrabTag();
};

void TestImageSetup::init()
{
    FileTag::setClock([] { return QDateTime(QDate(2024, 3, 7), QTime(9, 5, 2)); });
}

void TestImageSetup::cleanup()
{
    FileTag::resetClock();
}

void TestImageSetup::nextFreeName_data()
{
    QTest::addColumn<QStringList>("existing");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("expected");

    QTest::newRow("empty directory") << QStringList{} << QStringLiteral("%P") << QStringLiteral("shot.png");
    QTest::newRow("one taken") << QStringList{QStringLiteral("shot.png")} << QStringLiteral("%P")
                               << QStringLiteral("shot 2.png");
    QTest::newRow("two taken") << QStringList{QStringLiteral("shot.png"), QStringLiteral("shot 2.png")}
                               << QStringLiteral("%P") << QStringLiteral("shot 3.png");
    QTest::newRow("first gap") << QStringList{QStringLiteral("shot.png"), QStringLiteral("shot 3.png")}
                               << QStringLiteral("%P") << QStringLiteral("shot 2.png");
    QTest::newRow("other format") << QStringList{QStringLiteral("shot.jpg")} << QStringLiteral("%P")
                                  << QStringLiteral("shot.png");
    QTest::newRow("directory in the way") << QStringList{QStringLiteral("shot.png/")} << QStringLiteral("%P")
                                          << QStringLiteral("shot 2.png");
    QTest::newRow("expanded tag") << QStringList{QStringLiteral("shot 09-05 PROGRAM.png")}
                                  << QStringLiteral("%P %h-%m %S") << QStringLiteral("shot 09-05 PROGRAM 2.png");
}

void TestImageSetup::nextFreeName()
{
    QFETCH(QStringList, existing);
    QFETCH(QString, tag);
    QFETCH(QString, expected);

    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    for (const QString& name : existing) {
        if (name.endsWith(QLatin1Char('/'))) {
            QVERIFY(QDir(dir.path()).mkdir(name.chopped(1)));
        } else {
            QFile file(dir.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
    }

    const QString path = ImageSetup::localPath(grab(dir.path(), tag));
    QCOMPARE(path, dir.path() + QDir::separator() + expected);
    QVERIFY(!QFileInfo::exists(path));
    // Nothing is created but what is asked for: the directory listing is unchanged.
    QCOMPARE(QDir(dir.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), existing.size());
}

void TestImageSetup::missingDirectoryIsCreated()
{
    QTemporaryDir dir;
    const QString nested = dir.path() + QStringLiteral("/grabs/today");
    const QString path = ImageSetup::localPath(grab(nested, QStringLiteral("%P"), QStringLiteral("jpg")));
    QCOMPARE(path, nested + QStringLiteral("/shot.jpg"));
    QVERIFY(QFileInfo(nested).isDir());
    QVERIFY(!QFileInfo::exists(path));

    // A tag with folders in it makes them too.
    const QString dated = ImageSetup::localPath(grab(nested, QStringLiteral("%Y/%M/%P")));
    QCOMPARE(dated, nested + QStringLiteral("/2024/03/shot.png"));
    QVERIFY(QFileInfo(nested + QStringLiteral("/2024/03")).isDir());
}

void TestImageSetup::tagFromNameExpandsTheGrabTag()
{
    Snapshot shot = grab(QStringLiteral("/unused"), QStringLiteral("%P %S %C"));
    shot.source = 2;
    QCOMPARE(ImageSetup::tagFromName(shot, false), QStringLiteral("shot PREVIEW %C"));
    QCOMPARE(ImageSetup::tagFromName(shot, true), QStringLiteral("shot PREVIEW %C.png"));
}

QTEST_GUILESS_MAIN(TestImageSetup)
#include "tst_imagesetup.moc"
