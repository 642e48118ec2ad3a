#include "codec/codecpresetdialog.h"
#include "codec/codectables.h"
#include "codec/encoderlistwidget.h"
#include "records/licensemodel.h"
#include "stores/codecmanager.h"
#include "support/modaldriver.h"
#include "support/tempstores.h"
#include "support/testkit.h"

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
        QCOMPARE(rows(),
                 (QStringList{label(h720), label(h1080), label(h1080loud), label(h1080fast), "--", label(hevc720),
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
        QTest::newRow("streaming") << 0 << int(LicenseModel::usageStreaming) << ~0
                                   << QStringList{"H.264", "H.264 NVENC"};
        QTest::newRow("iso") << 2 << int(LicenseModel::usageIso) << ~0
                             << QStringList{"Apple ProRes", "H.264", "H.264 NVENC"};
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

    void addAndEditWriteTheStore_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("accept");
        QTest::addColumn<QString>("opensAt");
        QTest::addColumn<QStringList>("after"); // the list's labels

        const QStringList before{label(m_low), label(m_high)};
        QTest::newRow("add") << "customAdd" << true << "FHD (1920x1080)"
                             << before + QStringList{"H.264 2160 AUTO 2s 4Mbps, AACStereo 48kHz 128kbps"};
        QTest::newRow("add cancelled") << "customAdd" << false << "FHD (1920x1080)" << before;
        // A changed label moves the file; the list is sorted again.
        QTest::newRow("edit") << "customEdit" << true << "HD (1280x720)"
                              << QStringList{label(m_high), "H.264 2160p29.97 2s 3Mbps, AACStereo 48kHz 128kbps"};
        QTest::newRow("edit cancelled") << "customEdit" << false << "HD (1280x720)" << before;
    }
    void addAndEditWriteTheStore()
    {
        QFETCH(QString, button);
        QFETCH(bool, accept);
        QFETCH(QString, opensAt);
        QFETCH(QStringList, after);
        write(m_low);
        write(m_high);
        const QByteArray lowFile = readFile(fileOf(m_low));
        m_list->setCodecMask(0x407F, 1);
        m_list->selectPreset(m_low);

        ModalDriver<CodecPresetDialog> driver([&](CodecPresetDialog* dialog) {
            QComboBox* sizes = control<QComboBox>(dialog, "videoSizeList");
            QCOMPARE(sizes->currentText(), opensAt);
            QVERIFY(choose(sizes, "UHD (3840x2160)"));
            // The output's audio mask leaves AAC only.
            QCOMPARE(comboTexts(control<QComboBox>(dialog, "audioCodecList")), QStringList{"AAC"});
            accept ? dialog->accept() : dialog->reject();
        });
        this->button(button.toLatin1())->click();
        QVERIFY(driver.found());

        QCOMPARE(rows(), after);
        QStringList files;
        for (const QString& name : after)
            files << name + ".json";
        files.sort();
        QCOMPARE(this->files(), files);
        QCOMPARE(presetList()->currentText(), accept ? after.last() : label(m_low));
        if (!accept)
            QCOMPARE(readFile(fileOf(m_low)), lowFile);
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
        const CodecPreset& first = m_low;
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
        write(m_low);
        write(m_high);
        m_list->setCodecMask(~0, ~0);
        QSignalSpy changed(m_list.get(), &EncoderListWidget::presetChanged);
        m_list->selectPreset(m_low);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(m_list->currentPreset().videoCodec().bitRate, 3000);

        // A preset that is not listed leaves the choice alone.
        m_list->selectPreset(preset("H.264", 480, 1000));
        QCOMPARE(m_list->currentPreset().videoCodec().bitRate, 3000);
        QCOMPARE(changed.count(), 1);
    }

    void withoutStoreTheListStaysEmpty()
    {
        write(m_low);
        m_stores.reset();
        m_list->setCodecMask(~0, ~0);
        QCOMPARE(m_list->count(), 0);
        QVERIFY(!button("customEdit")->isEnabled());
    }

private:
    const CodecPreset m_low = preset("H.264", 720, 3000);
    const CodecPreset m_high = preset("H.264", 1080, 8000);

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
