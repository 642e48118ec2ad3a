#include "interface/fileoutputinterface.h"
#include "support/testkit.h"

#include <QtTest>

#include <sys/stat.h>

using TestKit::readFile;
using TestKit::writeFile;

namespace {

const QJsonArray recordingRows{QJsonObject{{"Name", "Program"}, {"Codec", "H.264"}}};

QJsonArray recordingIn(const QString& path)
{
    return FileOutputInterface(path).settings().value("RECORDING").toArray();
}

} // namespace

class tst_FileOutputInterface : public QObject
{
    Q_OBJECT

private slots:
    // It holds stream keys: owner-only from the first save, its new folder too, and after
    // every rewrite, also when it was left readable by others.
    void ownerOnlyAtEverySave()
    {
        const mode_t umaskBefore = ::umask(022);
        QTemporaryDir dir;
        const QString path = dir.filePath("data/setup.json");
        FileOutputInterface host(path);
        for (int n = 0; n < 3; ++n) {
            host.setSettings("STREAMING", QJsonArray{QJsonObject{{"StreamKey", QString::number(n)}}});
            QCOMPARE(QFile::permissions(path), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser);
            QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther));
        }
        QCOMPARE(QFile::permissions(dir.filePath("data")) & (QFile::ReadOther | QFile::ExeOther | QFile::ReadGroup), 0);
        ::umask(umaskBefore);
    }

    void roundTripThroughTheFile()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath("nested/setup.json");
        const QJsonObject playout{{"SDI 1", QJsonObject{{"DeviceName", "SDI 4K Port 1"}}}};
        {
            FileOutputInterface host(path);
            QVERIFY(host.settings().isEmpty() && host.corruptFileKeptAs().isEmpty());
            QVERIFY(!QFile::exists(path)); // made by the first change, directory and all
            QSignalSpy changed(&host, &MemoryOutputInterface::settingsChanged);
            host.setSettings("RECORDING", recordingRows);
            host.setSettingsObject("PLAYOUT", playout);
            QCOMPARE(changed.size(), 2);
            QCOMPARE(changed.at(1).at(0).toString(), QStringLiteral("PLAYOUT"));
            QVERIFY(host.lastError().isEmpty());
        }
        // Written through a temporary that is gone again.
        QCOMPARE(QDir(dir.filePath("nested")).entryList(QDir::Files | QDir::Hidden), QStringList{"setup.json"});
        FileOutputInterface again(path);
        QVERIFY(again.corruptFileKeptAs().isEmpty());
        QCOMPARE(again.settings().value("RECORDING").toArray(), recordingRows);
        QCOMPARE(again.settings().value("PLAYOUT").toObject(), playout);
    }

    // A save killed midway leaves its temporary copy, keys and all; the next start removes
    // exactly those and nothing the operator put beside the file.
    void leftoversOfACutShortSave_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("removed");
        QTest::newRow("temporary") << "setup.json.Ab3dE9" << true;
        QTest::newRow("five letters") << "setup.json.Ab3dE" << false;
        QTest::newRow("seven letters") << "setup.json.Ab3dE9x" << false;
        QTest::newRow("punctuation") << "setup.json.Ab-dE9" << false;
        QTest::newRow("non-ASCII letter") << QString("setup.json.Ab3d\u00e99") << false;
        QTest::newRow("other file") << "other.json.Ab3dE9" << false;
        QTest::newRow("kept aside") << "setup.json.corrupt-20260101-000000" << false;
    }
    void leftoversOfACutShortSave()
    {
        QFETCH(QString, name);
        QFETCH(bool, removed);
        QTemporaryDir dir;
        writeFile(dir.filePath(name), "{\"STREAMING\":[{\"StreamKey\":\"abcd\"}]}");
        FileOutputInterface host(dir.filePath("setup.json"));
        QCOMPARE(QFile::exists(dir.filePath(name)), !removed);
    }

    void corruptFileIsKeptAside()
    {
        const QByteArray content = "{\"STREAMING\": [ {\"Name\": \"a\""; // truncated by a crash
        QTemporaryDir dir;
        const QString path = dir.filePath("setup.json");
        QVERIFY(writeFile(path, content));

        FileOutputInterface host(path);
        const QString aside = host.corruptFileKeptAs();
        QVERIFY(!aside.isEmpty() && aside != path);
        QCOMPARE(QFileInfo(aside).absolutePath(), QFileInfo(path).absolutePath());
        QCOMPARE(readFile(aside), content);
        QVERIFY(host.settings().isEmpty());

        // The next change writes a fresh file; the kept copy stays as it was.
        host.setSettings("RECORDING", recordingRows);
        QCOMPARE(recordingIn(path), recordingRows);
        QCOMPARE(readFile(aside), content);

        // Damaged again (an array, not an object) within the same second: both copies are kept.
        QVERIFY(writeFile(path, "[1, 2]"));
        const QString second = FileOutputInterface(path).corruptFileKeptAs();
        QVERIFY(second != aside && second != path);
        QCOMPARE(readFile(second), QByteArray("[1, 2]"));
    }

    // A file where its directory goes: the old contents stay, the dialogs still learn of the
    // change, and once the location is usable again the next change is written.
    void unwritableLocationKeepsTheOldFile()
    {
        QTemporaryDir dir;
        const QString blocker = dir.filePath("data");
        const QString path = blocker + "/setup.json";
        QVERIFY(writeFile(blocker, "in the way"));
        FileOutputInterface host(path);
        QSignalSpy changed(&host, &MemoryOutputInterface::settingsChanged);
        host.setSettings("RECORDING", recordingRows);
        QVERIFY(host.lastError().contains("setup.json"));
        QCOMPARE(changed.size(), 1);
        QCOMPARE(readFile(blocker), QByteArray("in the way"));

        QVERIFY(QFile::remove(blocker));
        host.setSettingsObject("GRAB", QJsonObject());
        QVERIFY(host.lastError().isEmpty());
        QCOMPARE(recordingIn(path), recordingRows);
    }
};

QTEST_MAIN(tst_FileOutputInterface)
#include "tst_fileoutputinterface.moc"
