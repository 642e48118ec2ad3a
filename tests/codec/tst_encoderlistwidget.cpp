#include "codec/codecpresetdialog.h"
#include "codec/codectables.h"
#include "codec/encoderlistwidget.h"
#include "records/licensemodel.h"
#include "stores/codecmanager.h"
#include "support/modaldriver.h"
#include "support/tempstores.h"
#include "support/testkit.h"

#include <QtTest>
#include <QtWidgets>

#include <memory>

using namespace TestKit;

namespace {

QString label(const CodecPreset& p)
{
    return CodecManager::namingFromPreset(&p);
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
        QCOMPARE(rows(), (QStringList{label(h720), label(h1080), label(h1080loud), label(h1080fast), "--",
                                      label(hevc720), label(uhd), "--", label(mjpeg)}));
        // Items carry their preset; the recording and streaming parts are switched off.
        const CodecPreset first = presetList()->itemData(0).value<CodecPreset>();
        QVERIFY(first.videoCodec().height == 720 && !first.local().enabled && !first.streaming().enabled);

        // Selecting a preset that is not listed leaves the choice alone.
        m_list->selectPreset(h1080);
        QCOMPARE(changed.count(), 2);
        m_list->selectPreset(preset("H.264", 480, 1000));
        QCOMPARE(m_list->currentPreset().videoCodec().bitRate, 4000);
        QCOMPARE(changed.count(), 2);
    }

    void usageSelectsTheCodecs()
    {
        for (const char* codec : {"H.264", "HEVC", "Apple ProRes", "WMV"})
            write(preset(QLatin1String(codec), 1080, 8000));
        m_list->initialize(CodecTables::UsageStreaming, LicenseModel::usageStreaming, 0x1F);
        m_list->setCodecMask(~0, ~0);
        const QStringList codecs = rows().replaceInStrings(QRegularExpression(" 1080.*"), QString());
        QCOMPARE(codecs, (QStringList{"H.264", "--", "HEVC"}));
    }

    void buttonsChangeTheStore_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("accept");
        QTest::addColumn<QString>("opensAt");
        QTest::addColumn<QStringList>("after"); // the list's labels

        const QStringList before{label(m_low), label(m_high)};
        QTest::newRow("add") << "customAdd" << true << "FHD (1920x1080)"
                             << before + QStringList{"H.264 2160 AUTO 2s 4Mbps, AACStereo 48kHz 128kbps"};
        // A changed label moves the file; the list is sorted again.
        QTest::newRow("edit") << "customEdit" << true << "HD (1280x720)"
                              << QStringList{label(m_high), "H.264 2160p29.97 2s 3Mbps, AACStereo 48kHz 128kbps"};
        QTest::newRow("edit cancelled") << "customEdit" << false << "HD (1280x720)" << before;
        QTest::newRow("remove") << "customDel" << true << QString() << QStringList{label(m_high)};
        QTest::newRow("remove refused") << "customDel" << false << QString() << before;
    }
    void buttonsChangeTheStore()
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
        MessageBox::setNextAnswer(accept ? QMessageBox::Yes : QMessageBox::No);
        this->button(button.toLatin1())->click();
        QCOMPARE(driver.found(), !opensAt.isEmpty());
        QCOMPARE(MessageBox::shown().size(), opensAt.isEmpty() ? 1 : 0);
        if (opensAt.isEmpty())
            QCOMPARE(MessageBox::lastShown().title + ' ' + MessageBox::lastShown().text,
                     QStringLiteral("Preset Are you sure you want to remove this item?"));

        QCOMPARE(rows(), after);
        QStringList files;
        for (const QString& name : after)
            files << name + ".json";
        files.sort();
        QCOMPARE(entries(m_stores->codecDir()), files);
        if (!accept)
            QCOMPARE(readFile(fileOf(m_low)), lowFile);
        if (!accept || button != "customDel")
            QCOMPARE(presetList()->currentText(), accept ? after.last() : label(m_low));
    }

    void lastRemovedLeavesNothingToEdit()
    {
        write(m_low);
        m_list->setCodecMask(~0, ~0);
        QVERIFY(button("customDel")->isEnabled() && button("customEdit")->isEnabled());
        button("customDel")->click();
        QVERIFY(entries(m_stores->codecDir()).isEmpty());
        QVERIFY(!button("customDel")->isEnabled() && !button("customEdit")->isEnabled());
        QVERIFY(m_list->currentPreset() == CodecPreset());

        // Without a store the list stays empty.
        write(m_low);
        m_stores.reset();
        m_list->refresh();
        QCOMPARE(m_list->count(), 0);
    }

private:
    const CodecPreset m_low = preset("H.264", 720, 3000);
    const CodecPreset m_high = preset("H.264", 1080, 8000);

    void write(const CodecPreset& p) { QVERIFY(m_stores->codecManager().write(p)); }
    QString fileOf(const CodecPreset& p) const { return m_stores->codecDir() + '/' + label(p) + ".json"; }
    QComboBox* presetList() const { return control<QComboBox>(m_list.get(), "presetList"); }
    QToolButton* button(const char* name) const { return control<QToolButton>(m_list.get(), name); }
    // The combo's rows as labels, separators as "--".
    QStringList rows() const
    {
        QStringList result;
        for (int i = 0; i < presetList()->count(); ++i)
            result.append(presetList()->itemData(i, Qt::AccessibleDescriptionRole) == "separator"
                              ? QStringLiteral("--")
                              : presetList()->itemText(i));
        return result;
    }

    std::unique_ptr<TempStores> m_stores;
    std::unique_ptr<EncoderListWidget> m_list;
};

QTEST_MAIN(TestEncoderListWidget)
#include "tst_encoderlistwidget.moc"
