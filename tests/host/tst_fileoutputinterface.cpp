#include "interface/fileoutputinterface.h"
#include "support/testkit.h"

#include <QtTest>

#include <unistd.h>

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
    void roundTripThroughTheFile()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath("nested/setup.json");
        const QJsonObject playout{{"SDI 1", QJsonObject{{"DeviceName", "SDI 4K Port 1"}}}};
        {
            FileOutputInterface host(path);
            QVERIFY(host.settings().isEmpty());
            QVERIFY(host.corruptFileKeptAs().isEmpty());
            QVERIFY(!QFile::exists(path)); // made by the first change, directory and all
            QSignalSpy changed(&host, &MemoryOutputInterface::settingsChanged);
            host.setSettings("RECORDING", recordingRows);
            for (int i = 0; i < 3; ++i)
                host.setSettingsObject("PLAYOUT", playout);
            QCOMPARE(changed.size(), 4);
            QCOMPARE(changed.at(1).at(0).toString(), QStringLiteral("PLAYOUT"));
            QVERIFY(host.lastError().isEmpty());
        }
        // The file is the setup object itself, and written through a temporary that is gone again.
        QCOMPARE(QJsonDocument::fromJson(readFile(path)).object().value("RECORDING").toArray(), recordingRows);
        QCOMPARE(QDir(dir.filePath("nested")).entryList(QDir::Files | QDir::Hidden), QStringList{"setup.json"});
        FileOutputInterface again(path);
        QVERIFY(again.corruptFileKeptAs().isEmpty());
        QCOMPARE(again.settings().value("RECORDING").toArray(), recordingRows);
        QCOMPARE(again.settings().value("PLAYOUT").toObject(), playout);
    }

    void corruptFileIsKeptAside_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("truncated by a crash") << QByteArray("{\"STREAMING\": [ {\"Name\": \"a\"");
        QTest::newRow("an array, not an object") << QByteArray("[1, 2, 3]");
        QTest::newRow("binary garbage") << QByteArray("\x00\xff\xfe garbage", 12);
        QTest::newRow("empty file") << QByteArray();
    }
    void corruptFileIsKeptAside()
    {
        QFETCH(QByteArray, content);
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
        QVERIFY(host.lastError().isEmpty());
        QCOMPARE(recordingIn(path), recordingRows);
        QCOMPARE(readFile(aside), content);

        // Damaged again within the same second: both copies are kept.
        QVERIFY(writeFile(path, content));
        const QString second = FileOutputInterface(path).corruptFileKeptAs();
        QVERIFY(second != aside && second != path);
        QCOMPARE(readFile(second), content);
        QCOMPARE(readFile(aside), content);
    }

    void unwritableLocationKeepsTheOldFile_data()
    {
        QTest::addColumn<QString>("fileName");
        QTest::addColumn<bool>("readOnlyDirectory");
        // A name so long that no temporary file fits beside it: refused even for root.
        QTest::newRow("no room for a temporary name") << QString(245, 's') + ".json" << false;
        QTest::newRow("read-only directory") << "setup.json" << true;
    }
    void unwritableLocationKeepsTheOldFile()
    {
        QFETCH(QString, fileName);
        QFETCH(bool, readOnlyDirectory);
        QTemporaryDir dir;
        const QString path = dir.filePath(fileName);
        const QByteArray old = QJsonDocument(QJsonObject{{"RECORDING", recordingRows}}).toJson();
        QVERIFY(writeFile(path, old));

        FileOutputInterface host(path);
        QCOMPARE(host.settings().value("RECORDING").toArray(), recordingRows);
        const auto writable = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
        if (readOnlyDirectory) {
            QFile::setPermissions(dir.path(), QFile::ReadOwner | QFile::ExeOwner);
            if (::access(QFile::encodeName(dir.path()).constData(), W_OK) == 0) {
                QFile::setPermissions(dir.path(), writable);
                QSKIP("this user writes into read-only directories");
            }
        }
        QSignalSpy changed(&host, &MemoryOutputInterface::settingsChanged);
        host.setSettings("RECORDING", QJsonArray());
        const QString error = host.lastError();
        QVERIFY(!host.save());
        QFile::setPermissions(dir.path(), writable);

        QVERIFY(!error.isEmpty());
        QCOMPARE(changed.size(), 1); // the dialogs still learn of the change
        QCOMPARE(readFile(path), old);
        QVERIFY(host.settings().value("RECORDING").toArray().isEmpty());
    }

    void directoryInTheWayIsReportedUntilItIsGone()
    {
        QTemporaryDir dir;
        const QString blocker = dir.filePath("data");
        QVERIFY(writeFile(blocker, "in the way"));
        FileOutputInterface host(blocker + "/setup.json");
        host.setSettings("RECORDING", recordingRows);
        QVERIFY(host.lastError().contains("setup.json"));
        QVERIFY(!host.save());
        QCOMPARE(readFile(blocker), QByteArray("in the way"));

        // Once the location is usable again the next change is written and the error gone.
        QVERIFY(QFile::remove(blocker));
        host.setSettingsObject("GRAB", QJsonObject());
        QVERIFY(host.lastError().isEmpty());
        QCOMPARE(recordingIn(host.fileName()), recordingRows);
    }
};

QTEST_MAIN(tst_FileOutputInterface)
#include "tst_fileoutputinterface.moc"
