#include "codecmanager.h"
#include "codecpresetdialog.h"
#include "codectables.h"
#include "encoderlistwidget.h"
#include "licensemodel.h"
#include "messagebox.h"
#include "modaldriver.h"
#include "tempstores.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QToolButton>
#include <QtTest>

#include <memory>

namespace {

CodecPreset preset(const QString& codec, int height, int bitRate, int audioBitRate = 128)
{
    CodecPreset p;
    CodecModel::VideoCodec& v = p.videoCodec();
    v.codec = codec;
    v.width = height * 16 / 9;
    v.height = height;
    v.frameRate = 25;
    v.bitRate = bitRate;
    CodecModel::AudioCodec& a = p.audioCodec();
    a.codec = QStringLiteral("AAC");
    a.channels = 2;
    a.sampleRate = 48000;
    a.bitRate = audioBitRate;
    return p;
}

bool isSeparator(const QComboBox* box, int index)
{
    return box->itemData(index, Qt::AccessibleDescriptionRole).toString() == QLatin1String("separator");
}

// The combo's rows as labels, separators as "--".
QStringList rows(const QComboBox* box)
{
    QStringList result;
    for (int i = 0; i < box->count(); ++i)
        result.append(isSeparator(box, i) ? QStringLiteral("--") : box->itemText(i));
    return result;
}

QString label(const CodecPreset& p)
{
    return CodecManager::namingFromPreset(&p);
}

void chooseInCombo(QWidget* dialog, const char* name, const QString& text)
{
    auto* box = dialog->findChild<QComboBox*>(QLatin1String(name));
    QVERIFY(box);
    const int index = box->findText(text);
    QVERIFY2(index >= 0, qPrintable(text));
    box->setCurrentIndex(index);
}

} // namespace

class TestEncoderListWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void codecsFormSortedGroups();
    void masksSelectTheCodecs_data();
    void masksSelectTheCodecs();
    void emptyListDisablesRemoveAndSettings();
    void addWritesTheNewPreset();
    void cancelledAddChangesNothing();
    void editMovesTheFileWhenTheLabelChanges();
    void cancelledEditChangesNothing();
    void removeAsksFirst_data();
    void removeAsksFirst();
    void selectPresetAndCurrentPreset();
    void withoutStoreTheListStaysEmpty();

private:
    void write(const CodecPreset& p) { QVERIFY(m_stores->codecManager().write(p)); }
    bool fileExists(const CodecPreset& p) const
    {
        return QFileInfo::exists(m_stores->codecDir() + QLatin1Char('/') + label(p) + QStringLiteral(".json"));
    }
    QComboBox* presetList() const { return m_list->findChild<QComboBox*>(QStringLiteral("presetList")); }
    QToolButton* button(const char* name) const { return m_list->findChild<QToolButton*>(QLatin1String(name)); }

    std::unique_ptr<TempStores> m_stores;
    std::unique_ptr<EncoderListWidget> m_list;
};

void TestEncoderListWidget::initTestCase()
{
    QCoreApplication::setOrganizationName(QStringLiteral("libstreaming-tests"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_encoderlistwidget"));
    QStandardPaths::setTestModeEnabled(true);
    MessageBox::setScripted(true);
}

void TestEncoderListWidget::init()
{
    MessageBox::clear();
    QSettings().remove(QStringLiteral("ql.codec.state"));
    m_stores = std::make_unique<TempStores>();
    QVERIFY(m_stores->isValid());
    m_list = std::make_unique<EncoderListWidget>();
    m_list->initialize(CodecTables::UsageRecording, LicenseModel::usageRecording, 0x1F);
}

void TestEncoderListWidget::cleanup()
{
    m_list.reset();
    m_stores.reset();
    for (QWidget* widget : QApplication::topLevelWidgets())
        QVERIFY2(!widget->isVisible(), qPrintable(widget->objectName()));
}

void TestEncoderListWidget::codecsFormSortedGroups()
{
    const CodecPreset h1080fast = preset(QStringLiteral("H.264"), 1080, 6000);
    const CodecPreset h720 = preset(QStringLiteral("H.264"), 720, 3000);
    const CodecPreset h1080 = preset(QStringLiteral("H.264"), 1080, 4000);
    const CodecPreset h1080loud = preset(QStringLiteral("H.264"), 1080, 4000, 256);
    const CodecPreset uhd = preset(QStringLiteral("HEVC"), 2160, 20000);
    const CodecPreset hevc720 = preset(QStringLiteral("HEVC"), 720, 2000);
    const CodecPreset mjpeg = preset(QStringLiteral("MJPEG"), 1080, 40000);
    for (const CodecPreset& p : {h1080fast, h720, h1080loud, uhd, h1080, hevc720, mjpeg})
        write(p);

    QSignalSpy changed(m_list.get(), &EncoderListWidget::presetChanged);
    m_list->setCodecMask(~0, ~0);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(rows(presetList()),
             (QStringList{label(h720), label(h1080), label(h1080loud), label(h1080fast), "--", label(hevc720),
                          label(uhd), "--", label(mjpeg)}));
    QCOMPARE(m_list->count(), 9);
    QVERIFY(button("customDel")->isEnabled());
    QVERIFY(button("customEdit")->isEnabled());
    QCOMPARE(button("customAdd")->toolTip(), QStringLiteral("Add Codec"));
    QCOMPARE(button("customDel")->toolTip(), QStringLiteral("Remove Codec"));
    QCOMPARE(button("customEdit")->toolTip(), QStringLiteral("Codec Settings"));
    // Items carry their preset; the recording and streaming parts are switched off.
    const CodecPreset first = presetList()->itemData(0).value<CodecPreset>();
    QCOMPARE(first.videoCodec().height, 720);
    QVERIFY(!first.local().enabled && !first.streaming().enabled);
}

void TestEncoderListWidget::masksSelectTheCodecs_data()
{
    QTest::addColumn<int>("usage");
    QTest::addColumn<int>("usageMask");
    QTest::addColumn<int>("outputMask");
    QTest::addColumn<QStringList>("codecs");

    QTest::newRow("recording, everything") << 1 << int(LicenseModel::usageRecording) << ~0
                                           << QStringList{"Apple ProRes", "H.264", "H.264 NVENC", "WMV"};
    QTest::newRow("streaming") << 0 << int(LicenseModel::usageStreaming) << ~0
                               << QStringList{"H.264", "H.264 NVENC"};
    QTest::newRow("iso") << 2 << int(LicenseModel::usageIso) << ~0
                         << QStringList{"Apple ProRes", "H.264", "H.264 NVENC"};
    QTest::newRow("recording, flv") << 1 << int(LicenseModel::usageRecording) << 0x407F
                                    << QStringList{"H.264", "H.264 NVENC"};
    QTest::newRow("recording, no codec bit") << 1 << int(LicenseModel::usageRecording) << 0 << QStringList();
}

void TestEncoderListWidget::masksSelectTheCodecs()
{
    QFETCH(int, usage);
    QFETCH(int, usageMask);
    QFETCH(int, outputMask);
    QFETCH(QStringList, codecs);

    for (const char* codec : {"H.264", "H.264 NVENC", "Apple ProRes", "WMV"})
        write(preset(QLatin1String(codec), 1080, 8000));
    m_list->initialize(usage, usageMask, 0x1F);
    m_list->setCodecMask(outputMask, ~0);

    QStringList listed;
    for (int i = 0; i < presetList()->count(); ++i)
        if (!isSeparator(presetList(), i))
            listed.append(presetList()->itemData(i).value<CodecPreset>().videoCodec().codec);
    QCOMPARE(listed, codecs);
}

void TestEncoderListWidget::emptyListDisablesRemoveAndSettings()
{
    m_list->setCodecMask(~0, ~0);
    QCOMPARE(m_list->count(), 0);
    QVERIFY(!button("customDel")->isEnabled());
    QVERIFY(!button("customEdit")->isEnabled());
    QVERIFY(button("customAdd")->isEnabled());
    QVERIFY(m_list->currentPreset() == CodecPreset());
}

void TestEncoderListWidget::addWritesTheNewPreset()
{
    write(preset(QStringLiteral("H.264"), 720, 3000));
    m_list->setCodecMask(0x407F, 1);

    ModalDriver<CodecPresetDialog> driver([](CodecPresetDialog* dialog) {
        chooseInCombo(dialog, "videoCodecList", QStringLiteral("HEVC"));
        chooseInCombo(dialog, "frameRateList", QStringLiteral("50p"));
        auto* bitrate = dialog->findChild<QComboBox*>(QStringLiteral("videoBitrateList"));
        bitrate->lineEdit()->clear();
        QTest::keyClicks(bitrate->lineEdit(), QStringLiteral("9000"));
        // The output's audio mask leaves AAC only.
        QCOMPARE(dialog->findChild<QComboBox*>(QStringLiteral("audioCodecList"))->count(), 1);
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    button("customAdd")->click();
    QVERIFY(driver.found());

    const QString added = QStringLiteral("HEVC 1080p50 2s 9Mbps, AACStereo 48kHz 128kbps");
    QVERIFY2(QFileInfo::exists(m_stores->codecDir() + QLatin1Char('/') + added + QStringLiteral(".json")),
             qPrintable(QDir(m_stores->codecDir()).entryList().join(QLatin1Char(','))));
    QCOMPARE(presetList()->currentText(), added);
    QCOMPARE(m_list->currentPreset().videoCodec().bitRate, 9000);
    QCOMPARE(m_list->count(), 3); // H.264, separator, HEVC
    QCOMPARE(m_stores->codecManager().codecPresets().size(), 2);
}

void TestEncoderListWidget::cancelledAddChangesNothing()
{
    const CodecPreset kept = preset(QStringLiteral("H.264"), 720, 3000);
    write(kept);
    m_list->setCodecMask(~0, ~0);
    ModalDriver<CodecPresetDialog> driver([](CodecPresetDialog* dialog) { dialog->reject(); });
    button("customAdd")->click();
    QVERIFY(driver.found());
    QCOMPARE(QDir(m_stores->codecDir()).entryList(QDir::Files), QStringList{label(kept) + ".json"});
    QCOMPARE(rows(presetList()), QStringList{label(kept)});
}

void TestEncoderListWidget::editMovesTheFileWhenTheLabelChanges()
{
    const CodecPreset low = preset(QStringLiteral("H.264"), 720, 3000);
    const CodecPreset high = preset(QStringLiteral("H.264"), 1080, 8000);
    write(low);
    write(high);
    m_list->setCodecMask(~0, ~0);
    m_list->selectPreset(low);
    QCOMPARE(presetList()->currentText(), label(low));

    ModalDriver<CodecPresetDialog> driver([](CodecPresetDialog* dialog) {
        QCOMPARE(dialog->findChild<QComboBox*>(QStringLiteral("videoSizeList"))->currentText(),
                 QStringLiteral("HD (1280x720)"));
        chooseInCombo(dialog, "videoSizeList", QStringLiteral("UHD (3840x2160)"));
        dialog->accept();
    });
    button("customEdit")->click();
    QVERIFY(driver.found());

    QVERIFY(!fileExists(low));
    QVERIFY(fileExists(high));
    const CodecPreset current = m_list->currentPreset();
    QCOMPARE(current.videoCodec().height, 2160);
    QCOMPARE(presetList()->currentText(), label(current));
    QVERIFY(fileExists(current));
    QCOMPARE(QDir(m_stores->codecDir()).entryList(QDir::Files).size(), 2);
    // Sorted again: the edited preset now comes after the 1080 one.
    QCOMPARE(rows(presetList()), (QStringList{label(high), label(current)}));
}

void TestEncoderListWidget::cancelledEditChangesNothing()
{
    const CodecPreset only = preset(QStringLiteral("H.264"), 720, 3000);
    write(only);
    m_list->setCodecMask(~0, ~0);
    const QByteArray before = [&] {
        QFile file(m_stores->codecDir() + QLatin1Char('/') + label(only) + QStringLiteral(".json"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }();
    QVERIFY(!before.isEmpty());

    ModalDriver<CodecPresetDialog> driver([](CodecPresetDialog* dialog) {
        chooseInCombo(dialog, "videoCodecList", QStringLiteral("MJPEG"));
        dialog->reject();
    });
    button("customEdit")->click();
    QVERIFY(driver.found());
    QCOMPARE(QDir(m_stores->codecDir()).entryList(QDir::Files), QStringList{label(only) + ".json"});
    QFile file(m_stores->codecDir() + QLatin1Char('/') + label(only) + QStringLiteral(".json"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), before);
    QCOMPARE(rows(presetList()), QStringList{label(only)});
}

void TestEncoderListWidget::removeAsksFirst_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("removed");

    QTest::newRow("yes") << int(QMessageBox::Yes) << true;
    QTest::newRow("no") << int(QMessageBox::No) << false;
}

void TestEncoderListWidget::removeAsksFirst()
{
    QFETCH(int, answer);
    QFETCH(bool, removed);

    const CodecPreset first = preset(QStringLiteral("H.264"), 720, 3000);
    const CodecPreset second = preset(QStringLiteral("HEVC"), 1080, 5000);
    write(first);
    write(second);
    m_list->setCodecMask(~0, ~0);
    m_list->selectPreset(second);

    MessageBox::setNextAnswer(QMessageBox::StandardButton(answer));
    button("customDel")->click();
    QCOMPARE(MessageBox::shown().size(), 1);
    QCOMPARE(MessageBox::lastShown().kind, MessageBox::Kind::Question);
    QCOMPARE(MessageBox::lastShown().title, QStringLiteral("Preset"));
    QCOMPARE(MessageBox::lastShown().text, QStringLiteral("Are you sure you want to remove this item?"));
    QCOMPARE(fileExists(second), !removed);
    QVERIFY(fileExists(first));
    const QStringList expected = removed ? QStringList{label(first)} : QStringList{label(first), "--", label(second)};
    QCOMPARE(rows(presetList()), expected);

    if (removed) {
        MessageBox::setNextAnswer(QMessageBox::Yes);
        button("customDel")->click();
        QCOMPARE(m_list->count(), 0);
        QVERIFY(!button("customDel")->isEnabled());
        QVERIFY(!button("customEdit")->isEnabled());
        QVERIFY(QDir(m_stores->codecDir()).entryList(QDir::Files).isEmpty());
    }
}

void TestEncoderListWidget::selectPresetAndCurrentPreset()
{
    const CodecPreset a = preset(QStringLiteral("H.264"), 720, 3000);
    const CodecPreset b = preset(QStringLiteral("H.264"), 1080, 6000);
    write(a);
    write(b);
    m_list->setCodecMask(~0, ~0);
    QSignalSpy changed(m_list.get(), &EncoderListWidget::presetChanged);
    m_list->selectPreset(a);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(m_list->currentPreset().videoCodec().bitRate, 3000);

    // A preset that is not listed leaves the choice alone.
    m_list->selectPreset(preset(QStringLiteral("H.264"), 480, 1000));
    QCOMPARE(m_list->currentPreset().videoCodec().bitRate, 3000);
    QCOMPARE(changed.count(), 1);
}

void TestEncoderListWidget::withoutStoreTheListStaysEmpty()
{
    write(preset(QStringLiteral("H.264"), 720, 3000));
    m_stores.reset();
    m_list->setCodecMask(~0, ~0);
    QCOMPARE(m_list->count(), 0);
    QVERIFY(!button("customEdit")->isEnabled());
}

QTEST_MAIN(TestEncoderListWidget)
#include "tst_encoderlistwidget.moc"
