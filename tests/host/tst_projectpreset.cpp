#include "contentssettings.h"
#include "projectpreset.h"

#include <QtTest>

class tst_ProjectPreset : public QObject
{
    Q_OBJECT

private slots:
    void fromJson_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::addColumn<double>("frameRate");
        QTest::addColumn<int>("sampleRate");
        QTest::addColumn<int>("programOutputs");

        QTest::newRow("empty keeps defaults") << QByteArray("{}") << 1920 << 1080 << 29.97 << 48000 << 3;
        QTest::newRow("UHD 59.94")
            << QByteArray(R"({"VideoOutput": {"Width": 3840, "Height": 2160, "FrameRate": 59.94}})") << 3840 << 2160
            << 59.94 << 48000 << 3;
        QTest::newRow("mistyped members keep defaults")
            << QByteArray(R"({"VideoOutput": {"Width": "1280", "FrameRate": "50"}, "AudioOutput": []})") << 1920
            << 1080 << 29.97 << 48000 << 3;
        QTest::newRow("zero and negative sizes keep defaults")
            << QByteArray(R"({"VideoOutput": {"Width": 0, "Height": -720, "FrameRate": 0},
                               "AudioOutput": {"SampleRate": -1}})")
            << 1920 << 1080 << 29.97 << 48000 << 3;
        QTest::newRow("absurd frame rate keeps default")
            << QByteArray(R"({"VideoOutput": {"FrameRate": 100000}})") << 1920 << 1080 << 29.97 << 48000 << 3;
        QTest::newRow("program outputs bounded")
            << QByteArray(R"({"DeviceInfo": {"ProgramOutputs": 9}})") << 1920 << 1080 << 29.97 << 48000 << 3;
        QTest::newRow("one program output")
            << QByteArray(R"({"DeviceInfo": {"ProgramOutputs": 1}, "AudioOutput": {"SampleRate": 44100}})") << 1920
            << 1080 << 29.97 << 44100 << 1;
    }
    void fromJson()
    {
        QFETCH(QByteArray, json);
        QFETCH(int, width);
        QFETCH(int, height);
        QFETCH(double, frameRate);
        QFETCH(int, sampleRate);
        QFETCH(int, programOutputs);
        const ProjectPreset p = ProjectPreset::fromJson(QJsonDocument::fromJson(json).object());
        QCOMPARE(p.videoOutput().width, width);
        QCOMPARE(p.videoOutput().height, height);
        QCOMPARE(p.videoOutput().frameRate, frameRate);
        QCOMPARE(p.audioOutput().sampleRate, sampleRate);
        QCOMPARE(p.deviceInfo().programOutputs, programOutputs);
    }

    void toJsonReadsBack()
    {
        ProjectPreset p;
        p.videoOutput().interlaced = true;
        p.videoOutput().frameRate = 59.94;
        p.processing().busAEnabled = false;
        p.audioOutput().channels = 8;
        const ProjectPreset back = ProjectPreset::fromJson(p.toJson());
        QCOMPARE(back.toJson(), p.toJson());
        QVERIFY(back.videoOutput().interlaced);
        QVERIFY(!back.processing().busAEnabled);
        QCOMPARE(back.audioOutput().channels, 8);
    }

    void contentsDirectories_data()
    {
        QTest::addColumn<QString>("data");
        QTest::addColumn<QString>("codecs");
        QTest::addColumn<QString>("servers");
        QTest::newRow("plain") << "/var/quillon" << "/var/quillon/codecs" << "/var/quillon/servers";
        QTest::newRow("trailing slash") << "/var/quillon/" << "/var/quillon/codecs" << "/var/quillon/servers";
        QTest::newRow("relative") << "data" << "data/codecs" << "data/servers";
    }
    void contentsDirectories()
    {
        QFETCH(QString, data);
        QFETCH(QString, codecs);
        QFETCH(QString, servers);
        const ContentsSettings settings = ContentsSettings::underDirectory(data);
        QCOMPARE(settings.codecPresetPath(), codecs);
        QCOMPARE(settings.serverPresetPath(), servers);
    }
};

QTEST_APPLESS_MAIN(tst_ProjectPreset)
#include "tst_projectpreset.moc"
