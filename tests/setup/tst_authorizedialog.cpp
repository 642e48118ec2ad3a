#include "authorizedialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

class TestAuthorizeDialog : public QObject
{
    Q_OBJECT
private slots:
    void form();
    void okNeedsBothFields_data();
    void okNeedsBothFields();
    void clearingEitherFieldDisablesOk_data();
    void clearingEitherFieldDisablesOk();
    void acceptedValues();
};

namespace {
struct Form {
    explicit Form(AuthorizeDialog& dialog)
        : username(dialog.findChild<QLineEdit*>(QStringLiteral("username")))
        , password(dialog.findChild<QLineEdit*>(QStringLiteral("password")))
        , ok(dialog.findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"))->button(QDialogButtonBox::Ok))
    {
    }
    QLineEdit* username;
    QLineEdit* password;
    QPushButton* ok;
};
} // namespace

void TestAuthorizeDialog::form()
{
    AuthorizeDialog dialog;
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Authorize"));
    auto* labelId = dialog.findChild<QLabel*>(QStringLiteral("label_id"));
    auto* labelPw = dialog.findChild<QLabel*>(QStringLiteral("label_pw"));
    QVERIFY(labelId && labelPw);
    QCOMPARE(labelId->text(), QStringLiteral("Username:"));
    QCOMPARE(labelPw->text(), QStringLiteral("Password:"));
    const int wider = qMax(labelId->fontMetrics().horizontalAdvance(labelId->text()),
                           labelPw->fontMetrics().horizontalAdvance(labelPw->text()));
    QCOMPARE(labelId->minimumWidth(), wider);
    QCOMPARE(labelPw->minimumWidth(), wider);

    Form form(dialog);
    QVERIFY(form.username && form.password && form.ok);
    QCOMPARE(form.password->echoMode(), QLineEdit::Password);
    QCOMPARE(form.ok->text(), QStringLiteral("OK"));
    QVERIFY(!form.ok->isEnabled());
    QCOMPARE(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel)->text(), QStringLiteral("Cancel"));
}

void TestAuthorizeDialog::okNeedsBothFields_data()
{
    QTest::addColumn<QString>("username");
    QTest::addColumn<QString>("password");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("nothing") << "" << "" << false;
    QTest::newRow("user name only") << "operator" << "" << false;
    QTest::newRow("password only") << "" << "s3cret" << false;
    QTest::newRow("both") << "operator" << "s3cret" << true;
    QTest::newRow("blanks count as text") << " " << " " << true;
}

void TestAuthorizeDialog::okNeedsBothFields()
{
    QFETCH(QString, username);
    QFETCH(QString, password);
    QFETCH(bool, enabled);
    AuthorizeDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    Form form(dialog);
    QTest::keyClicks(form.username, username);
    QTest::keyClicks(form.password, password);
    QCOMPARE(form.ok->isEnabled(), enabled);
}

void TestAuthorizeDialog::clearingEitherFieldDisablesOk_data()
{
    QTest::addColumn<QString>("field");
    QTest::newRow("user name") << "username";
    QTest::newRow("password") << "password";
}

void TestAuthorizeDialog::clearingEitherFieldDisablesOk()
{
    QFETCH(QString, field);
    AuthorizeDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    Form form(dialog);
    QTest::keyClicks(form.username, QStringLiteral("op"));
    QTest::keyClicks(form.password, QStringLiteral("pw"));
    QVERIFY(form.ok->isEnabled());
    auto* edit = dialog.findChild<QLineEdit*>(field);
    QTest::keyClick(edit, Qt::Key_Backspace);
    QVERIFY(form.ok->isEnabled());
    QTest::keyClick(edit, Qt::Key_Backspace);
    QVERIFY(!form.ok->isEnabled());
    QTest::keyClicks(edit, QStringLiteral("x"));
    QVERIFY(form.ok->isEnabled());
}

void TestAuthorizeDialog::acceptedValues()
{
    AuthorizeDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    Form form(dialog);
    QTest::keyClicks(form.username, QStringLiteral("studio.one"));
    QTest::keyClicks(form.password, QStringLiteral("p@ss word"));
    QTest::mouseClick(form.ok, Qt::LeftButton);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.username(), QStringLiteral("studio.one"));
    QCOMPARE(dialog.password(), QStringLiteral("p@ss word"));
}

QTEST_MAIN(TestAuthorizeDialog)
#include "tst_authorizedialog.moc"
