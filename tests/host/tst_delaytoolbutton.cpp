#include "widgets/delaytoolbutton.h"

#include <QtTest>

class tst_DelayToolButton : public QObject
{
    Q_OBJECT

    struct Button : DelayToolButton {
        explicit Button(int delay)
        {
            setCheckable(true);
            setDelay(delay);
            resize(40, 40);
        }
    };

private slots:
    void clicksCloseTogether_data()
    {
        QTest::addColumn<int>("delay");
        QTest::addColumn<int>("pause");
        QTest::addColumn<int>("clicks");

        QTest::newRow("second click at once is ignored") << 500 << 0 << 1;
        QTest::newRow("second click inside the delay is ignored") << 500 << 60 << 1;
        QTest::newRow("second click after the delay counts") << 40 << 120 << 2;
        QTest::newRow("no delay, both count") << 0 << 0 << 2;
    }
    void clicksCloseTogether()
    {
        QFETCH(int, delay);
        QFETCH(int, pause);
        QFETCH(int, clicks);

        Button button(delay);
        QSignalSpy clicked(&button, &QAbstractButton::clicked);
        QTest::mouseClick(&button, Qt::LeftButton);
        QTest::qWait(pause);
        QTest::mouseClick(&button, Qt::LeftButton);

        QCOMPARE(clicked.size(), clicks);
        QCOMPARE(button.isChecked(), clicks == 1);
        QVERIFY(!button.isDown());
    }

    void setCheckedIsNeverDelayed()
    {
        Button button(10000);
        QSignalSpy toggled(&button, &QAbstractButton::toggled);
        QTest::mouseClick(&button, Qt::LeftButton);
        QVERIFY(button.isChecked());
        // The host reflects a state it changed itself, right after the operator's click.
        button.setChecked(false);
        QVERIFY(!button.isChecked());
        button.setChecked(true);
        QCOMPARE(toggled.size(), 3);
    }

    void onlyRealClicksArmTheDelay()
    {
        Button button(10000);
        QSignalSpy clicked(&button, &QAbstractButton::clicked);
        // Pressed, then dragged away and released; or another mouse button: no click.
        QTest::mousePress(&button, Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
        QTest::mouseRelease(&button, Qt::LeftButton, Qt::NoModifier, QPoint(200, 200));
        QTest::mouseClick(&button, Qt::RightButton);
        QCOMPARE(clicked.size(), 0);
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(clicked.size(), 1);
        QVERIFY(button.isChecked());
    }
};

QTEST_MAIN(tst_DelayToolButton)
#include "tst_delaytoolbutton.moc"
