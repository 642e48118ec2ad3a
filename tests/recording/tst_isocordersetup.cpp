#include "interface/memoryoutputinterface.h"
#include "recording/isocordersetup.h"
#include "records/licensemodel.h"
#include "records/media.h"
#include "support/modaldriver.h"
#include "support/tempstores.h"
#include "support/testkit.h"

#include <QDialogButtonBox>
#include <QJsonArray>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QtTest>

#include <memory>

using namespace TestKit;

// The ISO dialog as an operator meets it: choosing sources up to the licence's limit, the
// codec lists of each container, OK and Cancel on the reused modal dialog, and stored
// settings whose sources have gone or were edited by hand.
class TestIsoCorderSetup : public QObject
{
    Q_OBJECT

    std::unique_ptr<TempStores> m_stores;
    std::unique_ptr<MemoryOutputInterface> m_host;
    std::unique_ptr<IsoCorderSetup> m_dialog;
    std::vector<std::unique_ptr<Media>> m_media;

    // One source per device description, named CAM 1, CAM 2, ...
    void open(const QStringList& devices, int isoLimit = 8, const QJsonObject& settings = {})
    {
        m_dialog.reset();
        LicenseModel license;
        license.setMaxIsoRecording(isoLimit);
        m_stores = std::make_unique<TempStores>(license);
        m_host = std::make_unique<MemoryOutputInterface>(settings);
        m_dialog = std::make_unique<IsoCorderSetup>(nullptr, m_host.get());
        m_media.clear();
        QList<IsoCorderSetup::Source> sources;
        for (const QString& device : devices) {
            const QString name = QStringLiteral("CAM %1").arg(m_media.size() + 1);
            m_media.push_back(std::make_unique<Media>(MediaPreset(name, device)));
            sources.append({name, m_media.back().get()});
        }
        m_dialog->setSources(sources);
    }
    // Runs exec(); `act` works inside it, then OK or Cancel is pressed.
    void run(const std::function<void()>& act, QDialogButtonBox::StandardButton press)
    {
        ModalDriver<IsoCorderSetup> driver([&](IsoCorderSetup* dialog) {
            act();
            dialog->findChild<QDialogButtonBox*>("buttonBox")->button(press)->click();
        });
        m_dialog->exec();
        QVERIFY(driver.found());
    }
    template <typename T = QComboBox>
    T* control(const char* name) const { return TestKit::control<T>(m_dialog.get(), name); }
    QListWidget* rows() const { return control<QListWidget>("presetList"); }
    QComboBox* bin(int row) const { return rows()->itemWidget(rows()->item(row))->findChild<QComboBox*>("mediaBin"); }
    void select(int row) { rows()->item(row)->setSelected(true); }
    QStringList chosen() const
    {
        QStringList names;
        for (const IsoCorderSetup::Source& source : m_dialog->sources())
            names.append(source.first);
        return names;
    }
    QJsonObject stored() const { return m_host->settings().value("ISOCORDER").toObject(); }

private slots:
    void initTestCase() { initDialogTest("tst_isocordersetup"); }
    void init() { MessageBox::clear(); }
    void cleanup()
    {
        m_dialog.reset();
        QCOMPARE(QApplication::activeModalWidget(), nullptr);
    }

    void isoLimit_data()
    {
        QTest::addColumn<int>("limit");
        QTest::addColumn<QStringList>("chosen"); // after selecting all four rows one by one
        QTest::newRow("exactly the limit") << 4 << QStringList{"CAM 1", "CAM 2", "CAM 3", "CAM 4"};
        QTest::newRow("one past the limit") << 3 << QStringList{"CAM 1", "CAM 2", "CAM 3"};
        QTest::newRow("no ISO licensed") << 0 << QStringList{};
    }
    void isoLimit()
    {
        QFETCH(int, limit);
        QFETCH(QStringList, chosen);
        open({"A", "B", "C", "D"}, limit);
        QCOMPARE(control<QLabel>("maxIsoRecording")->text(), QStringLiteral("Max ISO Recording: %1").arg(limit));
        for (int row = 0; row < 4; ++row)
            select(row);
        QCOMPARE(this->chosen(), chosen);
        QCOMPARE(m_dialog->validCheck(), limit > 0);
        QCOMPARE(MessageBox::shown().size(), 4 - chosen.size());
        if (chosen.size() < 4) {
            QCOMPARE(MessageBox::lastShown().title, QStringLiteral("Preset"));
            QCOMPARE(MessageBox::lastShown().text, QStringLiteral("Check the maximum number of isocorder."));
        }
    }

    void containerAndCodecLists_data()
    {
        QTest::addColumn<QStringList>("steps"); // "container" or "container/codec", in order
        QTest::addColumn<QString>("videoCodecs");
        QTest::addColumn<QString>("bitrates"); // label, items, current
        QTest::addColumn<QString>("audioCodecs");

        // MOV has no rule of its own and keeps the masks of the format chosen before.
        QTest::newRow("mov after avi") << QStringList{"AVI", "MOV"} << "MJPEG"
                                       << "Bitrate(kbps): 25000 50000 75000 100000 125000 150000 | 75000" << "PCM";
        QTest::newRow("prores in mov after mp4")
            << QStringList{"MP4", "MOV/Apple ProRes"}
            << "H.264 H.264 NVENC H.264 QSV H.264 AMF HEVC HEVC NVENC HEVC AMF WMV MJPEG Apple ProRes AV1"
            << "Quality: PROXY LT STANDARD HQ | LT" << "AAC MP3 PCM";
    }
    void containerAndCodecLists()
    {
        QFETCH(QStringList, steps);
        QFETCH(QString, videoCodecs);
        QFETCH(QString, bitrates);
        QFETCH(QString, audioCodecs);
        open({"A"});
        for (const QString& step : steps) {
            QVERIFY(choose(control("containerList"), step.section('/', 0, 0)));
            if (step.contains('/'))
                QVERIFY(choose(control("videoCodecList"), step.section('/', 1)));
        }
        QCOMPARE(comboTexts(control("videoCodecList")).join(' '), videoCodecs);
        QCOMPARE(control<QLabel>("videoBitrateLabel")->text() + ' ' + comboTexts(control("videoBitrateList")).join(' ')
                     + " | " + control("videoBitrateList")->currentText(),
                 bitrates);
        QCOMPARE(comboTexts(control("audioCodecList")).join(' '), audioCodecs);
    }

    // OK stores what the form shows; the next opening starts from it; Cancel throws edits away.
    void okAndCancelOnTheReusedDialog()
    {
        open({"Dev A", "Dev B", "Dev C"});
        run([&] {
            select(2);
            select(0);
            bin(2)->setCurrentIndex(2);
            QVERIFY(choose(control("containerList"), "MP4"));
            QVERIFY(choose(control("containerList"), "MOV"));
            QVERIFY(choose(control("videoCodecList"), "Apple ProRes"));
            QVERIFY(choose(control("videoBitrateList"), "HQ"));
            QVERIFY(choose(control("audioCodecList"), "PCM"));
            QVERIFY(choose(control("audioSourceList"), "PVW"));
        }, QDialogButtonBox::Ok);
        const QJsonObject codec = stored().value("CODEC").toObject();
        QCOMPARE(QStringList({codec.value("ContainerName").toString(), codec.value("VideoCodec").toString(),
                              QString::number(codec.value("VideoQuality").toInt()), codec.value("AudioCodec").toString(),
                              QString::number(codec.value("AudioSourceType").toInt())}),
                 QStringList({"mov", "Apple ProRes", "3", "PCM", "10"}));
        QCOMPARE(codec.keys().size(), 19);
        QCOMPARE(stored().value("SOURCES").toArray(),
                 (QJsonArray{QJsonObject{{"SOURCE", "CAM 3"}, {"DEVICE", "Dev C"}, {"RECORD_TO_BIN", "CLIP 2"}},
                             QJsonObject{{"SOURCE", "CAM 1"}, {"DEVICE", "Dev A"}, {"RECORD_TO_BIN", "None"}}}));
        const CodecPreset saved = m_dialog->codecPreset();

        run([&] {
            QCOMPARE(chosen(), (QStringList{"CAM 3", "CAM 1"}));
            rows()->clearSelection();
            select(1);
            bin(2)->setCurrentIndex(0);
            QVERIFY(choose(control("containerList"), "FLV"));
        }, QDialogButtonBox::Cancel);
        QCOMPARE(m_dialog->codecPreset(), saved);
        QCOMPARE(chosen(), (QStringList{"CAM 3", "CAM 1"}));
        QCOMPARE(bin(2)->currentText(), QStringLiteral("CLIP 2"));
    }

    // Stored sources are found by device description: a device that is gone is dropped, and of
    // two rows with one description only the first is chosen, also when it is stored twice.
    void storedSourcesByDevice()
    {
        const QJsonObject stored{{"ISOCORDER", QJsonObject{{"SOURCES", QJsonArray{
            QJsonObject{{"SOURCE", "CAM 9"}, {"DEVICE", "Twin"}, {"RECORD_TO_BIN", "CLIP 1"}},
            QJsonObject{{"SOURCE", "CAM 2"}, {"DEVICE", "Unplugged"}, {"RECORD_TO_BIN", "CLIP 2"}},
            QJsonObject{{"SOURCE", "CAM 3"}, {"DEVICE", "Twin"}, {"RECORD_TO_BIN", "None"}}}}}}};
        open({"Other", "Twin", "Twin"}, 8, stored);
        run([&] {
            QCOMPARE(chosen(), QStringList{"CAM 2"});
            QCOMPARE(bin(1)->currentText(), QStringLiteral("None"));
        }, QDialogButtonBox::Ok);
        QCOMPARE(this->stored().value("SOURCES").toArray(),
                 (QJsonArray{QJsonObject{{"SOURCE", "CAM 2"}, {"DEVICE", "Twin"}, {"RECORD_TO_BIN", "None"}}}));
    }

    void handEditedSettings_data()
    {
        QTest::addColumn<QJsonValue>("iso");
        QTest::addColumn<QStringList>("chosen");
        QTest::addColumn<QString>("codec");

        QTest::newRow("an array") << QJsonValue(QJsonArray{QJsonObject{{"DEVICE", "Dev A"}}}) << QStringList{}
                                  << "H.264";
        QTest::newRow("sources of other types")
            << QJsonValue(QJsonObject{{"CODEC", "HEVC"},
                                      {"SOURCES", QJsonArray{"Dev A", 7, QJsonArray{}, QJsonObject{{"DEVICE", "Dev B"}}}}})
            << QStringList{"CAM 2"} << "H.264";
        QTest::newRow("unknown codec and container")
            << QJsonValue(QJsonObject{{"CODEC", QJsonObject{{"VideoCodec", "H.266"}, {"ContainerName", "xyz"},
                                                            {"VideoBitRate", -5}}},
                                      {"SOURCES", "Dev A"}})
            << QStringList{} << "H.264";
    }
    void handEditedSettings()
    {
        QFETCH(QJsonValue, iso);
        QFETCH(QStringList, chosen);
        QFETCH(QString, codec);
        const QJsonArray recording{QJsonObject{{"PresetName", "Keep me"}}};
        open({"Dev A", "Dev B"}, 8, QJsonObject{{"ISOCORDER", iso}, {"RECORDING", recording}});
        run([&] { QCOMPARE(this->chosen(), chosen); }, QDialogButtonBox::Ok);
        QCOMPARE(m_dialog->codecPreset().videoCodec().codec, codec);
        QCOMPARE(m_dialog->codecPreset().videoCodec().bitRate, 8000);
        QCOMPARE(m_host->settings().value("RECORDING").toArray(), recording);
        QCOMPARE(stored().value("SOURCES").toArray().size(), chosen.size());
    }
};

QTEST_MAIN(TestIsoCorderSetup)
#include "tst_isocordersetup.moc"
