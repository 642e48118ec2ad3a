#include "setup/authorizedialog.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

class TestAuthorizeDialog : public QObject
{
    Q_OBJECT
private slots:
    void okNeedsBothFields_data();
    void okNeedsBothFields();
};

void TestAuthorizeDialog::okNeedsBothFields_data()
{
    QTest::addColumn<QString>("username");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("cleared"); // the field emptied again afterwards, if any

    QTest::newRow("user name only") << "operator" << "" << "";
    QTest::newRow("password only") << "" << "s3cret" << "";
    QTest::newRow("both") << "studio.one" << "p@ss word" << "";
    QTest::newRow("password cleared") << "op" << "pw" << "password";
}

void TestAuthorizeDialog::okNeedsBothFields()
{
    QFETCH(QString, username);
    QFETCH(QString, password);
    QFETCH(QString, cleared);

    AuthorizeDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    auto* user = dialog.findChild<QLineEdit*>("username");
    auto* pass = dialog.findChild<QLineEdit*>("password");
    QPushButton* ok = dialog.findChild<QDialogButtonBox*>("buttonBox")->button(QDialogButtonBox::Ok);
    QVERIFY(!ok->isEnabled());
    QCOMPARE(pass->echoMode(), QLineEdit::Password);
    QTest::keyClicks(user, username);
    QTest::keyClicks(pass, password);
    if (!cleared.isEmpty()) {
        auto* edit = dialog.findChild<QLineEdit*>(cleared);
        QTest::keyClick(edit, Qt::Key_Backspace);
        QVERIFY(ok->isEnabled());
        QTest::keyClick(edit, Qt::Key_Backspace);
    }
    const bool filled = cleared.isEmpty() && !username.isEmpty() && !password.isEmpty();
    QCOMPARE(ok->isEnabled(), filled);

    QTest::mouseClick(ok, Qt::LeftButton);
    QCOMPARE(dialog.result(), filled ? int(QDialog::Accepted) : int(QDialog::Rejected));
    QCOMPARE(dialog.isVisible(), !filled);
    QCOMPARE(dialog.username(), cleared == "username" ? QString() : username);
    QCOMPARE(dialog.password(), cleared == "password" ? QString() : password);
}

QTEST_MAIN(TestAuthorizeDialog)
#include "tst_authorizedialog.moc"
