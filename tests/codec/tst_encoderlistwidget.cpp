#include "codecmanager.h"
#include "codecpresetdialog.h"
#include "codectables.h"
#include "encoderlistwidget.h"
#include "licensemodel.h"
#include "modaldriver.h"
#include "tempstores.h"
#include "testkit.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QToolButton>
#include <QtTest>

#include <memory>

using namespace TestKit;

namespace {

QString label(const CodecPreset& p)
{
    return CodecManager::namingFromPreset(&p);
}

bool isSeparator(const QComboBox* box, int index)
{
    return box->itemData(index, Qt::AccessibleDescriptionRole).toString() == QLatin1String("separator");
}

} // namespace

class TestEncoderListWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initDialogTest("tst_encoderlistwidget"); }
    void init()
    {
        MessageBox::clear();
        QSettings().remove("ql.codec.state");
        m_stores = std::make_unique<TempStores>();
        QVERIFY(m_stores->isValid());
        m_list = std::make_unique<EncoderListWidget>();
        m_list->initialize(CodecTables::UsageRecording, LicenseModel::usageRecording, 0x1F);
    }

    void cleanup()
    {
        m_list.reset();
        m_stores.reset();
        for (QWidget* widget : QApplication::topLevelWidgets())
            QVERIFY2(!widget->isVisible(), qPrintable(widget->objectName()));
    }

    void codecsFormSortedGroups()
    {
        const CodecPreset h1080fast = preset("H.264", 1080, 6000);
        const CodecPreset h720 = preset("H.264", 720, 3000);
        const CodecPreset h1080 = preset("H.264", 1080, 4000);
        CodecPreset h1080loud = h1080;
        h1080loud.audioCodec().bitRate = 256;
        const CodecPreset uhd = preset("HEVC", 2160, 20000);
        const CodecPreset hevc720 = preset("HEVC", 720, 2000);
        const CodecPreset mjpeg = preset("MJPEG", 1080, 40000);
        for (const CodecPreset& p : {h1080fast, h720, h1080loud, uhd, h1080, hevc720, mjpeg})
            write(p);

        QSignalSpy changed(m_list.get(), &EncoderListWidget::presetChanged);
        m_list->setCodecMask(~0, ~0);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(rows(), (QStringList{label(h720), label(h1080), label(h1080loud), label(h1080fast), "--", label(hevc720),
                                      label(uhd), "--", label(mjpeg)}));
        QCOMPARE(m_list->count(), 9);
        QVERIFY(button("customDel")->isEnabled() && button("customEdit")->isEnabled());
        // Items carry their preset; the recording and streaming parts are switched off.
        const CodecPreset first = presetList()->itemData(0).value<CodecPreset>();
        QCOMPARE(first.videoCodec().height, 720);
        QVERIFY(!first.local().enabled && !first.streaming().enabled);
    }

    void masksSelectTheCodecs_data()
    {
        QTest::addColumn<int>("usage");
        QTest::addColumn<int>("usageMask");
        QTest::addColumn<int>("outputMask");
        QTest::addColumn<QStringList>("codecs");

        const int recording = LicenseModel::usageRecording;
        QTest::newRow("recording, everything") << 1 << recording << ~0
                                               << QStringList{"Apple ProRes", "H.264", "H.264 NVENC", "WMV"};
        QTest::newRow("streaming") << 0 << int(LicenseModel::usageStreaming) << ~0 << QStringList{"H.264", "H.264 NVENC"};
        QTest::newRow("iso") << 2 << int(LicenseModel::usageIso) << ~0 << QStringList{"Apple ProRes", "H.264", "H.264 NVENC"};
        QTest::newRow("recording, flv") << 1 << recording << 0x407F << QStringList{"H.264", "H.264 NVENC"};
        QTest::newRow("recording, no codec bit") << 1 << recording << 0 << QStringList();
    }
    void masksSelectTheCodecs()
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

    void addWritesTheNewPreset_data() { acceptOrCancel(); }
    void addWritesTheNewPreset()
    {
        QFETCH(bool, accept);
        const CodecPreset kept = preset("H.264", 720, 3000);
        write(kept);
        m_list->setCodecMask(0x407F, 1);

        ModalDriver<CodecPresetDialog> driver([accept](CodecPresetDialog* dialog) {
            QVERIFY(choose(control<QComboBox>(dialog, "videoCodecList"), "HEVC"));
            QVERIFY(choose(control<QComboBox>(dialog, "frameRateList"), "50p"));
            QLineEdit* bitrate = control<QComboBox>(dialog, "videoBitrateList")->lineEdit();
            bitrate->clear();
            QTest::keyClicks(bitrate, "9000");
            // The output's audio mask leaves AAC only.
            QCOMPARE(control<QComboBox>(dialog, "audioCodecList")->count(), 1);
            accept ? dialog->accept() : dialog->reject();
        });
        button("customAdd")->click();
        QVERIFY(driver.found());

        const QString added = "HEVC 1080p50 2s 9Mbps, AACStereo 48kHz 128kbps";
        if (!accept) {
            QCOMPARE(files(), QStringList{label(kept) + ".json"});
            QCOMPARE(rows(), QStringList{label(kept)});
            return;
        }
        QCOMPARE(files(), (QStringList{label(kept) + ".json", added + ".json"}));
        QCOMPARE(rows(), (QStringList{label(kept), "--", added}));
        QCOMPARE(presetList()->currentText(), added);
        QCOMPARE(m_list->currentPreset().videoCodec().bitRate, 9000);
    }

    void editMovesTheFileWhenTheLabelChanges_data() { acceptOrCancel(); }
    void editMovesTheFileWhenTheLabelChanges()
    {
        QFETCH(bool, accept);
        const CodecPreset low = preset("H.264", 720, 3000);
        const CodecPreset high = preset("H.264", 1080, 8000);
        write(low);
        write(high);
        const QByteArray before = readFile(fileOf(low));
        m_list->setCodecMask(~0, ~0);
        m_list->selectPreset(low);
        QCOMPARE(presetList()->currentText(), label(low));

        ModalDriver<CodecPresetDialog> driver([accept](CodecPresetDialog* dialog) {
            QComboBox* sizes = control<QComboBox>(dialog, "videoSizeList");
            QCOMPARE(sizes->currentText(), QStringLiteral("HD (1280x720)"));
            QVERIFY(choose(sizes, "UHD (3840x2160)"));
            accept ? dialog->accept() : dialog->reject();
        });
        button("customEdit")->click();
        QVERIFY(driver.found());

        if (!accept) {
            QCOMPARE(readFile(fileOf(low)), before);
            QCOMPARE(files().size(), 2);
            QCOMPARE(rows(), (QStringList{label(low), label(high)}));
            return;
        }
        const CodecPreset current = m_list->currentPreset();
        QCOMPARE(current.videoCodec().height, 2160);
        QCOMPARE(presetList()->currentText(), label(current));
        QCOMPARE(files(), (QStringList{label(high) + ".json", label(current) + ".json"}));
        // Sorted again: the edited preset now comes after the 1080 one.
        QCOMPARE(rows(), (QStringList{label(high), label(current)}));
    }

    void removeAsksFirst_data()
    {
        QTest::addColumn<int>("answer");
        QTest::newRow("yes") << int(QMessageBox::Yes);
        QTest::newRow("no") << int(QMessageBox::No);
    }
    void removeAsksFirst()
    {
        QFETCH(int, answer);
        const bool removed = answer == QMessageBox::Yes;
        const CodecPreset first = preset("H.264", 720, 3000);
        const CodecPreset second = preset("HEVC", 1080, 5000);
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
        QCOMPARE(QFileInfo::exists(fileOf(second)), !removed);
        QVERIFY(QFileInfo::exists(fileOf(first)));
        QCOMPARE(rows(), removed ? QStringList{label(first)} : (QStringList{label(first), "--", label(second)}));
        if (!removed)
            return;

        // The last one gone, there is nothing to remove or edit.
        MessageBox::setNextAnswer(QMessageBox::Yes);
        button("customDel")->click();
        QCOMPARE(m_list->count(), 0);
        QVERIFY(files().isEmpty());
        QVERIFY(!button("customDel")->isEnabled());
        QVERIFY(!button("customEdit")->isEnabled());
        QVERIFY(button("customAdd")->isEnabled());
        QVERIFY(m_list->currentPreset() == CodecPreset());
    }

    void selectPresetAndCurrentPreset()
    {
        const CodecPreset a = preset("H.264", 720, 3000);
        write(a);
        write(preset("H.264", 1080, 6000));
        m_list->setCodecMask(~0, ~0);
        QSignalSpy changed(m_list.get(), &EncoderListWidget::presetChanged);
        m_list->selectPreset(a);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(m_list->currentPreset().videoCodec().bitRate, 3000);

        // A preset that is not listed leaves the choice alone.
        m_list->selectPreset(preset("H.264", 480, 1000));
        QCOMPARE(m_list->currentPreset().videoCodec().bitRate, 3000);
        QCOMPARE(changed.count(), 1);
    }

    void withoutStoreTheListStaysEmpty()
    {
        write(preset("H.264", 720, 3000));
        m_stores.reset();
        m_list->setCodecMask(~0, ~0);
        QCOMPARE(m_list->count(), 0);
        QVERIFY(!button("customEdit")->isEnabled());
    }

private:
    static void acceptOrCancel()
    {
        QTest::addColumn<bool>("accept");
        QTest::newRow("accepted") << true;
        QTest::newRow("cancelled") << false;
    }

    void write(const CodecPreset& p) { QVERIFY(m_stores->codecManager().write(p)); }
    QString fileOf(const CodecPreset& p) const { return m_stores->codecDir() + '/' + label(p) + ".json"; }
    QStringList files() const { return entries(m_stores->codecDir()); }
    QComboBox* presetList() const { return control<QComboBox>(m_list.get(), "presetList"); }
    QToolButton* button(const char* name) const { return control<QToolButton>(m_list.get(), name); }
    // The combo's rows as labels, separators as "--".
    QStringList rows() const
    {
        QStringList result;
        for (int i = 0; i < presetList()->count(); ++i)
            result.append(isSeparator(presetList(), i) ? QStringLiteral("--") : presetList()->itemText(i));
        return result;
    }

    std::unique_ptr<TempStores> m_stores;
    std::unique_ptr<EncoderListWidget> m_list;
};

QTEST_MAIN(TestEncoderListWidget)
#include "tst_encoderlistwidget.moc"
