#include "provider/provider.h"
#include "setup/eventdialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopeGuard>
#include <QTest>

#include <ctime>

namespace {
// A service whose event-dialog word differs for new and existing events.
class EventService : public Provider
{
public:
    EventService(quint32 forNew, quint32 forUpdate)
        : Provider(nullptr, QStringLiteral("Event Service")), m_forNew(forNew), m_forUpdate(forUpdate)
    {
        setPrivacies({{"EVERYONE", "EVERYONE"}, {"SELF", "SELF"}});
        setCategories({{"Sports", "17"}, {"News", "25"}});
    }
    quint32 features(bool update) const override { return update ? m_forUpdate : m_forNew; }

private:
    quint32 m_forNew;
    quint32 m_forUpdate;
};

// The dialog on screen, as the operator sees it.
struct Form {
    Form() { dialog.show(); }
    template <class T = QWidget>
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
            visible += get(name)->isVisibleTo(&dialog) ? '1' : '0';
        return visible;
    }
    void start(const QDate& date, const QString& time)
    {
        get<QDateEdit>("startDateTime")->setDate(date);
        get<QComboBox>("startTime")->setCurrentText(time);
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
    void freshForm()
    {
        Form form;
        QCOMPARE(form.rows(), QStringLiteral("11111111"));
        auto* times = form.get<QComboBox>("startTime");
        QCOMPARE(times->itemText(1) + ' ' + times->itemText(47), QStringLiteral("00:30 23:30"));
        QCOMPARE(form.get<QDateEdit>("startDateTime")->date(), QDate::currentDate());
        auto* title = form.get<QLineEdit>("title");
        QCOMPARE(title->text(), QStringLiteral("Untitled"));
        title->selectAll();
        QTest::keyClick(title, Qt::Key_Delete);
        QVERIFY(!form.ok()->isEnabled());
        QTest::keyClicks(title, "S");
        QVERIFY(form.ok()->isEnabled());
        // The continuous stream type explains itself.
        auto* types = form.get<QComboBox>("streamtype");
        auto* info = form.get<QLabel>("fbinfo");
        types->setCurrentIndex(1);
        QCOMPARE(types->currentText() + ' ' + types->currentData().toString(), QStringLiteral("CONTINOUS LIVE AMBIENT"));
        QVERIFY(info->isVisibleTo(&form.dialog) && info->text() == QStringLiteral("unlimited live stream on Facebook"));
        types->setCurrentIndex(0);
        QVERIFY(!info->isVisibleTo(&form.dialog) && info->text().isEmpty());
    }

    void rowsFollowTheProvider_data()
    {
        QTest::addColumn<quint32>("forNew");
        QTest::addColumn<quint32>("forUpdate");
        QTest::addColumn<bool>("update");
        QTest::addColumn<QString>("rows"); // title, start, end, description, tags, stream type, privacy, category
        QTest::newRow("videos with a channel") << 0x213F03A4u << 0x213F03A4u << false << "10000001";
        QTest::newRow("live video, new") << 0x55000000u << 0x05000000u << false << "10010110";
        QTest::newRow("live video, update") << 0x55000000u << 0x05000000u << true << "10010000";
        QTest::newRow("times and tags") << 0x0A000000u << 0u << false << "01101000";
    }
    void rowsFollowTheProvider()
    {
        QFETCH(quint32, forNew);
        QFETCH(quint32, forUpdate);
        QFETCH(bool, update);
        QFETCH(QString, rows);
        EventService service(forNew, forUpdate);
        Form form;
        form.dialog.enableUi(&service, update);
        QCOMPARE(form.rows(), rows);
    }

    void startTimeIsUtcInEveryZone_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<QDate>("date");
        QTest::addColumn<QString>("time");
        QTest::newRow("23:30, UTC+14") << QByteArray("Pacific/Kiritimati") << QDate(2024, 5, 1) << "23:30";
        QTest::newRow("hour skipped by summer time") << QByteArray("Europe/Berlin") << QDate(2024, 3, 31) << "02:30";
        QTest::newRow("hour repeated by winter time") << QByteArray("America/New_York") << QDate(2024, 11, 3) << "01:30";
    }
    void startTimeIsUtcInEveryZone()
    {
        QFETCH(QByteArray, zone);
        QFETCH(QDate, date);
        QFETCH(QString, time);
        const auto restore = qScopeGuard([] {
            qunsetenv("TZ");
            tzset();
        });
        qputenv("TZ", zone);
        tzset();
        Form form;
        form.start(date, time);
        QCOMPARE(form.accept().startTime, date.toString(Qt::ISODate) + 'T' + time + ":00.000Z");
        // An event read back shows the same date and time, whatever the zone.
        Form again;
        again.dialog.setEvent(form.dialog.eventInfo());
        QCOMPARE(again.accept().startTime, form.dialog.eventInfo().startTime);
    }

    void endTimeOnlyWhenTickedAndScheduled_data()
    {
        QTest::addColumn<quint32>("features");
        QTest::addColumn<bool>("ticked");
        QTest::addColumn<QString>("times"); // start|end
        QTest::newRow("ticked") << EventDialog::allFields << true << "2024-06-01T10:00:00.000Z|2024-06-02T01:00:00.000Z";
        QTest::newRow("unticked") << EventDialog::allFields << false << "2024-06-01T10:00:00.000Z|";
        QTest::newRow("no scheduling") << 0x213F03A4u << true << "|";
    }
    void endTimeOnlyWhenTickedAndScheduled()
    {
        QFETCH(quint32, features);
        QFETCH(bool, ticked);
        QFETCH(QString, times);
        EventService service(features, features);
        Form form;
        form.dialog.enableUi(&service, false);
        form.start(QDate(2024, 6, 1), "10:00");
        // Set while enabled, then possibly unticked again: the values stay in the form.
        form.get<QCheckBox>("enableEndTime")->setChecked(true);
        form.get<QDateEdit>("endDateTime")->setDate(QDate(2024, 6, 2));
        form.get<QComboBox>("endTime")->setCurrentText("01:00");
        form.get<QCheckBox>("enableEndTime")->setChecked(ticked);
        QCOMPARE(form.get("endTime")->isEnabled(), ticked);
        const EventInfo& event = form.accept();
        QCOMPARE(event.startTime + '|' + event.endTime, times);
    }

    void anEventComesBackAsItWas()
    {
        EventService service(EventDialog::allFields, EventDialog::allFields);
        const EventInfo event{"ev1", "Cup final", "Live from the stadium", "SELF", "2025-07-14T18:45:00.000Z",
                              "2025-07-14T21:00:00.000Z", "football, final", "25", "AMBIENT"};
        Form form;
        form.dialog.enableUi(&service, true);
        form.dialog.setEvent(event);
        const EventInfo& e = form.accept();
        const auto line = [](const EventInfo& e) {
            return QStringList{e.id, e.title, e.description, e.tags, e.privacy, e.category, e.streamType, e.startTime, e.endTime};
        };
        QCOMPARE(line(e), line(event));
    }
};

QTEST_MAIN(TestEventDialog)
#include "tst_eventdialog.moc"
