#include "widgets/delaytoolbutton.h"

#include <QtTest>

// The delayed tool button: a second click too soon after the first is no click.
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
