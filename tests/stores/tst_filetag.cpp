#include "records/codecpreset.h"
#include "stores/filetag.h"
#include "stores/snapshot.h"

#include <QTranslator>
#include <QtTest>

namespace {

CodecPreset recording(const QString& tag, const QString& codec = "H.264", int bitRate = 6000, int quality = 0)
{
    CodecPreset preset;
    preset.local().fileTag = tag;
    preset.videoCodec().codec = codec;
    preset.videoCodec().bitRate = bitRate;
    preset.videoCodec().width = 1920;
    preset.videoCodec().height = 1080;
    preset.videoCodec().quality = quality;
    preset.container().name = "mp4";
    preset.setName("Main");
    return preset;
}

CodecPreset withSources(CodecPreset preset, const QString& sourceName, const QList<int>& keys)
{
    preset.setSourceName(sourceName);
    for (int key : keys)
        preset.videoSource().insert(key, -1);
    return preset;
}

Snapshot grab(int source, const QString& tag)
{
    Snapshot shot;
    shot.source = source;
    shot.extension = "png";
    shot.name = "Grab";
    shot.fileTag = tag;
    return shot;
}

// Stands in for a loaded translation so the contexts the texts use are checked.
class MarkingTranslator : public QTranslator
{
public:
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        return QLatin1String(context) == QLatin1String("FileTag") ? QString("<%1>").arg(QLatin1String(source))
                                                                  : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

Q_DECLARE_METATYPE(Snapshot)

class TestFileTag : public QObject
{
    Q_OBJECT

private slots:
    void init() { FileTag::setClock([] { return QDateTime(QDate(2024, 3, 7), QTime(9, 5, 2)); }); }
    void cleanup() { FileTag::resetClock(); }
    void codecPresetTags_data()
    {
        QTest::addColumn<CodecPreset>("preset");
        QTest::addColumn<bool>("withExtension");
        QTest::addColumn<QString>("name");

        QTest::newRow("every token") << withSources(recording("%P %Y-%M-%D %h-%m-%s %C_%B_%R %S"), QString(), {0})
                                     << true << "Main 2024-03-07 09-05-02 H.264_6000Kbps_1920x1080 PGM.mp4";
        QTest::newRow("empty tag") << recording(QString()) << true << "Untitled.mp4";
        QTest::newRow("doubled percent") << recording("%%Y") << false << "%2024";
        QTest::newRow("trailing percent") << recording("take %") << false << "take %";
        QTest::newRow("percents only") << recording("%%") << false << "%%";
        QTest::newRow("unknown token") << recording("%X-%Y") << false << "%X-2024";
        QTest::newRow("case matters") << recording("%y %M %m %S") << false << "%y 03 05 ";
        QTest::newRow("token then text") << recording("%mmin") << false << "05min";

        QTest::newRow("DV25 fixed rate and size") << recording("%B %R", "DV25", 5000) << false << "28770Kbps 720x480";
        QTest::newRow("MJPEG in whole Mbps") << recording("%B", "MJPEG", 2500) << false << "2Mbps";
        QTest::newRow("MJPEG below 1 Mbps") << recording("%B", "MJPEG", 999) << false << "0Mbps";
        QTest::newRow("ProRes 5 is HQ") << recording("%B %R", "Apple ProRes", 0, 5) << false << "HQ 1920x1080";
        QTest::newRow("ProRes -2 is PROXY") << recording("%B", "Apple ProRes", 0, -2) << false << "PROXY";

        QTest::newRow("source name wins") << withSources(recording("[%S]"), "Cam 1", {0}) << false << "[Cam 1]";
        QTest::newRow("clean programme") << withSources(recording("[%S]"), QString(), {1}) << false << "[PGM CLEAN]";
        QTest::newRow("lowest key counts")
            << withSources(recording("[%S]"), QString(), {2, 1}) << false << "[PGM CLEAN]";
        QTest::newRow("other source") << withSources(recording("[%S]"), QString(), {5}) << false << "[]";
    }
    void codecPresetTags()
    {
        QFETCH(CodecPreset, preset);
        QFETCH(bool, withExtension);
        QFETCH(QString, name);
        QCOMPARE(FileTag::fromCodecPreset(&preset, withExtension), name);
    }

    void snapshotTags_data()
    {
        QTest::addColumn<Snapshot>("shot");
        QTest::addColumn<bool>("withExtension");
        QTest::addColumn<QString>("name");

        QTest::newRow("grab default") << grab(0, "%P %Y-%M-%D %h-%m-%s %S") << true
                                      << "Grab 2024-03-07 09-05-02 PROGRAM.png";
        QTest::newRow("codec tokens untouched") << grab(0, "%C_%B_%R") << true << "%C_%B_%R.png";
        QTest::newRow("preview") << grab(2, "%S") << false << "PREVIEW";
        QTest::newRow("clean preview") << grab(3, "%S") << false << "CLEAN PREVIEW";
        QTest::newRow("unknown source") << grab(4, "x%Sx") << false << "xx";
        QTest::newRow("empty tag") << grab(0, QString()) << true << "Untitled.png";
    }
    void snapshotTags()
    {
        QFETCH(Snapshot, shot);
        QFETCH(bool, withExtension);
        QFETCH(QString, name);
        QCOMPARE(FileTag::fromSnapshot(shot, withExtension), name);
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

    void textsAreTranslated()
    {
        MarkingTranslator translator;
        QVERIFY(QCoreApplication::installTranslator(&translator));
        const auto remove = qScopeGuard([&] { QCoreApplication::removeTranslator(&translator); });

        const CodecPreset untitled = recording(QString());
        QCOMPARE(FileTag::fromCodecPreset(&untitled, true), QStringLiteral("<Untitled>.mp4"));
        const CodecPreset programme = withSources(recording("%S"), QString(), {1});
        QCOMPARE(FileTag::fromCodecPreset(&programme, false), QStringLiteral("<PGM CLEAN>"));
        QCOMPARE(FileTag::fromSnapshot(grab(3, "%S"), false), QStringLiteral("<CLEAN PREVIEW>"));
    }
};

QTEST_GUILESS_MAIN(TestFileTag)
#include "tst_filetag.moc"
