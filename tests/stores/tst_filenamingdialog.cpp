#include "codecpreset.h"
#include "filenamingdialog.h"
#include "filetag.h"
#include "snapshot.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

namespace {

CodecPreset recording(const QString& tag)
{
    CodecPreset preset;
    preset.setName(QStringLiteral("Main"));
    preset.local().fileTag = tag;
    preset.videoCodec().codec = QStringLiteral("H.264");
    preset.videoCodec().bitRate = 6000;
    preset.videoCodec().width = 1280;
    preset.videoCodec().height = 720;
    preset.container().name = QStringLiteral("mov");
    return preset;
}

Snapshot grab(const QString& tag)
{
    Snapshot shot;
    shot.source = 1;
    shot.name = QStringLiteral("Still");
    shot.extension = QStringLiteral("jpg");
    shot.fileTag = tag;
    return shot;
}

struct Controls {
    QLineEdit* fileTag = nullptr;
    QLabel* fileName = nullptr;
    QWidget* codecContainer = nullptr;
    QDialogButtonBox* buttonBox = nullptr;
};

Controls controls(const QDialog& dialog)
{
    return {dialog.findChild<QLineEdit*>(QStringLiteral("fileTag")), dialog.findChild<QLabel*>(QStringLiteral("fileName")),
            dialog.findChild<QWidget*>(QStringLiteral("codecContainer")),
            dialog.findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"))};
}

void retype(QLineEdit* edit, const QString& text)
{
    edit->setFocus();
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Backspace);
    QTest::keyClicks(edit, text);
}

} // namespace

class TestFileNamingDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void layoutAndTexts();
    void typingIntoAPresetTag_data();
    void typingIntoAPresetTag();
    void typingIntoASnapshotTag_data();
    void typingIntoASnapshotTag();
    void emptyTagPreviewsUntitled();
    void cancelKeepsTheEdits();
};

void TestFileNamingDialog::init()
{
    FileTag::setClock([] { return QDateTime(QDate(2024, 3, 7), QTime(9, 5, 2)); });
}

void TestFileNamingDialog::cleanup()
{
    FileTag::resetClock();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void TestFileNamingDialog::layoutAndTexts()
{
    CodecPreset preset = recording(QStringLiteral("%P"));
    FileNamingDialog dialog(nullptr, &preset, nullptr);
    const Controls c = controls(dialog);
    QVERIFY(c.fileTag && c.fileName && c.codecContainer && c.buttonBox);
    QVERIFY(dialog.findChild<QFrame*>(QStringLiteral("frame")));
    QVERIFY(dialog.findChild<QFrame*>(QStringLiteral("frame"))->isAncestorOf(c.fileName));

    QCOMPARE(dialog.windowTitle(), QStringLiteral("FileNaming"));
    QVERIFY(dialog.windowFlags() & Qt::WindowCloseButtonHint);
    QVERIFY(!(dialog.windowFlags() & Qt::WindowContextHelpButtonHint));
    QCOMPARE(c.buttonBox->button(QDialogButtonBox::Ok)->text(), QStringLiteral("OK"));
    QCOMPARE(c.buttonBox->button(QDialogButtonBox::Cancel)->text(), QStringLiteral("Cancel"));

    QStringList labels;
    QStringList codecLabels;
    for (const QLabel* label : dialog.findChildren<QLabel*>()) {
        labels << label->text();
        if (c.codecContainer->isAncestorOf(label))
            codecLabels << label->text();
    }
    for (const char* legend : {"Year", "Month", "Day", "Hour", "Minute", "Second", "Preset", "Source", "%Y", "%m",
                               "Name:"})
        QVERIFY2(labels.contains(QLatin1String(legend)), legend);
    codecLabels.sort();
    QCOMPARE(codecLabels, (QStringList{QStringLiteral("%B"), QStringLiteral("%C"), QStringLiteral("%R"),
                                       QStringLiteral("Bitrate"), QStringLiteral("Codec"), QStringLiteral("Resolution")}));
}

void TestFileNamingDialog::typingIntoAPresetTag_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("preview");
    QTest::newRow("default recording tag") << QStringLiteral("%P %Y-%M-%D %h-%m-%s %C_%B_%R")
                                           << QStringLiteral("Main 2024-03-07 09-05-02 H.264_6000Kbps_1280x720.mov");
    QTest::newRow("literal text") << QStringLiteral("Show") << QStringLiteral("Show.mov");
    QTest::newRow("unknown token") << QStringLiteral("%X%") << QStringLiteral("%X%.mov");
}

void TestFileNamingDialog::typingIntoAPresetTag()
{
    QFETCH(QString, typed);
    QFETCH(QString, preview);

    CodecPreset preset = recording(QStringLiteral("%P"));
    FileNamingDialog dialog(nullptr, &preset, nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const Controls c = controls(dialog);
    QCOMPARE(c.fileTag->text(), QStringLiteral("%P"));
    QCOMPARE(c.fileName->text(), QStringLiteral("Main.mov"));
    QVERIFY(c.codecContainer->isVisible());

    retype(c.fileTag, typed);
    QCOMPARE(c.fileName->text(), preview);
    QCOMPARE(dialog.fileTag(), typed);
    QCOMPARE(preset.local().fileTag, typed);

    c.buttonBox->button(QDialogButtonBox::Ok)->click();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QVERIFY(!dialog.isVisible());
}

void TestFileNamingDialog::typingIntoASnapshotTag_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("preview");
    QTest::newRow("default grab tag") << QStringLiteral("%P %Y-%M-%D %h-%m-%s %S")
                                      << QStringLiteral("Still 2024-03-07 09-05-02 CLEAN PROGRAM.jpg");
    QTest::newRow("codec tokens stay") << QStringLiteral("%C %B %R") << QStringLiteral("%C %B %R.jpg");
}

void TestFileNamingDialog::typingIntoASnapshotTag()
{
    QFETCH(QString, typed);
    QFETCH(QString, preview);

    Snapshot shot = grab(QStringLiteral("%S"));
    FileNamingDialog dialog(nullptr, nullptr, &shot);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const Controls c = controls(dialog);
    QVERIFY(!c.codecContainer->isVisible());
    QCOMPARE(c.fileTag->text(), QStringLiteral("%S"));
    QCOMPARE(c.fileName->text(), QStringLiteral("CLEAN PROGRAM.jpg"));

    retype(c.fileTag, typed);
    QCOMPARE(c.fileName->text(), preview);
    QCOMPARE(shot.fileTag, typed);
    dialog.close();
}

void TestFileNamingDialog::emptyTagPreviewsUntitled()
{
    CodecPreset preset = recording(QString());
    FileNamingDialog dialog(nullptr, &preset, nullptr);
    QCOMPARE(controls(dialog).fileName->text(), QStringLiteral("Untitled.mov"));

    Snapshot shot = grab(QStringLiteral("%P"));
    FileNamingDialog shotDialog(nullptr, nullptr, &shot);
    const Controls c = controls(shotDialog);
    QTest::keyClick(c.fileTag, Qt::Key_End);
    QTest::keyClick(c.fileTag, Qt::Key_Backspace);
    QTest::keyClick(c.fileTag, Qt::Key_Backspace);
    QCOMPARE(c.fileName->text(), QStringLiteral("Untitled.jpg"));
    QCOMPARE(shot.fileTag, QString());
}

void TestFileNamingDialog::cancelKeepsTheEdits()
{
    CodecPreset preset = recording(QStringLiteral("%P"));
    FileNamingDialog dialog(nullptr, &preset, nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QTest::keyClicks(controls(dialog).fileTag, QStringLiteral(" %Y"));
    controls(dialog).buttonBox->button(QDialogButtonBox::Cancel)->click();
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    // The caller's record changed as the operator typed; callers wanting undo pass a copy.
    QCOMPARE(preset.local().fileTag, QStringLiteral("%P %Y"));
}

QTEST_MAIN(TestFileNamingDialog)
#include "tst_filenamingdialog.moc"
