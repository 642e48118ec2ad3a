#include "widgets/delaytoolbutton.h"
#include "widgets/messagebox.h"
#include "widgets/qmessageboxex.h"

#include <QtTest>

// The host's widgets the dialogs rely on: the scripted message box and the delayed tool button.
class tst_Widgets : public QObject
{
    Q_OBJECT

    struct DelayButton : DelayToolButton {
        explicit DelayButton(int delay)
        {
            setCheckable(true);
            setDelay(delay);
            resize(40, 40);
        }
    };

private slots:
    void scriptedBoxesAnswerAndAreRecorded()
    {
        MessageBox::setScripted(true);
        // Without a queued answer: the default button, else the lowest button bit.
        QCOMPARE(MessageBox::question(nullptr, "a", "1", QMessageBox::Yes | QMessageBox::No, QMessageBox::No),
                 QMessageBox::No);
        QCOMPARE(MessageBox::critical(nullptr, "b", "2", QMessageBox::Close | QMessageBox::Save), QMessageBox::Save);
        QCOMPARE(MessageBox::warning(nullptr, "c", "3", QMessageBox::StandardButtons()), QMessageBox::NoButton);
        // A queued answer comes first, even one that is not among the buttons; the styled box asks the same way.
        MessageBox::setNextAnswer(QMessageBox::No);
        MessageBox::setNextAnswer(QMessageBox::Cancel);
        QCOMPARE(QMessageBoxEx::question(nullptr, "Preset", "Remove?"), QMessageBox::No);
        QCOMPARE(MessageBox::information(nullptr, "Streaming", "Too many."), QMessageBox::Cancel);
        QCOMPARE(MessageBox::question(nullptr, "d", "4"), QMessageBox::Yes);

        QStringList shown;
        for (const MessageBox::Shown& box : MessageBox::shown())
            shown << QString("%1 %2: %3").arg(int(box.kind)).arg(box.title, box.text);
        QCOMPARE(shown, (QStringList{"1 a: 1", "3 b: 2", "2 c: 3", "1 Preset: Remove?", "0 Streaming: Too many.",
                                     "1 d: 4"}));

        // clear() forgets boxes and answers but stays scripted.
        MessageBox::setNextAnswer(QMessageBox::No);
        MessageBox::clear();
        QVERIFY(MessageBox::shown().isEmpty() && MessageBox::lastShown().text.isEmpty());
        QCOMPARE(MessageBox::question(nullptr, "t", "u"), QMessageBox::Yes);
    }

    void clicksCloseTogetherAreIgnored()
    {
        DelayButton button(150);
        QSignalSpy clicked(&button, &QAbstractButton::clicked);
        // Pressed, then dragged away and released; or another mouse button: no click, and no delay armed.
        QTest::mousePress(&button, Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
        QTest::mouseRelease(&button, Qt::LeftButton, Qt::NoModifier, QPoint(200, 200));
        QTest::mouseClick(&button, Qt::RightButton);
        QTest::mouseClick(&button, Qt::LeftButton);
        QTest::mouseClick(&button, Qt::LeftButton); // inside the delay
        QCOMPARE(clicked.size(), 1);
        QVERIFY(button.isChecked() && !button.isDown());
        QTest::qWait(200);
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(clicked.size(), 2);
        button.setDelay(0);
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(clicked.size(), 3);
        // The host reflects a state it changed itself, right after the operator's click.
        button.setChecked(false);
        QVERIFY(!button.isChecked());
    }
};

QTEST_MAIN(tst_Widgets)
#include "tst_widgets.moc"
