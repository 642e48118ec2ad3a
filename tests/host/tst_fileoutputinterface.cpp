#include "fileoutputinterface.h"

#include <QtTest>

#include <unistd.h>

namespace {

QByteArray readAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeAll(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly | QIODevice::Truncate), qPrintable(path));
    file.write(bytes);
}

const QJsonArray recordingRows{QJsonObject{{QStringLiteral("Name"), QStringLiteral("Program")},
                                           {QStringLiteral("Codec"), QStringLiteral("H.264")}}};

} // namespace

class tst_FileOutputInterface : public QObject
{
    Q_OBJECT

private slots:
    void missingFileStartsEmptyAndIsCreatedOnFirstChange()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("nested/setup.json"));
        FileOutputInterface host(path);
        QVERIFY(host.settings().isEmpty());
        QVERIFY(host.corruptFileKeptAs().isEmpty());
        QVERIFY(!QFile::exists(path));

        host.setSettings(QStringLiteral("RECORDING"), recordingRows);
        QVERIFY(QFile::exists(path));
        QVERIFY(host.lastError().isEmpty());
    }

    void roundTripThroughTheFile()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("setup.json"));
        const QJsonObject playout{{QStringLiteral("SDI 1"), QJsonObject{{QStringLiteral("DeviceName"),
                                                                          QStringLiteral("SDI 4K Port 1")}}}};
        {
            FileOutputInterface host(path);
            QSignalSpy changed(&host, &MemoryOutputInterface::settingsChanged);
            host.setSettings(QStringLiteral("RECORDING"), recordingRows);
            host.setSettingsObject(QStringLiteral("PLAYOUT"), playout);
            QCOMPARE(changed.size(), 2);
            QCOMPARE(changed.at(1).at(0).toString(), QStringLiteral("PLAYOUT"));
        }
        // What is on disk is the setup object itself, readable by anyone.
        const QJsonObject onDisk = QJsonDocument::fromJson(readAll(path)).object();
        QCOMPARE(onDisk.value(QStringLiteral("RECORDING")).toArray(), recordingRows);

        FileOutputInterface again(path);
        QVERIFY(again.corruptFileKeptAs().isEmpty());
        QCOMPARE(again.settings().value(QStringLiteral("RECORDING")).toArray(), recordingRows);
        QCOMPARE(again.settings().value(QStringLiteral("PLAYOUT")).toObject(), playout);
    }

    void writeLeavesNoTemporaryBehind()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("setup.json"));
        FileOutputInterface host(path);
        for (int i = 0; i < 3; ++i)
            host.setSettingsObject(QStringLiteral("ISOCORDER"), QJsonObject{{QStringLiteral("Round"), i}});
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden), QStringList{QStringLiteral("setup.json")});
        QCOMPARE(FileOutputInterface(path).settings().value(QStringLiteral("ISOCORDER")).toObject().value(
                     QStringLiteral("Round")).toInt(),
                 2);
    }

    void corruptFileIsKeptAside_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("truncated by a crash") << QByteArray("{\"STREAMING\": [ {\"Name\": \"a\"");
        QTest::newRow("an array, not an object") << QByteArray("[1, 2, 3]");
        QTest::newRow("binary garbage") << QByteArray("\x00\xff\xfe garbage", 12);
        QTest::newRow("empty file") << QByteArray();
        QTest::newRow("a bare string") << QByteArray("\"RECORDING\"");
    }
    void corruptFileIsKeptAside()
    {
        QFETCH(QByteArray, content);
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("setup.json"));
        writeAll(path, content);

        FileOutputInterface host(path);
        const QString aside = host.corruptFileKeptAs();
        QVERIFY(!aside.isEmpty());
        QVERIFY(aside != path);
        QCOMPARE(QFileInfo(aside).absolutePath(), QFileInfo(path).absolutePath());
        QCOMPARE(readAll(aside), content);
        QVERIFY(host.settings().isEmpty());

        // The next change writes a fresh file; the kept copy stays as it was.
        host.setSettings(QStringLiteral("RECORDING"), recordingRows);
        QVERIFY(host.lastError().isEmpty());
        QCOMPARE(FileOutputInterface(path).settings().value(QStringLiteral("RECORDING")).toArray(), recordingRows);
        QCOMPARE(readAll(aside), content);
    }

    void twoCorruptFilesInOneSecondAreBothKept()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("setup.json"));
        writeAll(path, "first {");
        const QString first = FileOutputInterface(path).corruptFileKeptAs();
        writeAll(path, "second {");
        const QString second = FileOutputInterface(path).corruptFileKeptAs();

        QVERIFY(first != second);
        QCOMPARE(readAll(first), QByteArray("first {"));
        QCOMPARE(readAll(second), QByteArray("second {"));
    }

    void unwritableLocationKeepsTheOldFile_data()
    {
        QTest::addColumn<QString>("fileName");
        QTest::addColumn<bool>("readOnlyDirectory");
        // A name so long that no temporary file fits beside it: refused even for root.
        QTest::newRow("no room for a temporary name") << QString(245, QLatin1Char('s')) + QStringLiteral(".json")
                                                      << false;
        QTest::newRow("read-only directory") << QStringLiteral("setup.json") << true;
    }
    void unwritableLocationKeepsTheOldFile()
    {
        QFETCH(QString, fileName);
        QFETCH(bool, readOnlyDirectory);
        QTemporaryDir dir;
        const QString path = dir.filePath(fileName);
        const QByteArray old = QJsonDocument(QJsonObject{{QStringLiteral("RECORDING"), recordingRows}}).toJson();
        writeAll(path, old);

        FileOutputInterface host(path);
        QCOMPARE(host.settings().value(QStringLiteral("RECORDING")).toArray(), recordingRows);
        if (readOnlyDirectory) {
            QFile::setPermissions(dir.path(), QFile::ReadOwner | QFile::ExeOwner);
            if (::access(QFile::encodeName(dir.path()).constData(), W_OK) == 0) {
                QFile::setPermissions(dir.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
                QSKIP("this user writes into read-only directories");
            }
        }

        QSignalSpy changed(&host, &MemoryOutputInterface::settingsChanged);
        host.setSettings(QStringLiteral("RECORDING"), QJsonArray());
        const QString error = host.lastError();
        QVERIFY(!host.save());
        if (readOnlyDirectory)
            QFile::setPermissions(dir.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);

        QVERIFY(!error.isEmpty());
        QCOMPARE(changed.size(), 1); // the dialogs still learn of the change
        QCOMPARE(readAll(path), old);
        QVERIFY(host.settings().value(QStringLiteral("RECORDING")).toArray().isEmpty());
    }

    void directoryThatCannotBeMadeIsReported()
    {
        QTemporaryDir dir;
        const QString blocker = dir.filePath(QStringLiteral("data"));
        writeAll(blocker, "not a directory");
        FileOutputInterface host(blocker + QStringLiteral("/setup.json"));

        QVERIFY(!host.save());
        QVERIFY(!host.lastError().isEmpty());
        QCOMPARE(readAll(blocker), QByteArray("not a directory"));
    }

    void goodWriteClearsTheLastError()
    {
        QTemporaryDir dir;
        const QString blocker = dir.filePath(QStringLiteral("data"));
        writeAll(blocker, "in the way");
        FileOutputInterface host(blocker + QStringLiteral("/setup.json"));
        host.setSettings(QStringLiteral("RECORDING"), recordingRows);
        QVERIFY(host.lastError().contains(QStringLiteral("setup.json")));

        // Once the location is usable again the next change is written and the error gone.
        QVERIFY(QFile::remove(blocker));
        host.setSettingsObject(QStringLiteral("GRAB"), QJsonObject());
        QVERIFY(host.lastError().isEmpty());
        QCOMPARE(FileOutputInterface(host.fileName()).settings().value(QStringLiteral("RECORDING")).toArray(),
                 recordingRows);
    }
};

QTEST_MAIN(tst_FileOutputInterface)
#include "tst_fileoutputinterface.moc"
