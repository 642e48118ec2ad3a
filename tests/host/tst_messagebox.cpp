#include "messagebox.h"
#include "qmessageboxex.h"

#include <QtTest>

Q_DECLARE_METATYPE(MessageBox::Kind)
Q_DECLARE_METATYPE(QMessageBox::StandardButton)
Q_DECLARE_METATYPE(QMessageBox::StandardButtons)

class tst_MessageBox : public QObject
{
    Q_OBJECT

    using Shown = MessageBox::Shown;
    using Kind = MessageBox::Kind;

    static QMessageBox::StandardButton call(Kind kind, const QString& title, const QString& text,
                                            QMessageBox::StandardButtons buttons,
                                            QMessageBox::StandardButton defaultButton)
    {
        switch (kind) {
        case Kind::Information:
            return MessageBox::information(nullptr, title, text, buttons, defaultButton);
        case Kind::Question:
            return MessageBox::question(nullptr, title, text, buttons, defaultButton);
        case Kind::Warning:
            return MessageBox::warning(nullptr, title, text, buttons, defaultButton);
        case Kind::Critical:
            return MessageBox::critical(nullptr, title, text, buttons, defaultButton);
        }
        return QMessageBox::NoButton;
    }

private slots:
    void initTestCase() { MessageBox::setScripted(true); }
    void init() { MessageBox::clear(); }

    void scriptedDefaultAnswer_data()
    {
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<QMessageBox::StandardButtons>("buttons");
        QTest::addColumn<QMessageBox::StandardButton>("defaultButton");
        QTest::addColumn<QMessageBox::StandardButton>("expected");

        QTest::newRow("information takes its only button")
            << Kind::Information << QMessageBox::StandardButtons(QMessageBox::Ok) << QMessageBox::NoButton
            << QMessageBox::Ok;
        QTest::newRow("question without default takes Yes")
            << Kind::Question << QMessageBox::StandardButtons(QMessageBox::Yes | QMessageBox::No)
            << QMessageBox::NoButton << QMessageBox::Yes;
        QTest::newRow("question with default No takes No")
            << Kind::Question << QMessageBox::StandardButtons(QMessageBox::Yes | QMessageBox::No) << QMessageBox::No
            << QMessageBox::No;
        QTest::newRow("warning with default Cancel")
            << Kind::Warning << QMessageBox::StandardButtons(QMessageBox::Ok | QMessageBox::Cancel)
            << QMessageBox::Cancel << QMessageBox::Cancel;
        QTest::newRow("critical takes the lowest button bit")
            << Kind::Critical << QMessageBox::StandardButtons(QMessageBox::Close | QMessageBox::Save)
            << QMessageBox::NoButton << QMessageBox::Save;
        QTest::newRow("no buttons at all")
            << Kind::Warning << QMessageBox::StandardButtons() << QMessageBox::NoButton << QMessageBox::NoButton;
    }
    void scriptedDefaultAnswer()
    {
        QFETCH(Kind, kind);
        QFETCH(QMessageBox::StandardButtons, buttons);
        QFETCH(QMessageBox::StandardButton, defaultButton);
        QFETCH(QMessageBox::StandardButton, expected);

        QCOMPARE(call(kind, QStringLiteral("Preset"), QStringLiteral("Some text."), buttons, defaultButton), expected);
        QCOMPARE(MessageBox::shown().size(), 1);
        QVERIFY(MessageBox::lastShown().kind == kind);
    }

    void queuedAnswersComeFirstInOrder()
    {
        MessageBox::setNextAnswer(QMessageBox::No);
        MessageBox::setNextAnswer(QMessageBox::Cancel);

        QCOMPARE(MessageBox::question(nullptr, QStringLiteral("a"), QStringLiteral("1")), QMessageBox::No);
        // A queued answer is returned even when it is not among the buttons.
        QCOMPARE(MessageBox::warning(nullptr, QStringLiteral("b"), QStringLiteral("2")), QMessageBox::Cancel);
        // The queue is empty again: back to the default answer.
        QCOMPARE(MessageBox::question(nullptr, QStringLiteral("c"), QStringLiteral("3")), QMessageBox::Yes);
        QCOMPARE(MessageBox::shown().size(), 3);
    }

    void queuedAnswerBeatsTheDefaultButton()
    {
        MessageBox::setNextAnswer(QMessageBox::Yes);
        QCOMPARE(MessageBox::question(nullptr, QStringLiteral("Preset"), QStringLiteral("Remove?"),
                                      QMessageBox::Yes | QMessageBox::No, QMessageBox::No),
                 QMessageBox::Yes);
    }

    void recordsTitleTextAndKindInOrder()
    {
        MessageBox::warning(nullptr, QStringLiteral("Streaming"), QStringLiteral("Check the maximum number of streams."));
        MessageBox::information(nullptr, QStringLiteral("Preset"), QStringLiteral("Saved."));

        const QList<Shown> shown = MessageBox::shown();
        QCOMPARE(shown.size(), 2);
        QCOMPARE(shown.at(0).title, QStringLiteral("Streaming"));
        QCOMPARE(shown.at(0).text, QStringLiteral("Check the maximum number of streams."));
        QVERIFY(shown.at(0).kind == Kind::Warning);
        QCOMPARE(MessageBox::lastShown().title, QStringLiteral("Preset"));
        QCOMPARE(MessageBox::lastShown().text, QStringLiteral("Saved."));
        QVERIFY(MessageBox::lastShown().kind == Kind::Information);
    }

    void questionOfTheStyledBoxGoesThroughTheSeam()
    {
        MessageBox::setNextAnswer(QMessageBox::No);
        QCOMPARE(QMessageBoxEx::question(nullptr, QStringLiteral("Preset"),
                                         QStringLiteral("Are you sure you want to remove this item?")),
                 QMessageBox::No);
        QCOMPARE(MessageBox::lastShown().text, QStringLiteral("Are you sure you want to remove this item?"));
        QVERIFY(MessageBox::lastShown().kind == Kind::Question);
    }

    void clearForgetsBoxesAndAnswersButStaysScripted()
    {
        MessageBox::setNextAnswer(QMessageBox::No);
        MessageBox::critical(nullptr, QStringLiteral("x"), QStringLiteral("y"));
        MessageBox::setNextAnswer(QMessageBox::No);
        MessageBox::clear();

        QVERIFY(MessageBox::shown().isEmpty());
        QVERIFY(MessageBox::lastShown().title.isEmpty());
        QVERIFY(MessageBox::lastShown().text.isEmpty());
        QVERIFY(MessageBox::isScripted());
        QCOMPARE(MessageBox::question(nullptr, QStringLiteral("t"), QStringLiteral("u")), QMessageBox::Yes);
    }
};

QTEST_MAIN(tst_MessageBox)
#include "tst_messagebox.moc"
