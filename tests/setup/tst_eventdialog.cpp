#include "provider/provider.h"
#include "setup/eventdialog.h"
#include "support/fakeview.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScopeGuard>
#include <QTest>

#include <ctime>

namespace {
// A service whose event-dialog word differs for new and existing events.
class EventService : public Provider
{
public:
    EventService(ViewInterface* view, quint32 forNew, quint32 forUpdate)
        : Provider(view, QStringLiteral("Event Service")), m_forNew(forNew), m_forUpdate(forUpdate)
    {
    }
    quint32 features(bool update) const override { return update ? m_forUpdate : m_forNew; }

private:
    quint32 m_forNew;
    quint32 m_forUpdate;
};

// The dialog on screen, as the operator sees it.
struct Form {
    Form() { dialog.show(); }
    template <class T>
    T* get(const char* name)
    {
        return dialog.findChild<T*>(QLatin1String(name));
    }
    QPushButton* ok() { return get<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Ok); }
    // One digit per row, in form order: title, start, end, description, tags, stream type, privacy, category.
    QString rows()
    {
        QString visible;
        for (const char* name : {"titleContainer", "startTimeContainer", "endTimeContainer", "descriptionContainer",
                                 "tagsContainer", "streamTypeContainer", "privacyContainer", "cartegoryContainer"})
            visible += get<QWidget>(name)->isVisibleTo(&dialog) ? '1' : '0';
        return visible;
    }
    void tickEndTime()
    {
        auto* box = get<QCheckBox>("enableEndTime");
        QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(4, box->height() / 2));
    }
    const EventInfo& accept()
    {
        QTest::mouseClick(ok(), Qt::LeftButton);
        return dialog.eventInfo();
    }
    EventDialog dialog;
};

} // namespace

class TestEventDialog : public QObject
{
    Q_OBJECT
private slots:
    void freshFormAndTitleRule();
    void continuousStreamExplainsItself();
    void rowsFollowTheProvider_data();
    void rowsFollowTheProvider();
    void startTimeIsUtcInEveryZone_data();
    void startTimeIsUtcInEveryZone();
    void endTimeOnlyWhenTicked_data();
    void endTimeOnlyWhenTicked();
    void recordOfTheForm();
    void noTimesWithoutScheduling();
};

void TestEventDialog::freshFormAndTitleRule()
{
    Form form;
    QCOMPARE(form.rows(), QStringLiteral("11111111"));
    for (const char* name : {"startTime", "endTime"}) {
        auto* times = form.get<QComboBox>(name);
        QCOMPARE(times->count(), 48);
        const QStringList some{times->itemText(0), times->itemText(1), times->itemText(19), times->itemText(47)};
        QCOMPARE(some, QStringList({"00:00", "00:30", "09:30", "23:30"}));
    }
    QCOMPARE(form.get<QDateEdit>("startDateTime")->date(), QDate::currentDate());
    QVERIFY(!form.get<QDateEdit>("endDateTime")->isEnabled());

    auto* title = form.get<QLineEdit>("title");
    QCOMPARE(title->text(), QStringLiteral("Untitled"));
    QVERIFY(form.ok()->isEnabled());
    title->selectAll();
    QTest::keyClick(title, Qt::Key_Delete);
    QVERIFY(!form.ok()->isEnabled());
    QTest::keyClicks(title, "S");
    QVERIFY(form.ok()->isEnabled());
    QTest::keyClick(title, Qt::Key_Backspace);
    QVERIFY(!form.ok()->isEnabled());
}

void TestEventDialog::continuousStreamExplainsItself()
{
    Form form;
    auto* types = form.get<QComboBox>("streamtype");
    auto* info = form.get<QLabel>("fbinfo");
    QVERIFY(!info->isVisibleTo(&form.dialog));
    types->setCurrentIndex(1);
    QCOMPARE(types->currentText() + ' ' + types->currentData().toString(), QStringLiteral("CONTINOUS LIVE AMBIENT"));
    QVERIFY(info->isVisibleTo(&form.dialog));
    QCOMPARE(info->text(), QStringLiteral("unlimited live stream on Facebook"));
    types->setCurrentIndex(0);
    QCOMPARE(types->currentText() + ' ' + types->currentData().toString(), QStringLiteral("REGULAR LIVE REGULAR"));
    QVERIFY(!info->isVisibleTo(&form.dialog));
    QCOMPARE(info->text(), QString());
}

void TestEventDialog::rowsFollowTheProvider_data()
{
    QTest::addColumn<quint32>("forNew");
    QTest::addColumn<quint32>("forUpdate");
    QTest::addColumn<bool>("update");
    QTest::addColumn<QString>("rows"); // title, start, end, description, tags, stream type, privacy, category

    QTest::newRow("videos with a channel") << 0x213F03A4u << 0x213F03A4u << false << "10000001";
    QTest::newRow("live video, new") << 0x55000000u << 0x05000000u << false << "10010110";
    QTest::newRow("live video, update") << 0x55000000u << 0x05000000u << true << "10010000";
    // Bits 24 to 30, one at a time: title, times, description, tags, privacy, category, stream type.
    const QStringList single{"10000000", "01100000", "00010000", "00001000", "00000010", "00000001", "00000100"};
    for (int bit = 24; bit <= 30; ++bit)
        QTest::addRow("bit %d", bit) << (1u << bit) << 0u << false << single.at(bit - 24);
    QTest::newRow("bit 31 and low bits show nothing") << 0x80FFFFFFu << 0u << false << "00000000";
}

void TestEventDialog::rowsFollowTheProvider()
{
    QFETCH(quint32, forNew);
    QFETCH(quint32, forUpdate);
    QFETCH(bool, update);
    QFETCH(QString, rows);
    FakeView view;
    EventService service(&view, forNew, forUpdate);
    Form form;
    form.dialog.enableUi(&service, update);
    QCOMPARE(form.rows(), rows);
}

void TestEventDialog::startTimeIsUtcInEveryZone_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QString>("time");

    const QDate may(2024, 5, 1);
    QTest::newRow("23:30, UTC+14") << QByteArray("Pacific/Kiritimati") << may << "23:30";
    QTest::newRow("23:30, UTC-2:30") << QByteArray("America/St_Johns") << may << "23:30";
    QTest::newRow("00:00, UTC+5:30") << QByteArray("Asia/Kolkata") << may << "00:00";
    QTest::newRow("hour skipped by local summer time") << QByteArray("Europe/Berlin") << QDate(2024, 3, 31) << "02:30";
    QTest::newRow("hour repeated by local winter time") << QByteArray("America/New_York") << QDate(2024, 11, 3)
                                                        << "01:30";
}

void TestEventDialog::startTimeIsUtcInEveryZone()
{
    QFETCH(QByteArray, zone);
    QFETCH(QDate, date);
    QFETCH(QString, time);
    const QByteArray oldZone = qgetenv("TZ");
    const bool hadZone = qEnvironmentVariableIsSet("TZ");
    const auto restore = qScopeGuard([&] {
        hadZone ? qputenv("TZ", oldZone) : qunsetenv("TZ");
        tzset();
    });
    qputenv("TZ", zone);
    tzset();

    Form form;
    form.get<QDateEdit>("startDateTime")->setDate(date);
    form.get<QComboBox>("startTime")->setCurrentText(time);
    QCOMPARE(form.accept().startTime, date.toString(Qt::ISODate) + 'T' + time + ":00.000Z");
    QCOMPARE(form.dialog.result(), int(QDialog::Accepted));
}

void TestEventDialog::endTimeOnlyWhenTicked_data()
{
    QTest::addColumn<bool>("ticked");
    QTest::newRow("unticked") << false;
    QTest::newRow("ticked") << true;
}

void TestEventDialog::endTimeOnlyWhenTicked()
{
    QFETCH(bool, ticked);
    Form form;
    // Set while enabled, then possibly unticked again: the values stay in the form.
    form.tickEndTime();
    QVERIFY(form.get<QDateEdit>("endDateTime")->isEnabled() && form.get<QComboBox>("endTime")->isEnabled());
    form.get<QDateEdit>("endDateTime")->setDate(QDate(2024, 6, 2));
    form.get<QComboBox>("endTime")->setCurrentText("01:00");
    if (!ticked) {
        form.tickEndTime();
        QVERIFY(!form.get<QDateEdit>("endDateTime")->isEnabled() && !form.get<QComboBox>("endTime")->isEnabled());
    }
    const EventInfo& event = form.accept();
    QCOMPARE(event.endTime, ticked ? QStringLiteral("2024-06-02T01:00:00.000Z") : QString());
    QVERIFY(!event.startTime.isEmpty());
}

void TestEventDialog::recordOfTheForm()
{
    FakeView view;
    EventService service(&view, EventDialog::allFields, EventDialog::allFields);
    service.setPrivacies({{"EVERYONE", "EVERYONE"}, {"SELF", "SELF"}, {"ALL_FRIENDS", "ALL_FRIENDS"}});
    service.setCategories({{"Sports", "17"}, {"News", "25"}});
    Form form;
    form.dialog.enableUi(&service, false);
    form.dialog.enableUi(&service, false); // the lists are replaced, not appended to
    QCOMPARE(form.get<QComboBox>("privacy")->count(), 3);
    QCOMPARE(form.get<QComboBox>("category")->count(), 2);

    auto* title = form.get<QLineEdit>("title");
    title->selectAll();
    QTest::keyClicks(title, "Cup final");
    QTest::keyClicks(form.get<QPlainTextEdit>("decription"), "Live from the stadium");
    QTest::keyClicks(form.get<QLineEdit>("tags"), "football, final");
    form.get<QComboBox>("privacy")->setCurrentIndex(1);
    form.get<QComboBox>("category")->setCurrentIndex(1);
    form.get<QComboBox>("streamtype")->setCurrentIndex(1);
    form.get<QDateEdit>("startDateTime")->setDate(QDate(2025, 7, 14));
    form.get<QComboBox>("startTime")->setCurrentText("18:30");
    const EventInfo& e = form.accept();
    QCOMPARE(QStringList({e.id, e.title, e.description, e.tags, e.privacy, e.category, e.streamType, e.startTime,
                          e.endTime}),
             QStringList({"", "Cup final", "Live from the stadium", "football, final", "SELF", "25", "AMBIENT",
                          "2025-07-14T18:30:00.000Z", ""}));
}

void TestEventDialog::noTimesWithoutScheduling()
{
    FakeView view;
    EventService service(&view, 0x213F03A4u, 0x213F03A4u);
    Form form;
    form.dialog.enableUi(&service, false);
    form.get<QCheckBox>("enableEndTime")->setChecked(true);
    const EventInfo& event = form.accept();
    QCOMPARE(form.dialog.result(), int(QDialog::Accepted));
    QCOMPARE(event.title + '|' + event.startTime + '|' + event.endTime, QStringLiteral("Untitled||"));
}

QTEST_MAIN(TestEventDialog)
#include "tst_eventdialog.moc"
