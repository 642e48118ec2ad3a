#include "setup/authorizedialog.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

class TestAuthorizeDialog : public QObject
{
    Q_OBJECT
private slots:
    void okNeedsBothFields()
    {
        AuthorizeDialog dialog;
        dialog.show();
        auto* user = dialog.findChild<QLineEdit*>("username");
        auto* pass = dialog.findChild<QLineEdit*>("password");
        QPushButton* ok = dialog.findChild<QDialogButtonBox*>("buttonBox")->button(QDialogButtonBox::Ok);
        QCOMPARE(pass->echoMode(), QLineEdit::Password);
        QTest::keyClicks(user, "studio.one");
        QVERIFY(!ok->isEnabled());
        QTest::keyClicks(pass, "p@ss word");
        QVERIFY(ok->isEnabled());
        QTest::keyClick(user, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(user, Qt::Key_Delete);
        QVERIFY(!ok->isEnabled());
        QTest::keyClicks(user, "op");
        QTest::mouseClick(ok, Qt::LeftButton);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(dialog.username() + '|' + dialog.password(), QStringLiteral("op|p@ss word"));
    }
};

QTEST_MAIN(TestAuthorizeDialog)
#include "tst_authorizedialog.moc"
