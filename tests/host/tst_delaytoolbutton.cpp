#include "delaytoolbutton.h"

#include <QtTest>

class tst_DelayToolButton : public QObject
{
    Q_OBJECT

private slots:
    void clicksCloseTogether_data()
    {
        QTest::addColumn<int>("delay");
        QTest::addColumn<int>("pause");
        QTest::addColumn<int>("clicks");
        QTest::addColumn<bool>("checked");

        QTest::newRow("second click at once is ignored") << 500 << 0 << 1 << true;
        QTest::newRow("second click inside the delay is ignored") << 500 << 60 << 1 << true;
        QTest::newRow("second click after the delay counts") << 40 << 120 << 2 << false;
        QTest::newRow("no delay, both count") << 0 << 0 << 2 << false;
    }
    void clicksCloseTogether()
    {
        QFETCH(int, delay);
        QFETCH(int, pause);
        QFETCH(int, clicks);
        QFETCH(bool, checked);

        DelayToolButton button;
        button.setCheckable(true);
        button.setDelay(delay);
        button.resize(40, 40);
        QSignalSpy clicked(&button, &QAbstractButton::clicked);

        QTest::mouseClick(&button, Qt::LeftButton);
        QTest::qWait(pause);
        QTest::mouseClick(&button, Qt::LeftButton);

        QCOMPARE(clicked.size(), clicks);
        QCOMPARE(button.isChecked(), checked);
        QVERIFY(!button.isDown());
    }

    void setCheckedIsNeverDelayed()
    {
        DelayToolButton button;
        button.setCheckable(true);
        button.setDelay(10000);
        button.resize(40, 40);
        QSignalSpy toggled(&button, &QAbstractButton::toggled);

        QTest::mouseClick(&button, Qt::LeftButton);
        QVERIFY(button.isChecked());
        // The host reflects a state it changed itself, right after the operator's click.
        button.setChecked(false);
        QVERIFY(!button.isChecked());
        button.setChecked(true);
        QVERIFY(button.isChecked());
        QCOMPARE(toggled.size(), 3);
    }

    void releaseOffTheButtonDoesNotArmTheDelay()
    {
        DelayToolButton button;
        button.setCheckable(true);
        button.setDelay(10000);
        button.resize(40, 40);
        QSignalSpy clicked(&button, &QAbstractButton::clicked);

        // Pressed, then dragged away and released: no click, so the next real click counts.
        QTest::mousePress(&button, Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
        QTest::mouseRelease(&button, Qt::LeftButton, Qt::NoModifier, QPoint(200, 200));
        QCOMPARE(clicked.size(), 0);
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(clicked.size(), 1);
        QVERIFY(button.isChecked());
    }

    void otherButtonsDoNotArmTheDelay()
    {
        DelayToolButton button;
        button.setDelay(10000);
        button.resize(40, 40);
        QSignalSpy clicked(&button, &QAbstractButton::clicked);
        QTest::mouseClick(&button, Qt::RightButton);
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(clicked.size(), 1);
    }
};

QTEST_MAIN(tst_DelayToolButton)
#include "tst_delaytoolbutton.moc"
