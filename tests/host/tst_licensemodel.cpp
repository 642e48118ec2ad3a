#include "licensemodel.h"

#include <QtTest>

#include <functional>

namespace {

using Getter = std::function<QVariant(const LicenseModel&)>;

const QMap<QString, Getter>& getters()
{
    static const QMap<QString, Getter> map{
        {QStringLiteral("MaxWidth"), [](const LicenseModel& m) { return QVariant(m.maxWidth()); }},
        {QStringLiteral("MaxHeight"), [](const LicenseModel& m) { return QVariant(m.maxHeight()); }},
        {QStringLiteral("MaxStreaming"), [](const LicenseModel& m) { return QVariant(m.maxStreaming()); }},
        {QStringLiteral("MaxRecording"), [](const LicenseModel& m) { return QVariant(m.maxRecording()); }},
        {QStringLiteral("MaxIsoRecording"), [](const LicenseModel& m) { return QVariant(m.maxIsoRecording()); }},
        {QStringLiteral("MaxGrab"), [](const LicenseModel& m) { return QVariant(m.maxGrab()); }},
        {QStringLiteral("MaxOutput"), [](const LicenseModel& m) { return QVariant(m.maxOutput()); }},
        {QStringLiteral("AudioBus"), [](const LicenseModel& m) { return QVariant(m.audioBusEnabled()); }},
    };
    return map;
}

int allBits(const QMap<QString, int>& codecs)
{
    int mask = 0;
    for (int bit : codecs)
        mask |= bit;
    return mask;
}

} // namespace

class tst_LicenseModel : public QObject
{
    Q_OBJECT

private slots:
    void emptyObjectGivesTheDefaults()
    {
        const LicenseModel m = LicenseModel::fromJson(QJsonObject());
        QCOMPARE(m.maxWidth(), 3840);
        QCOMPARE(m.maxHeight(), 2160);
        QCOMPARE(m.maxStreaming(), 4);
        QCOMPARE(m.maxRecording(), 4);
        QCOMPARE(m.maxIsoRecording(), 8);
        QCOMPARE(m.maxGrab(), 8);
        QCOMPARE(m.maxOutput(), 4);
        QVERIFY(m.audioBusEnabled());
        // Everything unlocked: every codec bit in the masks, every codec available.
        QCOMPARE(m.availableVideoMask(), allBits(m.videoCodecs()));
        QCOMPARE(m.availableAudioMask(), allBits(m.audioCodecs()));
        QCOMPARE(m.codecAvailability().keys(), m.videoCodecs().keys());
        QCOMPARE(m.containers().value(2), QStringLiteral("mp4"));
        QCOMPARE(m.containers().value(4), QStringLiteral("mov"));
    }

    void codecUsageBits_data()
    {
        QTest::addColumn<QString>("codec");
        QTest::addColumn<bool>("recording");
        QTest::addColumn<bool>("streaming");
        QTest::addColumn<bool>("iso");
        QTest::newRow("H.264 goes everywhere") << QStringLiteral("H.264") << true << true << true;
        QTest::newRow("ProRes never streams") << QStringLiteral("Apple ProRes") << true << false << true;
        QTest::newRow("WMV only records") << QStringLiteral("WMV") << true << false << false;
        QTest::newRow("MJPEG records and ISO") << QStringLiteral("MJPEG") << true << false << true;
    }
    void codecUsageBits()
    {
        QFETCH(QString, codec);
        QFETCH(bool, recording);
        QFETCH(bool, streaming);
        QFETCH(bool, iso);
        const LicenseModel m;
        const int flags = m.codecAvailability().value(codec);
        QCOMPARE(flags & 0xffff, m.videoCodecs().value(codec));
        QCOMPARE(bool(flags & LicenseModel::usageRecording), recording);
        QCOMPARE(bool(flags & LicenseModel::usageStreaming), streaming);
        QCOMPARE(bool(flags & LicenseModel::usageIso), iso);
    }

    void members_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QJsonValue>("value");
        QTest::addColumn<QVariant>("expected");

        QTest::newRow("lower stream limit") << "MaxStreaming" << QJsonValue(1) << QVariant(1);
        QTest::newRow("no recordings at all") << "MaxRecording" << QJsonValue(0) << QVariant(0);
        QTest::newRow("negative count clamps to zero") << "MaxGrab" << QJsonValue(-3) << QVariant(0);
        QTest::newRow("HD only width") << "MaxWidth" << QJsonValue(1920) << QVariant(1920);
        QTest::newRow("zero height clamps to one") << "MaxHeight" << QJsonValue(0) << QVariant(1);
        QTest::newRow("number as text is ignored") << "MaxStreaming" << QJsonValue(QStringLiteral("2")) << QVariant(4);
        QTest::newRow("fraction is ignored") << "MaxIsoRecording" << QJsonValue(2.5) << QVariant(8);
        QTest::newRow("bool for a count is ignored") << "MaxOutput" << QJsonValue(true) << QVariant(4);
        QTest::newRow("null is ignored") << "MaxRecording" << QJsonValue(QJsonValue::Null) << QVariant(4);
        QTest::newRow("huge number is ignored") << "MaxWidth" << QJsonValue(1e12) << QVariant(3840);
        QTest::newRow("audio bus off") << "AudioBus" << QJsonValue(false) << QVariant(false);
        QTest::newRow("audio bus as text is ignored") << "AudioBus" << QJsonValue(QStringLiteral("false"))
                                                      << QVariant(true);
        QTest::newRow("audio bus as number is ignored") << "AudioBus" << QJsonValue(0) << QVariant(true);
    }
    void members()
    {
        QFETCH(QString, key);
        QFETCH(QJsonValue, value);
        QFETCH(QVariant, expected);
        const LicenseModel m = LicenseModel::fromJson(QJsonObject{{key, value}});
        QCOMPARE(getters().value(key)(m), expected);
        // Other members are untouched by it.
        const LicenseModel defaults;
        for (auto it = getters().cbegin(); it != getters().cend(); ++it)
            if (it.key() != key)
                QCOMPARE(it.value()(m), it.value()(defaults));
    }

    void disabledCodecsNarrowTheMasks_data()
    {
        QTest::addColumn<QJsonValue>("disabled");
        QTest::addColumn<QStringList>("goneVideo");
        QTest::addColumn<QStringList>("goneAudio");

        QTest::newRow("one video codec") << QJsonValue(QJsonArray{QStringLiteral("H.264")})
                                         << QStringList{QStringLiteral("H.264")} << QStringList();
        QTest::newRow("audio codecs") << QJsonValue(QJsonArray{QStringLiteral("AAC"), QStringLiteral("PCM")})
                                      << QStringList() << QStringList{QStringLiteral("AAC"), QStringLiteral("PCM")};
        QTest::newRow("mixed") << QJsonValue(QJsonArray{QStringLiteral("Apple ProRes"), QStringLiteral("MP3"),
                                                        QStringLiteral("HEVC")})
                               << QStringList{QStringLiteral("Apple ProRes"), QStringLiteral("HEVC")}
                               << QStringList{QStringLiteral("MP3")};
        QTest::newRow("unknown names and non-strings are ignored")
            << QJsonValue(QJsonArray{QStringLiteral("Nonsense"), 5, QJsonValue::Null, QStringLiteral("h.264")})
            << QStringList() << QStringList();
        QTest::newRow("a single name, not a list, is ignored")
            << QJsonValue(QStringLiteral("H.264")) << QStringList() << QStringList();
    }
    void disabledCodecsNarrowTheMasks()
    {
        QFETCH(QJsonValue, disabled);
        QFETCH(QStringList, goneVideo);
        QFETCH(QStringList, goneAudio);
        const LicenseModel m = LicenseModel::fromJson(QJsonObject{{QStringLiteral("DisabledCodecs"), disabled}});

        for (auto it = m.videoCodecs().cbegin(); it != m.videoCodecs().cend(); ++it) {
            const bool gone = goneVideo.contains(it.key());
            QCOMPARE(bool(m.availableVideoMask() & it.value()), !gone);
            QCOMPARE(m.codecAvailability().contains(it.key()), !gone);
        }
        for (auto it = m.audioCodecs().cbegin(); it != m.audioCodecs().cend(); ++it)
            QCOMPARE(bool(m.availableAudioMask() & it.value()), !goneAudio.contains(it.key()));
        // The tables themselves still know every codec.
        QCOMPARE(m.videoCodecs(), LicenseModel().videoCodecs());
    }

    void toJsonReadsBackTheSame()
    {
        LicenseModel m = LicenseModel::fromJson(QJsonObject{
            {QStringLiteral("MaxStreaming"), 1},
            {QStringLiteral("MaxWidth"), 1920},
            {QStringLiteral("MaxHeight"), 1080},
            {QStringLiteral("AudioBus"), false},
            {QStringLiteral("DisabledCodecs"), QJsonArray{QStringLiteral("WMV"), QStringLiteral("Opus")}},
        });
        const LicenseModel back = LicenseModel::fromJson(m.toJson());
        QCOMPARE(back.toJson(), m.toJson());
        QCOMPARE(back.maxStreaming(), 1);
        QCOMPARE(back.maxWidth(), 1920);
        QVERIFY(!back.audioBusEnabled());
        QCOMPARE(back.availableVideoMask(), m.availableVideoMask());
        QCOMPARE(back.availableAudioMask(), m.availableAudioMask());
        QCOMPARE(back.codecAvailability(), m.codecAvailability());
    }
};

QTEST_APPLESS_MAIN(tst_LicenseModel)
#include "tst_licensemodel.moc"
