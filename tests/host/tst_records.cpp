#include "records/licensemodel.h"
#include "records/projectpreset.h"

#include <QtTest>

// The host's licence and project records, as their files hold them.
class tst_Records : public QObject
{
    Q_OBJECT

private slots:
    void licenceMembers_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QJsonValue>("value");
        QTest::addColumn<QJsonValue>("read");
        QTest::newRow("negative count clamps to zero") << "MaxGrab" << QJsonValue(-3) << QJsonValue(0);
        QTest::newRow("zero height clamps to one") << "MaxHeight" << QJsonValue(0) << QJsonValue(1);
        QTest::newRow("number as text is ignored") << "MaxStreaming" << QJsonValue("2") << QJsonValue(4);
        QTest::newRow("huge number is ignored") << "MaxWidth" << QJsonValue(1e12) << QJsonValue(3840);
        QTest::newRow("audio bus off") << "AudioBus" << QJsonValue(false) << QJsonValue(false);
        QTest::newRow("audio bus as number is ignored") << "AudioBus" << QJsonValue(0) << QJsonValue(true);
    }
    void licenceMembers()
    {
        QFETCH(QString, key);
        QFETCH(QJsonValue, value);
        QFETCH(QJsonValue, read);
        // Read, and written back as the licence file holds it; the other members keep their defaults.
        QJsonObject expected = LicenseModel().toJson();
        expected[key] = read;
        QCOMPARE(LicenseModel::fromJson(QJsonObject{{key, value}}).toJson(), expected);
    }

    void disabledCodecsNarrowTheMasks()
    {
        const LicenseModel m = LicenseModel::fromJson({{"DisabledCodecs", QJsonArray{"Apple ProRes", "MP3", "HEVC"}}});
        QVERIFY(!(m.availableVideoMask() & m.videoCodecs().value("HEVC")) && !m.codecAvailability().contains("HEVC"));
        QVERIFY(m.availableVideoMask() & m.videoCodecs().value("H.264"));
        QVERIFY(!(m.availableAudioMask() & m.audioCodecs().value("MP3")) && (m.availableAudioMask() & m.audioCodecs().value("AAC")));
        QCOMPARE(m.toJson().value("DisabledCodecs").toArray(), (QJsonArray{"Apple ProRes", "HEVC", "MP3"}));
        // Unknown names, other types and a single name instead of a list change nothing.
        const QJsonObject all = LicenseModel().toJson();
        QCOMPARE(LicenseModel::fromJson({{"DisabledCodecs", QJsonArray{"Nonsense", 5, "h.264"}}}).toJson(), all);
        QCOMPARE(LicenseModel::fromJson({{"DisabledCodecs", "H.264"}}).toJson(), all);
    }

    void projectMembersReadBack()
    {
        const QJsonObject full{
            {"DeviceInfo", QJsonObject{{"ProgramOutputs", 1}}},
            {"Processing", QJsonObject{{"BusAEnabled", false}, {"BusBEnabled", true}}},
            {"VideoOutput", QJsonObject{{"Width", 3840}, {"Height", 2160}, {"FrameRate", 59.94}, {"Interlaced", true}}},
            {"AudioOutput", QJsonObject{{"SampleRate", 44100}, {"Channels", 8}}}};
        QCOMPARE(ProjectPreset::fromJson(full).toJson(), full);

        // Mistyped, zero, negative and absurd values keep the defaults.
        const QByteArray bad = R"({"VideoOutput": {"Width": "1280", "Height": -720, "FrameRate": 100000},
                                   "AudioOutput": {"SampleRate": 0}, "DeviceInfo": {"ProgramOutputs": 9}})";
        QCOMPARE(ProjectPreset::fromJson(QJsonDocument::fromJson(bad).object()).toJson(), ProjectPreset().toJson());
    }
};

QTEST_APPLESS_MAIN(tst_Records)
#include "tst_records.moc"
