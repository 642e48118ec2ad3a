#include "records/codecpreset.h"
#include "stores/filenamingdialog.h"
#include "stores/filetag.h"
#include "stores/snapshot.h"
#include "support/testkit.h"

#include <QtTest>
#include <QtWidgets>

namespace {

CodecPreset recording(const QString& tag, const QString& codec = "H.264", int bitRate = 6000, int quality = 0)
{
    CodecPreset preset;
    preset.local().fileTag = tag;
    preset.videoCodec() = {true, codec, bitRate, 0, 0, 1920, 1080, quality, 0, 0, 0, {}, {}};
    preset.container().name = "mp4";
    preset.setName("Main");
    return preset;
}

CodecPreset named(CodecPreset preset, const QString& name)
{
    preset.setName(name);
    return preset;
}

CodecPreset withSources(CodecPreset preset, const QString& sourceName, const QList<int>& keys)
{
    preset.setSourceName(sourceName);
    for (int key : keys)
        preset.videoSource().insert(key, -1);
    return preset;
}

Snapshot grab(int source, const QString& tag, const QString& directory = QString())
{
    return Snapshot{source, "png", "Grab", directory, tag, {}};
}

} // namespace

Q_DECLARE_METATYPE(Snapshot)

class TestFileTag : public QObject
{
    Q_OBJECT

private slots:
    void init() { FileTag::setClock([] { return QDateTime(QDate(2024, 3, 7), QTime(9, 5, 2)); }); }
    void cleanup()
    {
        FileTag::resetClock();
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void tagsExpand_data()
    {
        QTest::addColumn<QVariant>("record"); // a recording's CodecPreset or a grab's Snapshot
        QTest::addColumn<QString>("name");
        const auto rec = [](const CodecPreset& p) { return QVariant::fromValue(p); };
        const auto still = [](int source, const QString& tag) { return QVariant::fromValue(grab(source, tag)); };

        QTest::newRow("every token") << rec(withSources(recording("%P %Y-%M-%D %h-%m-%s %C_%B_%R %S"), {}, {0}))
                                     << "Main 2024-03-07 09-05-02 H.264_6000Kbps_1920x1080 PGM.mp4";
        QTest::newRow("empty tag") << rec(recording(QString())) << "Untitled.mp4";
        QTest::newRow("doubled and trailing percent") << rec(recording("%%Y take %")) << "%2024 take %.mp4";
        QTest::newRow("unknown token, case matters") << rec(recording("%X-%y %M %m")) << "%X-%y 03 05.mp4";
        QTest::newRow("DV25 fixed rate and size") << rec(recording("%B %R", "DV25", 5000)) << "28770Kbps 720x480.mp4";
        QTest::newRow("MJPEG in whole Mbps") << rec(recording("%B", "MJPEG", 2999)) << "2Mbps.mp4";
        QTest::newRow("ProRes 5 is HQ") << rec(recording("%B", "Apple ProRes", 0, 5)) << "HQ.mp4";
        // A template of many tokens once made a name holding them grow at each token.
        QTest::newRow("values are not expanded again") << rec(named(recording("%P %P"), "[%P] %Y")) << "[%P] %Y [%P] %Y.mp4";
        QTest::newRow("source name wins") << rec(withSources(recording("[%S]"), "Cam 1", {0})) << "[Cam 1].mp4";
        QTest::newRow("other source") << rec(withSources(recording("[%S]"), {}, {5})) << "[].mp4";
        QTest::newRow("grab default") << still(0, "%P %Y-%M-%D %h-%m-%s %S") << "Grab 2024-03-07 09-05-02 PROGRAM.png";
        QTest::newRow("grab, codec tokens untouched") << still(1, "%C_%B_%R %S") << "%C_%B_%R CLEAN PROGRAM.png";
        QTest::newRow("grab, unknown source") << still(4, "x%Sx") << "xx.png";
    }
    void tagsExpand()
    {
        QFETCH(QVariant, record);
        QFETCH(QString, name);
        if (record.canConvert<Snapshot>()) {
            QCOMPARE(FileTag::fromSnapshot(record.value<Snapshot>(), true), name);
        } else {
            const CodecPreset preset = record.value<CodecPreset>();
            QCOMPARE(FileTag::fromCodecPreset(&preset, true), name);
            QCOMPARE(FileTag::fromCodecPreset(&preset, false), name.chopped(4));
        }
    }

    void oneExpansionReadsTheClockOnce()
    {
        int reads = 0;
        QDateTime instant(QDate(2024, 12, 31), QTime(23, 59, 59));
        FileTag::setClock([&] {
            ++reads;
            const QDateTime now = instant;
            instant = instant.addSecs(1);
            return now;
        });

        // A clock read per token would mix two years here.
        const CodecPreset preset = recording("%Y-%M-%D %h:%m:%s %Y");
        QCOMPARE(FileTag::fromCodecPreset(&preset, false), QStringLiteral("2024-12-31 23:59:59 2024"));
        QCOMPARE(FileTag::fromSnapshot(grab(0, "%Y %s %Y"), false), QStringLiteral("2025 00 2025"));
        QCOMPARE(reads, 2);
    }

    void imagePathTakesTheNextFreeName_data()
    {
        QTest::addColumn<QStringList>("existing");
        QTest::addColumn<QString>("tag");
        QTest::addColumn<QString>("expected");

        QTest::newRow("missing directory") << QStringList{} << "%P %S" << "Grab PROGRAM.png";
        QTest::newRow("first gap") << QStringList{"Grab.png", "Grab 3.png"} << "%P" << "Grab 2.png";
        QTest::newRow("directory in the way") << QStringList{"Grab.png/"} << "%P" << "Grab 2.png";
        QTest::newRow("folders in the tag") << QStringList{} << "%Y/%M/%P" << "2024/03/Grab.png";
    }
    void imagePathTakesTheNextFreeName()
    {
        QFETCH(QStringList, existing);
        QFETCH(QString, tag);
        QFETCH(QString, expected);
        QTemporaryDir dir;
        const QString grabs = dir.path() + "/grabs";
        for (const QString& name : existing)
            QVERIFY(name.endsWith('/') ? QDir().mkpath(grabs + '/' + name)
                                       : QDir().mkpath(grabs) && TestKit::writeFile(grabs + '/' + name, {}));

        const QString path = FileTag::imagePath(grab(0, tag, grabs));
        QCOMPARE(path, grabs + QDir::separator() + expected);
        // Its directory is made, the file is not.
        QVERIFY(QFileInfo(path).dir().exists());
        QVERIFY(!QFileInfo::exists(path));
    }
    void namingDialogPreviewsAndWritesTheTag()
    {
        CodecPreset preset = recording("%P");
        FileNamingDialog dialog(nullptr, &preset, nullptr);
        dialog.show();
        auto* name = dialog.findChild<QLabel*>("fileName");
        QCOMPARE(name->text(), QStringLiteral("Main.mp4"));
        QTest::keyClicks(dialog.findChild<QLineEdit*>("fileTag"), " %C");
        // The caller's record changes as the operator types; callers wanting undo pass a copy.
        QCOMPARE(name->text() + " / " + preset.local().fileTag, QStringLiteral("Main H.264.mp4 / %P %C"));
        QVERIFY(dialog.findChild<QWidget*>("codecContainer")->isVisible());
        dialog.close();

        Snapshot shot = grab(1, QString());
        FileNamingDialog grabs(nullptr, nullptr, &shot);
        grabs.show();
        QCOMPARE(grabs.findChild<QLabel*>("fileName")->text(), QStringLiteral("Untitled.png")); // empty still previews
        QVERIFY(!grabs.findChild<QWidget*>("codecContainer")->isVisible()); // codec tokens are for recordings
        grabs.close();
    }
};

QTEST_MAIN(TestFileTag)
#include "tst_filetag.moc"
