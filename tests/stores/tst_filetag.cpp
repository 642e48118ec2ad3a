#include "codecpreset.h"
#include "filetag.h"
#include "snapshot.h"

#include <QTranslator>
#include <QtTest>

namespace {

const QDateTime fixedInstant(QDate(2024, 3, 7), QTime(9, 5, 2));

CodecPreset recording(const QString& tag, const QString& codec, int bitRate, int quality = 0)
{
    CodecPreset preset;
    preset.local().fileTag = tag;
    preset.videoCodec().codec = codec;
    preset.videoCodec().bitRate = bitRate;
    preset.videoCodec().width = 1920;
    preset.videoCodec().height = 1080;
    preset.videoCodec().quality = quality;
    preset.container().name = QStringLiteral("mp4");
    preset.setName(QStringLiteral("Main"));
    return preset;
}

CodecPreset withSources(CodecPreset preset, const QString& sourceName, const QList<int>& keys)
{
    preset.setSourceName(sourceName);
    for (int key : keys)
        preset.videoSource().insert(key, -1);
    return preset;
}

// Stands in for a loaded translation so the contexts the texts use are checked.
class MarkingTranslator : public QTranslator
{
public:
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        return QLatin1String(context) == QLatin1String("FileTag") ? QStringLiteral("<%1>").arg(QLatin1String(source))
                                                                 : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class TestFileTag : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void codecPresetTags_data();
    void codecPresetTags();
    void snapshotTags_data();
    void snapshotTags();
    void oneExpansionReadsTheClockOnce();
    void textsAreTranslated();
};

void TestFileTag::init()
{
    FileTag::setClock([] { return fixedInstant; });
}

void TestFileTag::cleanup()
{
    FileTag::resetClock();
}

void TestFileTag::codecPresetTags_data()
{
    QTest::addColumn<CodecPreset>("preset");
    QTest::addColumn<bool>("withExtension");
    QTest::addColumn<QString>("name");

    const CodecPreset h264 = recording(QString(), QStringLiteral("H.264"), 6000);
    auto tagged = [](CodecPreset preset, const QString& tag) {
        preset.local().fileTag = tag;
        return preset;
    };

    QTest::newRow("every token")
        << withSources(tagged(h264, QStringLiteral("%P %Y-%M-%D %h-%m-%s %C_%B_%R %S")), QString(), {0})
        << true << QStringLiteral("Main 2024-03-07 09-05-02 H.264_6000Kbps_1920x1080 PGM.mp4");
    QTest::newRow("without extension") << tagged(h264, QStringLiteral("%Y%M%D")) << false << QStringLiteral("20240307");
    QTest::newRow("empty tag") << h264 << true << QStringLiteral("Untitled.mp4");
    QTest::newRow("empty tag, no extension") << h264 << false << QStringLiteral("Untitled");
    QTest::newRow("doubled percent") << tagged(h264, QStringLiteral("%%Y")) << false << QStringLiteral("%2024");
    QTest::newRow("year twice") << tagged(h264, QStringLiteral("%Y%Y")) << false << QStringLiteral("20242024");
    QTest::newRow("trailing percent") << tagged(h264, QStringLiteral("take %")) << false << QStringLiteral("take %");
    QTest::newRow("percents only") << tagged(h264, QStringLiteral("%%")) << false << QStringLiteral("%%");
    QTest::newRow("unknown token") << tagged(h264, QStringLiteral("%X-%Y")) << false << QStringLiteral("%X-2024");
    QTest::newRow("case matters") << tagged(h264, QStringLiteral("%y %M %m %S")) << false << QStringLiteral("%y 03 05 ");
    QTest::newRow("token then text") << tagged(h264, QStringLiteral("%mmin")) << false << QStringLiteral("05min");
    QTest::newRow("text before tokens") << tagged(h264, QStringLiteral("Show %h:%m")) << false << QStringLiteral("Show 09:05");

    QTest::newRow("DV25 fixed rate and size") << recording(QStringLiteral("%B %R"), QStringLiteral("DV25"), 5000)
                                              << false << QStringLiteral("28770Kbps 720x480");
    QTest::newRow("MJPEG in whole Mbps") << recording(QStringLiteral("%B"), QStringLiteral("MJPEG"), 2500) << false
                                         << QStringLiteral("2Mbps");
    QTest::newRow("MJPEG below 1 Mbps") << recording(QStringLiteral("%B"), QStringLiteral("MJPEG"), 999) << false
                                        << QStringLiteral("0Mbps");
    QTest::newRow("ProRes 5 is HQ") << recording(QStringLiteral("%B"), QStringLiteral("Apple ProRes"), 0, 5) << false
                                    << QStringLiteral("HQ");
    QTest::newRow("ProRes -2 is PROXY") << recording(QStringLiteral("%B"), QStringLiteral("Apple ProRes"), 0, -2)
                                        << false << QStringLiteral("PROXY");
    QTest::newRow("ProRes 1 is LT") << recording(QStringLiteral("%B"), QStringLiteral("Apple ProRes"), 0, 1) << false
                                    << QStringLiteral("LT");
    QTest::newRow("ProRes keeps its size") << recording(QStringLiteral("%R"), QStringLiteral("Apple ProRes"), 0, 3)
                                           << false << QStringLiteral("1920x1080");

    const CodecPreset source = recording(QStringLiteral("[%S]"), QStringLiteral("H.264"), 6000);
    QTest::newRow("source name wins") << withSources(source, QStringLiteral("Cam 1"), {0}) << false
                                      << QStringLiteral("[Cam 1]");
    QTest::newRow("programme") << withSources(source, QString(), {0}) << false << QStringLiteral("[PGM]");
    QTest::newRow("clean programme") << withSources(source, QString(), {1}) << false << QStringLiteral("[PGM CLEAN]");
    QTest::newRow("preview") << withSources(source, QString(), {2}) << false << QStringLiteral("[PVW]");
    QTest::newRow("lowest key counts") << withSources(source, QString(), {2, 1}) << false
                                       << QStringLiteral("[PGM CLEAN]");
    QTest::newRow("other source") << withSources(source, QString(), {5}) << false << QStringLiteral("[]");
    QTest::newRow("no source") << source << false << QStringLiteral("[]");
}

void TestFileTag::codecPresetTags()
{
    QFETCH(CodecPreset, preset);
    QFETCH(bool, withExtension);
    QFETCH(QString, name);
    QCOMPARE(FileTag::fromCodecPreset(&preset, withExtension), name);
}

void TestFileTag::snapshotTags_data()
{
    QTest::addColumn<int>("source");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<bool>("withExtension");
    QTest::addColumn<QString>("name");

    QTest::newRow("grab default") << 0 << QStringLiteral("%P %Y-%M-%D %h-%m-%s %S") << true
                                  << QStringLiteral("Grab 2024-03-07 09-05-02 PROGRAM.png");
    QTest::newRow("codec tokens untouched") << 0 << QStringLiteral("%C_%B_%R") << true << QStringLiteral("%C_%B_%R.png");
    QTest::newRow("clean programme") << 1 << QStringLiteral("%S") << false << QStringLiteral("CLEAN PROGRAM");
    QTest::newRow("preview") << 2 << QStringLiteral("%S") << false << QStringLiteral("PREVIEW");
    QTest::newRow("clean preview") << 3 << QStringLiteral("%S") << false << QStringLiteral("CLEAN PREVIEW");
    QTest::newRow("unknown source") << 4 << QStringLiteral("x%Sx") << false << QStringLiteral("xx");
    QTest::newRow("empty tag") << 0 << QString() << true << QStringLiteral("Untitled.png");
    QTest::newRow("doubled percent") << 0 << QStringLiteral("%%s") << false << QStringLiteral("%02");
}

void TestFileTag::snapshotTags()
{
    QFETCH(int, source);
    QFETCH(QString, tag);
    QFETCH(bool, withExtension);
    QFETCH(QString, name);

    Snapshot shot;
    shot.source = source;
    shot.extension = QStringLiteral("png");
    shot.name = QStringLiteral("Grab");
    shot.fileTag = tag;
    QCOMPARE(FileTag::fromSnapshot(shot, withExtension), name);
}

void TestFileTag::oneExpansionReadsTheClockOnce()
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
    const CodecPreset preset = recording(QStringLiteral("%Y-%M-%D %h:%m:%s %Y"), QStringLiteral("H.264"), 1);
    QCOMPARE(FileTag::fromCodecPreset(&preset, false), QStringLiteral("2024-12-31 23:59:59 2024"));
    QCOMPARE(reads, 1);

    Snapshot shot;
    shot.fileTag = QStringLiteral("%Y %s %Y");
    QCOMPARE(FileTag::fromSnapshot(shot, false), QStringLiteral("2025 00 2025"));
    QCOMPARE(reads, 2);
}

void TestFileTag::textsAreTranslated()
{
    MarkingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const auto remove = qScopeGuard([&] { QCoreApplication::removeTranslator(&translator); });

    const CodecPreset untitled = recording(QString(), QStringLiteral("H.264"), 1);
    QCOMPARE(FileTag::fromCodecPreset(&untitled, true), QStringLiteral("<Untitled>.mp4"));
    const CodecPreset programme = withSources(recording(QStringLiteral("%S"), QStringLiteral("H.264"), 1), QString(), {1});
    QCOMPARE(FileTag::fromCodecPreset(&programme, false), QStringLiteral("<PGM CLEAN>"));

    Snapshot shot;
    shot.source = 3;
    shot.fileTag = QStringLiteral("%S");
    QCOMPARE(FileTag::fromSnapshot(shot, false), QStringLiteral("<CLEAN PREVIEW>"));
}

QTEST_GUILESS_MAIN(TestFileTag)
#include "tst_filetag.moc"
