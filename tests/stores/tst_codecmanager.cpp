#include "codecmanager.h"
#include "filesizelimit.h"
#include "tempstores.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QtTest>

namespace {

CodecPreset makePreset(const QString& codec, int height, double frameRate, int field = 0)
{
    CodecPreset preset;
    preset.videoCodec().codec = codec;
    preset.videoCodec().width = height * 16 / 9;
    preset.videoCodec().height = height;
    preset.videoCodec().frameRate = frameRate;
    preset.videoCodec().field = field;
    preset.audioCodec().enabled = false;
    return preset;
}

CodecPreset withAudio(CodecPreset preset, const QString& codec, int channels, int sampleRate, int bitRate)
{
    preset.audioCodec().enabled = true;
    preset.audioCodec().codec = codec;
    preset.audioCodec().channels = channels;
    preset.audioCodec().sampleRate = sampleRate;
    preset.audioCodec().bitRate = bitRate;
    return preset;
}

QByteArray readAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList entries(const QString& dir)
{
    return QDir(dir).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

} // namespace

class TestCodecManager : public QObject
{
    Q_OBJECT

private slots:
    void labelNamesTheFile_data();
    void labelNamesTheFile();
    void humanReadableSize_data();
    void humanReadableSize();
    void sampleRateTokHz_data();
    void sampleRateTokHz();
    void roundTripKeepsEveryStoredField();
    void collidingLabelsShareOneFile();
    void codecPresetFromName_data();
    void codecPresetFromName();
    void fileMembersComeInFixedOrder();
    void mistypedMembersReadAsDefaults_data();
    void mistypedMembersReadAsDefaults();
    void emptyOrMissingDirectory();
    void labelsNeverLeaveTheStore_data();
    void labelsNeverLeaveTheStore();
    void removeReturnsTrueAlways();
    void uncreatableDirectoryFailsWrite();
    void failedWriteKeepsThePreviousFile();
    void copiesLeaveTheInstanceAlone();
};

void TestCodecManager::labelNamesTheFile_data()
{
    QTest::addColumn<CodecPreset>("preset");
    QTest::addColumn<QString>("label");

    CodecPreset h264 = makePreset(QStringLiteral("H.264"), 1080, 29.97);
    h264.videoCodec().keyFrame = 2;
    h264.videoCodec().bitRate = 6000;
    QTest::newRow("progressive, key frames, audio")
        << withAudio(h264, QStringLiteral("AAC"), 2, 48000, 128)
        << QStringLiteral("H.264 1080p29.97 2s 6Mbps, AACStereo 48kHz 128kbps");

    CodecPreset ntsc = makePreset(QStringLiteral("H.264"), 1080, 30000.0 / 1001);
    QTest::newRow("NTSC rate") << ntsc << QStringLiteral("H.264 1080p29.97");

    CodecPreset mpeg2 = makePreset(QStringLiteral("MPEG-2"), 1080, 25, 1);
    mpeg2.videoCodec().bitRate = 2500;
    QTest::newRow("interlaced") << mpeg2 << QStringLiteral("MPEG-2 1080i25 2.5Mbps");
    QTest::newRow("automatic rate") << makePreset(QStringLiteral("H.264"), 1080, 0) << QStringLiteral("H.264 1080 AUTO");
    QTest::newRow("negative rate") << makePreset(QStringLiteral("HEVC"), 720, -5, 1) << QStringLiteral("HEVC 720 AUTO");

    CodecPreset proRes = makePreset(QStringLiteral("Apple ProRes"), 1080, 25);
    proRes.videoCodec().quality = 9;
    QTest::newRow("ProRes above range") << proRes << QStringLiteral("Apple ProRes 1080p25 XQ");
    proRes.videoCodec().quality = -1;
    QTest::newRow("ProRes below range") << proRes << QStringLiteral("Apple ProRes 1080p25 PROXY");
    proRes.videoCodec().quality = 4;
    QTest::newRow("ProRes 4444") << proRes << QStringLiteral("Apple ProRes 1080p25 4444");

    CodecPreset notProRes = makePreset(QStringLiteral("apple prores"), 1080, 25);
    notProRes.videoCodec().quality = 3;
    QTest::newRow("profile only for the exact name") << notProRes << QStringLiteral("apple prores 1080p25");

    const CodecPreset base = makePreset(QStringLiteral("H.264"), 1080, 50);
    QTest::newRow("six channels are Mono") << withAudio(base, QStringLiteral("AC3"), 6, 48000, 384)
                                           << QStringLiteral("H.264 1080p50, AC3Mono 48kHz 384kbps");
    QTest::newRow("one channel, no audio rate") << withAudio(base, QStringLiteral("PCM"), 1, 44100, 0)
                                                << QStringLiteral("H.264 1080p50, PCMMono 44.1kHz");

    CodecPreset audioOnly = withAudio(base, QStringLiteral("AAC"), 2, 22050, 64);
    audioOnly.videoCodec().enabled = false;
    QTest::newRow("audio only") << audioOnly << QStringLiteral(", AACStereo 22.05kHz 64kbps");

    // Placeholders inside a codec name must not be filled by later arguments.
    QTest::newRow("placeholder in name") << makePreset(QStringLiteral("X%1%2"), 480, 30)
                                         << QStringLiteral("X%1%2 480p30");
}

void TestCodecManager::labelNamesTheFile()
{
    QFETCH(CodecPreset, preset);
    QFETCH(QString, label);

    QCOMPARE(CodecManager::namingFromPreset(&preset), label);

    TempStores stores;
    QVERIFY(stores.isValid());
    QVERIFY(stores.codecManager().write(preset));
    QCOMPARE(entries(stores.codecDir()), QStringList{label + QStringLiteral(".json")});

    stores.codecManager().reloadPresets();
    QCOMPARE(stores.codecManager().codecPresets().size(), 1);
    // Everything but the video part's switch is in the file.
    CodecPreset expected = preset;
    expected.videoCodec().enabled = true;
    QVERIFY(stores.codecManager().codecPresets().first() == expected);
}

void TestCodecManager::humanReadableSize_data()
{
    QTest::addColumn<qint64>("kbps");
    QTest::addColumn<QString>("text");
    QTest::newRow("1000") << qint64(1000) << QStringLiteral("1Mbps");
    QTest::newRow("2500") << qint64(2500) << QStringLiteral("2.5Mbps");
    QTest::newRow("999") << qint64(999) << QStringLiteral("999kbps");
    QTest::newRow("800") << qint64(800) << QStringLiteral("800kbps");
    QTest::newRow("6000") << qint64(6000) << QStringLiteral("6Mbps");
    QTest::newRow("1234 rounds to one decimal") << qint64(1234) << QStringLiteral("1.2Mbps");
    QTest::newRow("5000000") << qint64(5000000) << QStringLiteral("5Gbps");
    QTest::newRow("1500000") << qint64(1500000) << QStringLiteral("1.5Gbps");
    QTest::newRow("1000000000 stays Gbps") << qint64(1000000000) << QStringLiteral("1000Gbps");
    QTest::newRow("0") << qint64(0) << QStringLiteral("0kbps");
}

void TestCodecManager::humanReadableSize()
{
    QFETCH(qint64, kbps);
    QFETCH(QString, text);
    QCOMPARE(CodecManager::humanReadableSize(kbps), text);
}

void TestCodecManager::sampleRateTokHz_data()
{
    QTest::addColumn<int>("hz");
    QTest::addColumn<QString>("text");
    QTest::newRow("44100") << 44100 << QStringLiteral("44.1");
    QTest::newRow("48000") << 48000 << QStringLiteral("48");
    QTest::newRow("22050") << 22050 << QStringLiteral("22.05");
    QTest::newRow("88200") << 88200 << QStringLiteral("88.2");
    QTest::newRow("96000") << 96000 << QStringLiteral("96");
    QTest::newRow("11025 below the two-decimal band") << 11025 << QStringLiteral("11.0");
    QTest::newRow("0") << 0 << QStringLiteral("0");
}

void TestCodecManager::sampleRateTokHz()
{
    QFETCH(int, hz);
    QFETCH(QString, text);
    QCOMPARE(CodecManager::sampleRateTokHz(hz), text);
}

void TestCodecManager::roundTripKeepsEveryStoredField()
{
    CodecPreset preset = withAudio(makePreset(QStringLiteral("HEVC"), 2160, 59.94), QStringLiteral("Opus"), 2, 48000, 160);
    CodecModel::VideoCodec& v = preset.videoCodec();
    v.width = 3840;
    v.keyFrame = 1;
    v.bitRate = 35000;
    v.quality = 23;
    v.preset = QStringLiteral("slow");
    v.tune = QStringLiteral("film \"grain\"");
    v.profile = 2;
    v.bframes = 3;
    preset.audioCodec().bitPerSamples = 24;

    TempStores stores;
    QVERIFY(stores.codecManager().write(preset));
    QVERIFY(stores.codecManager().codecPresets().isEmpty()); // only a reload reads files
    stores.codecManager().reloadPresets();
    QCOMPARE(stores.codecManager().codecPresets().size(), 1);
    QVERIFY(stores.codecManager().codecPresets().first() == preset);

    // A second manager over the same directory sees the same preset at once.
    const CodecManager other(stores.settings());
    QCOMPARE(other.codecPresets().size(), 1);
    QVERIFY(other.codecPresets().first() == preset);
}

void TestCodecManager::collidingLabelsShareOneFile()
{
    CodecPreset first = makePreset(QStringLiteral("H.264"), 720, 30);
    first.videoCodec().tune = QStringLiteral("film");
    CodecPreset second = first;
    second.videoCodec().tune = QStringLiteral("animation");
    second.videoCodec().bframes = 4;
    QCOMPARE(CodecManager::namingFromPreset(&first), CodecManager::namingFromPreset(&second));

    TempStores stores;
    QVERIFY(stores.codecManager().write(first));
    QVERIFY(stores.codecManager().write(second));
    QCOMPARE(entries(stores.codecDir()).size(), 1);
    stores.codecManager().reloadPresets();
    QCOMPARE(stores.codecManager().codecPresets().size(), 1);
    QVERIFY(stores.codecManager().codecPresets().first() == second);
}

void TestCodecManager::codecPresetFromName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QList<int>>("heights");
    QTest::newRow("two H.264") << QStringLiteral("H.264") << QList<int>{720, 1080};
    QTest::newRow("one HEVC") << QStringLiteral("HEVC") << QList<int>{2160};
    QTest::newRow("case matters") << QStringLiteral("h.264") << QList<int>{};
    QTest::newRow("no prefix match") << QStringLiteral("H.264 NVENC") << QList<int>{};
    QTest::newRow("empty") << QString() << QList<int>{};
}

void TestCodecManager::codecPresetFromName()
{
    QFETCH(QString, name);
    QFETCH(QList<int>, heights);

    TempStores stores;
    QVERIFY(stores.codecManager().write(makePreset(QStringLiteral("H.264"), 720, 30)));
    QVERIFY(stores.codecManager().write(makePreset(QStringLiteral("HEVC"), 2160, 30)));
    QVERIFY(stores.codecManager().write(makePreset(QStringLiteral("H.264"), 1080, 30)));
    stores.codecManager().reloadPresets();

    const QList<CodecPreset> found = stores.codecManager().codecPresetFromName(name);
    QList<int> foundHeights;
    for (const CodecPreset& preset : found) {
        QCOMPARE(preset.videoCodec().codec, name);
        foundHeights << preset.videoCodec().height;
    }
    std::sort(foundHeights.begin(), foundHeights.end()); // list order is the directory's
    QCOMPARE(foundHeights, heights);
}

void TestCodecManager::fileMembersComeInFixedOrder()
{
    const CodecPreset preset = withAudio(makePreset(QStringLiteral("H.264"), 1080, 25), QStringLiteral("AAC"), 2, 48000, 128);
    TempStores stores;
    QVERIFY(stores.codecManager().write(preset));
    const QByteArray text = readAll(stores.codecDir() + QStringLiteral("/H.264 1080p25, AACStereo 48kHz 128kbps.json"));

    QStringList keys;
    const QRegularExpression keyPattern(QStringLiteral("\"(\\w+)\":"));
    for (auto it = keyPattern.globalMatch(QString::fromUtf8(text)); it.hasNext();)
        keys << it.next().captured(1);
    const QStringList expected = QStringLiteral(
        "VideoCodec Codec Width Height FrameRate Field KeyFrame BitRate Quality Preset Tune Profile Bframes "
        "AudioCodec Enabled Codec Channels SampleRate BitRate BitPerSamples").split(QLatin1Char(' '));
    QCOMPARE(keys, expected);

    QVERIFY(text.contains("\n    \"VideoCodec\": {\n        \"Codec\": \"H.264\",\n"));
    const QJsonObject object = QJsonDocument::fromJson(text).object();
    QVERIFY(object.value(QStringLiteral("VideoCodec")).toObject().value(QStringLiteral("FrameRate")).isDouble());
    QVERIFY(object.value(QStringLiteral("AudioCodec")).toObject().value(QStringLiteral("Enabled")).isBool());
    QVERIFY(object.value(QStringLiteral("VideoCodec")).toObject().value(QStringLiteral("Preset")).isString());
}

void TestCodecManager::mistypedMembersReadAsDefaults_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<int>("width");
    QTest::addColumn<double>("frameRate");
    QTest::addColumn<QString>("codec");
    QTest::addColumn<bool>("audioEnabled");
    QTest::addColumn<int>("channels");

    QTest::newRow("well typed")
        << QByteArray(R"({"VideoCodec":{"Codec":"HEVC","Width":1280,"FrameRate":50},
                         "AudioCodec":{"Enabled":true,"Channels":2}})")
        << 1280 << 50.0 << QStringLiteral("HEVC") << true << 2;
    QTest::newRow("strings for numbers and bool")
        << QByteArray(R"({"VideoCodec":{"Codec":"HEVC","Width":"1280","FrameRate":"50"},
                         "AudioCodec":{"Enabled":"true","Channels":"2"}})")
        << 0 << 0.0 << QStringLiteral("HEVC") << false << 0;
    QTest::newRow("number for string, fraction for int")
        << QByteArray(R"({"VideoCodec":{"Codec":264,"Width":1280.5,"FrameRate":29.97},
                         "AudioCodec":{"Enabled":1,"Channels":null}})")
        << 0 << 29.97 << QString() << false << 0;
    QTest::newRow("parts that are not objects")
        << QByteArray(R"({"VideoCodec":[1280],"AudioCodec":"AAC"})") << 0 << 0.0 << QString() << false << 0;
    QTest::newRow("unknown members only") << QByteArray(R"({"Name":"mine"})") << 0 << 0.0 << QString() << false << 0;
}

void TestCodecManager::mistypedMembersReadAsDefaults()
{
    QFETCH(QByteArray, json);
    QFETCH(int, width);
    QFETCH(double, frameRate);
    QFETCH(QString, codec);
    QFETCH(bool, audioEnabled);
    QFETCH(int, channels);

    TempStores stores;
    stores.writeCodecFile(QStringLiteral("hand made.json"), json);
    stores.codecManager().reloadPresets();
    QCOMPARE(stores.codecManager().codecPresets().size(), 1);
    const CodecPreset& preset = stores.codecManager().codecPresets().first();
    QCOMPARE(preset.videoCodec().width, width);
    QCOMPARE(preset.videoCodec().frameRate, frameRate);
    QCOMPARE(preset.videoCodec().codec, codec);
    QCOMPARE(preset.audioCodec().enabled, audioEnabled);
    QCOMPARE(preset.audioCodec().channels, channels);
    QVERIFY(preset.videoCodec().enabled); // not in the file: the record's default
}

void TestCodecManager::emptyOrMissingDirectory()
{
    TempStores stores;
    stores.writeCodecFile(QStringLiteral("notes.txt"), R"({"VideoCodec":{"Codec":"H.264"}})");
    stores.writeCodecFile(QStringLiteral("preset.json.bak"), R"({"VideoCodec":{"Codec":"H.264"}})");
    stores.codecManager().reloadPresets();
    QVERIFY(stores.codecManager().codecPresets().isEmpty());

    const CodecManager missing(ContentsSettings(stores.root() + QStringLiteral("/nowhere"), QString()));
    QVERIFY(missing.codecPresets().isEmpty());
    QVERIFY(!QFileInfo::exists(stores.root() + QStringLiteral("/nowhere")));
}

void TestCodecManager::labelsNeverLeaveTheStore_data()
{
    QTest::addColumn<QString>("codec");
    QTest::newRow("parent path") << QStringLiteral("../../escaped");
    QTest::newRow("absolute path") << QStringLiteral("/tmp/escaped");
    QTest::newRow("backslashes") << QStringLiteral("..\\..\\escaped");
    QTest::newRow("dots only") << QStringLiteral("..");
    QTest::newRow("leading dot") << QStringLiteral(".hidden");
}

void TestCodecManager::labelsNeverLeaveTheStore()
{
    QFETCH(QString, codec);
    TempStores stores;
    const CodecPreset preset = makePreset(codec, 1080, 25);

    QVERIFY(stores.codecManager().write(preset));
    QCOMPARE(entries(stores.root()), (QStringList{QStringLiteral("codecs"), QStringLiteral("servers")}));
    QCOMPARE(entries(stores.codecDir()).size(), 1);
    QVERIFY(QFileInfo(stores.codecDir() + QLatin1Char('/') + entries(stores.codecDir()).first()).isFile());

    stores.codecManager().reloadPresets();
    QCOMPARE(stores.codecManager().codecPresets().size(), 1);
    QCOMPARE(stores.codecManager().codecPresets().first().videoCodec().codec, codec);

    QVERIFY(stores.codecManager().remove(preset));
    QVERIFY(entries(stores.codecDir()).isEmpty());
}

void TestCodecManager::removeReturnsTrueAlways()
{
    TempStores stores;
    const CodecPreset kept = makePreset(QStringLiteral("H.264"), 720, 30);
    const CodecPreset gone = makePreset(QStringLiteral("H.264"), 1080, 30);
    QVERIFY(stores.codecManager().write(kept));
    QVERIFY(stores.codecManager().write(gone));
    stores.codecManager().reloadPresets();

    QVERIFY(stores.codecManager().remove(gone));
    QCOMPARE(entries(stores.codecDir()), QStringList{QStringLiteral("H.264 720p30.json")});
    QCOMPARE(stores.codecManager().codecPresets().size(), 2); // until reloaded
    QVERIFY(stores.codecManager().remove(gone));
    QVERIFY(stores.codecManager().remove(makePreset(QStringLiteral("never written"), 1, 1)));
    QCOMPARE(entries(stores.codecDir()), QStringList{QStringLiteral("H.264 720p30.json")});

    // A directory in the preset's place is not a preset file.
    QVERIFY(QDir(stores.codecDir()).mkdir(QStringLiteral("H.264 1080p30.json")));
    QVERIFY(stores.codecManager().remove(gone));
    QVERIFY(QFileInfo(stores.codecDir() + QStringLiteral("/H.264 1080p30.json")).isDir());
}

void TestCodecManager::uncreatableDirectoryFailsWrite()
{
    TempStores stores;
    const QString blocker = stores.root() + QStringLiteral("/plain file");
    QFile file(blocker);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();

    CodecManager blocked(ContentsSettings(blocker + QStringLiteral("/codecs"), QString()));
    QTest::ignoreMessage(QtWarningMsg, "Couldn't open save file.");
    QVERIFY(!blocked.write(makePreset(QStringLiteral("H.264"), 1080, 25)));
    QVERIFY(QFileInfo(blocker).isFile());
    QCOMPARE(QFileInfo(blocker).size(), qint64(0));
}

void TestCodecManager::failedWriteKeepsThePreviousFile()
{
    TempStores stores;
    CodecPreset preset = makePreset(QStringLiteral("H.264"), 1080, 25);
    preset.videoCodec().tune = QStringLiteral("old");
    QVERIFY(stores.codecManager().write(preset));
    const QString path = stores.codecDir() + QStringLiteral("/H.264 1080p25.json");
    const QByteArray before = readAll(path);
    QVERIFY(!before.isEmpty());

    preset.videoCodec().tune = QString(4096, QLatin1Char('n'));
    bool written = true;
    {
        FileSizeLimit full(64);
        QVERIFY(full.isActive());
        QTest::ignoreMessage(QtWarningMsg, "Couldn't open save file.");
        written = stores.codecManager().write(preset);
    }
    QVERIFY(!written);
    QCOMPARE(readAll(path), before);
    QCOMPARE(entries(stores.codecDir()), QStringList{QStringLiteral("H.264 1080p25.json")});
}

void TestCodecManager::copiesLeaveTheInstanceAlone()
{
    QVERIFY(!CodecManager::getInstancePtr());
    {
        TempStores stores;
        QVERIFY(stores.codecManager().write(makePreset(QStringLiteral("H.264"), 1080, 25)));
        stores.codecManager().reloadPresets();
        CodecManager* const instance = &stores.codecManager();
        QCOMPARE(CodecManager::getInstancePtr(), instance);
        QCOMPARE(&CodecManager::getInstance(), instance);
        {
            CodecManager copy(*instance);
            QCOMPARE(copy.codecPresets().size(), 1);
            QCOMPARE(copy.presetDirectory(), stores.codecDir());
            copy.reloadPresets();
            copy = *instance;
            QCOMPARE(copy.codecPresets().size(), 1);
            QCOMPARE(CodecManager::getInstancePtr(), instance);
        }
        QCOMPARE(CodecManager::getInstancePtr(), instance);
    }
    QVERIFY(!CodecManager::getInstancePtr());
}

QTEST_GUILESS_MAIN(TestCodecManager)
#include "tst_codecmanager.moc"
