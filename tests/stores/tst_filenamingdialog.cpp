#include "records/codecpreset.h"
#include "stores/filenamingdialog.h"
#include "stores/filetag.h"
#include "stores/snapshot.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

class TestFileNamingDialog : public QObject
{
    Q_OBJECT

private slots:
    void init() { FileTag::setClock([] { return QDateTime(QDate(2024, 3, 7), QTime(9, 5, 2)); }); }
    void cleanup()
    {
        FileTag::resetClock();
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void typingPreviewsTheName_data()
    {
        QTest::addColumn<bool>("snapshot");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("preview");
        QTest::addColumn<bool>("accept");

        QTest::newRow("preset, default recording tag")
            << false << "%P %Y-%M-%D %h-%m-%s %C_%B_%R"
            << "Main 2024-03-07 09-05-02 H.264_6000Kbps_1280x720.mov" << true;
        QTest::newRow("preset, unknown token") << false << "%X%" << "%X%.mov" << true;
        // The caller's record changes as the operator types; callers wanting undo pass a copy.
        QTest::newRow("preset, emptied and cancelled") << false << "" << "Untitled.mov" << false;
        QTest::newRow("snapshot, default grab tag")
            << true << "%P %Y-%M-%D %h-%m-%s %S" << "Still 2024-03-07 09-05-02 CLEAN PROGRAM.jpg" << true;
        QTest::newRow("snapshot, codec tokens stay") << true << "%C %B %R" << "%C %B %R.jpg" << false;
        QTest::newRow("snapshot, emptied") << true << "" << "Untitled.jpg" << true;
    }
    void typingPreviewsTheName()
    {
        QFETCH(bool, snapshot);
        QFETCH(QString, typed);
        QFETCH(QString, preview);
        QFETCH(bool, accept);

        CodecPreset preset;
        preset.setName("Main");
        preset.local().fileTag = "%P";
        preset.videoCodec() = {true, "H.264", 6000, 0, 0, 1280, 720, 0, 0, 0, 0, {}, {}};
        preset.container().name = "mov";
        Snapshot shot;
        shot.source = 1;
        shot.name = "Still";
        shot.extension = "jpg";
        shot.fileTag = "%S";

        FileNamingDialog dialog(nullptr, snapshot ? nullptr : &preset, snapshot ? &shot : nullptr);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        auto* fileTag = dialog.findChild<QLineEdit*>("fileTag");
        auto* fileName = dialog.findChild<QLabel*>("fileName");
        auto* buttons = dialog.findChild<QDialogButtonBox*>("buttonBox");
        QVERIFY(fileTag && fileName && buttons);
        // The codec tokens' legend is for recordings only.
        QCOMPARE(dialog.findChild<QWidget*>("codecContainer")->isVisible(), !snapshot);
        QCOMPARE(fileName->text(), QString(snapshot ? "CLEAN PROGRAM.jpg" : "Main.mov"));

        fileTag->setFocus();
        fileTag->selectAll();
        QTest::keyClick(fileTag, Qt::Key_Backspace);
        QTest::keyClicks(fileTag, typed);
        QCOMPARE(fileName->text(), preview);
        QCOMPARE(dialog.fileTag(), typed);

        buttons->button(accept ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel)->click();
        QCOMPARE(dialog.result(), int(accept ? QDialog::Accepted : QDialog::Rejected));
        QVERIFY(!dialog.isVisible());
        QCOMPARE(snapshot ? shot.fileTag : preset.local().fileTag, typed);
    }
};

QTEST_MAIN(TestFileNamingDialog)
#include "tst_filenamingdialog.moc"
