#include "records/licensemodel.h"

#include <QtTest>

#include <functional>

namespace {

// Each member of the licence file and what it reads as.
QVariant member(const LicenseModel& m, const QString& key)
{
    const QMap<QString, std::function<QVariant()>> getters{
        {"MaxWidth", [&] { return m.maxWidth(); }},
        {"MaxHeight", [&] { return m.maxHeight(); }},
        {"MaxStreaming", [&] { return m.maxStreaming(); }},
        {"MaxRecording", [&] { return m.maxRecording(); }},
        {"MaxIsoRecording", [&] { return m.maxIsoRecording(); }},
        {"MaxGrab", [&] { return m.maxGrab(); }},
        {"MaxOutput", [&] { return m.maxOutput(); }},
        {"AudioBus", [&] { return m.audioBusEnabled(); }},
    };
    return getters.value(key)();
}

const QStringList memberKeys{"MaxWidth", "MaxHeight", "MaxStreaming", "MaxRecording",
                             "MaxIsoRecording", "MaxGrab", "MaxOutput", "AudioBus"};

} // namespace

class tst_LicenseModel : public QObject
{
    Q_OBJECT

private slots:
    void emptyObjectGivesTheDefaults()
    {
        const LicenseModel m = LicenseModel::fromJson(QJsonObject());
        QVariantList values;
        for (const QString& key : memberKeys)
            values << member(m, key);
        QCOMPARE(values, (QVariantList{3840, 2160, 4, 4, 8, 8, 4, true}));
        // Everything unlocked: every codec bit in the masks, every codec available.
        int video = 0;
        for (int bit : m.videoCodecs())
            video |= bit;
        QCOMPARE(m.availableVideoMask(), video);
        QCOMPARE(m.availableAudioMask(), 0x1F);
        QCOMPARE(m.codecAvailability().keys(), m.videoCodecs().keys());
        QCOMPARE(m.containers().value(2), QStringLiteral("mp4"));
    }

    void members_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QJsonValue>("value");
        QTest::addColumn<QVariant>("expected");

        QTest::newRow("lower stream limit") << "MaxStreaming" << QJsonValue(1) << QVariant(1);
        QTest::newRow("negative count clamps to zero") << "MaxGrab" << QJsonValue(-3) << QVariant(0);
        QTest::newRow("zero height clamps to one") << "MaxHeight" << QJsonValue(0) << QVariant(1);
        QTest::newRow("number as text is ignored") << "MaxStreaming" << QJsonValue("2") << QVariant(4);
        QTest::newRow("fraction is ignored") << "MaxIsoRecording" << QJsonValue(2.5) << QVariant(8);
        QTest::newRow("null is ignored") << "MaxRecording" << QJsonValue(QJsonValue::Null) << QVariant(4);
        QTest::newRow("huge number is ignored") << "MaxWidth" << QJsonValue(1e12) << QVariant(3840);
        QTest::newRow("audio bus off") << "AudioBus" << QJsonValue(false) << QVariant(false);
        QTest::newRow("audio bus as number is ignored") << "AudioBus" << QJsonValue(0) << QVariant(true);
    }
    void members()
    {
        QFETCH(QString, key);
        QFETCH(QJsonValue, value);
        QFETCH(QVariant, expected);
        const LicenseModel m = LicenseModel::fromJson(QJsonObject{{key, value}});
        QCOMPARE(member(m, key), expected);
        QCOMPARE(member(LicenseModel::fromJson(m.toJson()), key), expected); // the file written from it reads the same
        // Other members are untouched by it.
        for (const QString& other : memberKeys)
            if (other != key)
                QCOMPARE(member(m, other), member(LicenseModel(), other));
    }

    void disabledCodecsNarrowTheMasks_data()
    {
        QTest::addColumn<QJsonValue>("disabled");
        QTest::addColumn<QStringList>("gone");

        QTest::newRow("video and audio codecs") << QJsonValue(QJsonArray{"Apple ProRes", "MP3", "HEVC"})
                                                << QStringList{"Apple ProRes", "HEVC", "MP3"};
        QTest::newRow("unknown names and non-strings are ignored")
            << QJsonValue(QJsonArray{"Nonsense", 5, QJsonValue::Null, "h.264"}) << QStringList();
        QTest::newRow("a single name, not a list, is ignored") << QJsonValue("H.264") << QStringList();
    }
    void disabledCodecsNarrowTheMasks()
    {
        QFETCH(QJsonValue, disabled);
        QFETCH(QStringList, gone);
        const LicenseModel m = LicenseModel::fromJson(QJsonObject{{"DisabledCodecs", disabled}});

        for (auto it = m.videoCodecs().cbegin(); it != m.videoCodecs().cend(); ++it) {
            QCOMPARE(bool(m.availableVideoMask() & it.value()), !gone.contains(it.key()));
            QCOMPARE(m.codecAvailability().contains(it.key()), !gone.contains(it.key()));
        }
        for (auto it = m.audioCodecs().cbegin(); it != m.audioCodecs().cend(); ++it)
            QCOMPARE(bool(m.availableAudioMask() & it.value()), !gone.contains(it.key()));
        // The tables themselves still know every codec.
        QCOMPARE(m.videoCodecs(), LicenseModel().videoCodecs());

        // And the file written from it reads back the same.
        const LicenseModel back = LicenseModel::fromJson(m.toJson());
        QCOMPARE(back.toJson(), m.toJson());
        QCOMPARE(back.availableVideoMask(), m.availableVideoMask());
        QCOMPARE(back.availableAudioMask(), m.availableAudioMask());
        QCOMPARE(back.codecAvailability(), m.codecAvailability());
    }
};

QTEST_APPLESS_MAIN(tst_LicenseModel)
#include "tst_licensemodel.moc"
