#include "records/projectpreset.h"

#include <QtTest>

class tst_ProjectPreset : public QObject
{
    Q_OBJECT

private slots:
    void fromJson_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("read"); // width, height, frame rate, sample rate, programme outputs

        const QString defaults = "1920 1080 29.97 48000 3";
        QTest::newRow("empty keeps defaults") << QByteArray("{}") << defaults;
        QTest::newRow("UHD 59.94")
            << QByteArray(R"({"VideoOutput": {"Width": 3840, "Height": 2160, "FrameRate": 59.94}})")
            << "3840 2160 59.94 48000 3";
        QTest::newRow("mistyped members keep defaults")
            << QByteArray(R"({"VideoOutput": {"Width": "1280", "FrameRate": "50"}, "AudioOutput": []})") << defaults;
        QTest::newRow("zero, negative and absurd values keep defaults")
            << QByteArray(R"({"VideoOutput": {"Width": 0, "Height": -720, "FrameRate": 100000},
                              "AudioOutput": {"SampleRate": -1}, "DeviceInfo": {"ProgramOutputs": 9}})")
            << defaults;
        QTest::newRow("one program output")
            << QByteArray(R"({"DeviceInfo": {"ProgramOutputs": 1}, "AudioOutput": {"SampleRate": 44100}})")
            << "1920 1080 29.97 44100 1";
    }
    void fromJson()
    {
        QFETCH(QByteArray, json);
        QFETCH(QString, read);
        const ProjectPreset p = ProjectPreset::fromJson(QJsonDocument::fromJson(json).object());
        QCOMPARE(QString("%1 %2 %3 %4 %5")
                     .arg(p.videoOutput().width)
                     .arg(p.videoOutput().height)
                     .arg(p.videoOutput().frameRate)
                     .arg(p.audioOutput().sampleRate)
                     .arg(p.deviceInfo().programOutputs),
                 read);
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
};

QTEST_APPLESS_MAIN(tst_ProjectPreset)
#include "tst_projectpreset.moc"
