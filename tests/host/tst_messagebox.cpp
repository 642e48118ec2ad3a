#include "widgets/messagebox.h"
#include "widgets/qmessageboxex.h"

#include <QtTest>

Q_DECLARE_METATYPE(MessageBox::Kind)
Q_DECLARE_METATYPE(QMessageBox::StandardButton)
Q_DECLARE_METATYPE(QMessageBox::StandardButtons)

class tst_MessageBox : public QObject
{
    Q_OBJECT

    using Kind = MessageBox::Kind;
    using Button = QMessageBox::StandardButton;

private slots:
    void initTestCase() { MessageBox::setScripted(true); }
    void init() { MessageBox::clear(); }

    void scriptedDefaultAnswer_data()
    {
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<QMessageBox::StandardButtons>("buttons");
        QTest::addColumn<Button>("defaultButton");
        QTest::addColumn<Button>("expected");

        QTest::newRow("information takes its only button")
            << Kind::Information << QMessageBox::StandardButtons(QMessageBox::Ok) << QMessageBox::NoButton
            << QMessageBox::Ok;
        QTest::newRow("question without default takes Yes") << Kind::Question << (QMessageBox::Yes | QMessageBox::No)
                                                            << QMessageBox::NoButton << QMessageBox::Yes;
        QTest::newRow("question with default No takes No") << Kind::Question << (QMessageBox::Yes | QMessageBox::No)
                                                           << QMessageBox::No << QMessageBox::No;
        QTest::newRow("critical takes the lowest button bit")
            << Kind::Critical << (QMessageBox::Close | QMessageBox::Save) << QMessageBox::NoButton << QMessageBox::Save;
        QTest::newRow("no buttons at all") << Kind::Warning << QMessageBox::StandardButtons() << QMessageBox::NoButton
                                           << QMessageBox::NoButton;
    }
    void scriptedDefaultAnswer()
    {
        QFETCH(Kind, kind);
        QFETCH(QMessageBox::StandardButtons, buttons);
        QFETCH(Button, defaultButton);
        QFETCH(Button, expected);

        using Show = Button (*)(QWidget*, const QString&, const QString&, QMessageBox::StandardButtons, Button);
        const QMap<Kind, Show> show{{Kind::Information, &MessageBox::information},
                                    {Kind::Question, &MessageBox::question},
                                    {Kind::Warning, &MessageBox::warning},
                                    {Kind::Critical, &MessageBox::critical}};
        QCOMPARE(show.value(kind)(nullptr, "Preset", "Some text.", buttons, defaultButton), expected);
        QCOMPARE(MessageBox::shown().size(), 1);
        QVERIFY(MessageBox::lastShown().kind == kind);
    }

    void queuedAnswersAndRecordsInOrder()
    {
        MessageBox::setNextAnswer(QMessageBox::No);
        MessageBox::setNextAnswer(QMessageBox::Cancel);
        MessageBox::setNextAnswer(QMessageBox::Yes);

        // The styled box's question goes through the seam as well.
        QCOMPARE(QMessageBoxEx::question(nullptr, "Preset", "Are you sure you want to remove this item?"),
                 QMessageBox::No);
        // A queued answer is returned even when it is not among the buttons, and beats the default button.
        QCOMPARE(MessageBox::warning(nullptr, "Streaming", "Check the maximum number of streams."),
                 QMessageBox::Cancel);
        QCOMPARE(MessageBox::question(nullptr, "a", "1", QMessageBox::Yes | QMessageBox::No, QMessageBox::No),
                 QMessageBox::Yes);
        // The queue is empty again: back to the default answer.
        QCOMPARE(MessageBox::question(nullptr, "b", "2", QMessageBox::Yes | QMessageBox::No, QMessageBox::No),
                 QMessageBox::No);

        const QList<MessageBox::Shown> shown = MessageBox::shown();
        QCOMPARE(shown.size(), 4);
        QCOMPARE(shown.at(0).text, QStringLiteral("Are you sure you want to remove this item?"));
        QVERIFY(shown.at(0).kind == Kind::Question);
        QCOMPARE(shown.at(1).title, QStringLiteral("Streaming"));
        QCOMPARE(shown.at(1).text, QStringLiteral("Check the maximum number of streams."));
        QVERIFY(shown.at(1).kind == Kind::Warning);
        QCOMPARE(MessageBox::lastShown().title, QStringLiteral("b"));

        // clear() forgets boxes and answers but stays scripted.
        MessageBox::setNextAnswer(QMessageBox::No);
        MessageBox::clear();
        QVERIFY(MessageBox::shown().isEmpty());
        QVERIFY(MessageBox::lastShown().title.isEmpty() && MessageBox::lastShown().text.isEmpty());
        QVERIFY(MessageBox::isScripted());
        QCOMPARE(MessageBox::question(nullptr, "t", "u"), QMessageBox::Yes);
    }
};

QTEST_MAIN(tst_MessageBox)
#include "tst_messagebox.moc"
