#include "dailymotion.h"
#include "eventdialog.h"
#include "fakeview.h"
#include "provider.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include <ctime>

namespace {
// A service whose event-dialog word differs for new and existing events.
class EventService : public Provider
{
public:
    EventService(ViewInterface* view, quint32 forNew, quint32 forUpdate)
        : Provider(view, QStringLiteral("Event Service"))
        , m_forNew(forNew)
        , m_forUpdate(forUpdate)
    {
    }
    quint32 features(bool update) const override { return update ? m_forUpdate : m_forNew; }

private:
    quint32 m_forNew;
    quint32 m_forUpdate;
};

const char* const rowNames[] = {"titleContainer",   "startTimeContainer", "endTimeContainer",
                                "descriptionContainer", "tagsContainer", "streamTypeContainer",
                                "privacyContainer", "cartegoryContainer"};

struct Form {
    explicit Form(EventDialog& d)
        : dialog(d)
    {
    }
    template <class T>
    T* get(const char* name) const
    {
        return dialog.findChild<T*>(QLatin1String(name));
    }
    QPushButton* ok() const { return get<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Ok); }
    // One character per row, in form order: title, start, end, description, tags, stream type, privacy, category.
    QString rows() const
    {
        QString visible;
        for (const char* name : rowNames)
            visible += get<QWidget>(name)->isVisibleTo(&dialog) ? QLatin1Char('1') : QLatin1Char('0');
        return visible;
    }
    void retitle(const QString& text) const
    {
        auto* title = get<QLineEdit>("title");
        title->selectAll();
        QTest::keyClick(title, Qt::Key_Delete);
        QTest::keyClicks(title, text);
    }
    EventDialog& dialog;
};

class TimeZone
{
public:
    explicit TimeZone(const QByteArray& zone)
        : m_had(qEnvironmentVariableIsSet("TZ"))
        , m_old(qgetenv("TZ"))
    {
        qputenv("TZ", zone);
        tzset();
    }
    ~TimeZone()
    {
        if (m_had)
            qputenv("TZ", m_old);
        else
            qunsetenv("TZ");
        tzset();
    }

private:
    bool m_had;
    QByteArray m_old;
};
} // namespace

class TestEventDialog : public QObject
{
    Q_OBJECT
private slots:
    void freshForm();
    void emptyTitleDisablesOk();
    void continuousStreamExplainsItself();
    void endTimeNeedsItsBox();
    void rowsFollowTheProvider_data();
    void rowsFollowTheProvider();
    void dailyMotionShowsTitleAndCategory();
    void providerListsFillTheCombos();
    void startTimeIsUtcInEveryZone_data();
    void startTimeIsUtcInEveryZone();
    void endTimeOnlyWhenTicked_data();
    void endTimeOnlyWhenTicked();
    void recordOfTheForm();
    void noTimesWithoutScheduling();
};

void TestEventDialog::freshForm()
{
    EventDialog dialog;
    Form form(dialog);
    QCOMPARE(form.get<QLineEdit>("title")->text(), QStringLiteral("Untitled"));
    QVERIFY(form.ok()->isEnabled());
    QCOMPARE(form.ok()->text(), QStringLiteral("OK"));
    QCOMPARE(form.get<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Cancel)->text(), QStringLiteral("Cancel"));
    for (const char* name : {"startDateTime", "endDateTime"}) {
        auto* date = form.get<QDateEdit>(name);
        QCOMPARE(date->displayFormat(), QStringLiteral("yyyy-MM-dd"));
        QVERIFY(date->calendarPopup());
        QCOMPARE(date->date(), QDate::currentDate());
    }
    QVERIFY(form.get<QDateEdit>("startDateTime")->isEnabled());
    QVERIFY(!form.get<QDateEdit>("endDateTime")->isEnabled());
    QVERIFY(!form.get<QCheckBox>("enableEndTime")->isChecked());
    for (const char* name : {"startTime", "endTime"}) {
        auto* times = form.get<QComboBox>(name);
        QCOMPARE(times->count(), 48);
        QCOMPARE(times->itemText(0), QStringLiteral("00:00"));
        QCOMPARE(times->itemText(1), QStringLiteral("00:30"));
        QCOMPARE(times->itemText(19), QStringLiteral("09:30"));
        QCOMPARE(times->itemText(47), QStringLiteral("23:30"));
    }
    auto* types = form.get<QComboBox>("streamtype");
    QCOMPARE(types->count(), 2);
    QCOMPARE(types->itemText(0), QStringLiteral("REGULAR LIVE"));
    QCOMPARE(types->itemData(0).toString(), QStringLiteral("REGULAR"));
    QCOMPARE(types->itemText(1), QStringLiteral("CONTINOUS LIVE"));
    QCOMPARE(types->itemData(1).toString(), QStringLiteral("AMBIENT"));
    QVERIFY(!form.get<QLabel>("fbinfo")->isVisibleTo(&dialog));
    QCOMPARE(form.get<QLineEdit>("tags")->placeholderText(),
             QStringLiteral("ex) funny animals, amazing space, newton, super car"));
    QVERIFY(form.get<QPlainTextEdit>("decription"));
    QCOMPARE(form.get<QLabel>("labelEndTime")->text(), QStringLiteral("End Time"));
    QCOMPARE(form.get<QLabel>("label_cartegory")->text(), QStringLiteral("Category:"));
    QCOMPARE(form.rows(), QStringLiteral("11111111"));
}

void TestEventDialog::emptyTitleDisablesOk()
{
    EventDialog dialog;
    dialog.show();
    Form form(dialog);
    form.retitle(QString());
    QVERIFY(!form.ok()->isEnabled());
    QTest::keyClicks(form.get<QLineEdit>("title"), QStringLiteral("S"));
    QVERIFY(form.ok()->isEnabled());
    QTest::keyClick(form.get<QLineEdit>("title"), Qt::Key_Backspace);
    QVERIFY(!form.ok()->isEnabled());
}

void TestEventDialog::continuousStreamExplainsItself()
{
    EventDialog dialog;
    Form form(dialog);
    auto* types = form.get<QComboBox>("streamtype");
    auto* info = form.get<QLabel>("fbinfo");
    types->setCurrentIndex(1);
    QVERIFY(info->isVisibleTo(&dialog));
    QCOMPARE(info->text(), QStringLiteral("unlimited live stream on Facebook"));
    types->setCurrentIndex(0);
    QVERIFY(!info->isVisibleTo(&dialog));
    QCOMPARE(info->text(), QString());
}

void TestEventDialog::endTimeNeedsItsBox()
{
    EventDialog dialog;
    dialog.show();
    Form form(dialog);
    auto* box = form.get<QCheckBox>("enableEndTime");
    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(4, box->height() / 2));
    QVERIFY(box->isChecked());
    QVERIFY(form.get<QDateEdit>("endDateTime")->isEnabled());
    QVERIFY(form.get<QComboBox>("endTime")->isEnabled());
    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(4, box->height() / 2));
    QVERIFY(!form.get<QDateEdit>("endDateTime")->isEnabled());
    QVERIFY(!form.get<QComboBox>("endTime")->isEnabled());
}

void TestEventDialog::rowsFollowTheProvider_data()
{
    QTest::addColumn<quint32>("forNew");
    QTest::addColumn<quint32>("forUpdate");
    QTest::addColumn<bool>("update");
    QTest::addColumn<QString>("rows"); // title, start, end, description, tags, stream type, privacy, category

    QTest::newRow("broadcasts with schedule") << 0x3F3F07A5u << 0x3F3F07A5u << false << "11111011";
    QTest::newRow("videos with a channel") << 0x213F03A4u << 0x213F03A4u << false << "10000001";
    QTest::newRow("live video, new") << 0x55000000u << 0x05000000u << false << "10010110";
    QTest::newRow("live video, update") << 0x55000000u << 0x05000000u << true << "10010000";
    QTest::newRow("no event rows") << 0x00300FA1u << 0x00300FA1u << false << "00000000";
    QTest::newRow("bit 24 title") << 0x01000000u << 0u << false << "10000000";
    QTest::newRow("bit 25 times") << 0x02000000u << 0u << false << "01100000";
    QTest::newRow("bit 26 description") << 0x04000000u << 0u << false << "00010000";
    QTest::newRow("bit 27 tags") << 0x08000000u << 0u << false << "00001000";
    QTest::newRow("bit 28 privacy") << 0x10000000u << 0u << false << "00000010";
    QTest::newRow("bit 29 category") << 0x20000000u << 0u << false << "00000001";
    QTest::newRow("bit 30 stream type") << 0x40000000u << 0u << false << "00000100";
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
    EventDialog dialog;
    dialog.enableUi(&service, update);
    QCOMPARE(Form(dialog).rows(), rows);
}

void TestEventDialog::dailyMotionShowsTitleAndCategory()
{
    FakeView view;
    DailyMotion service(&view);
    EventDialog dialog;
    dialog.enableUi(&service, false);
    QCOMPARE(Form(dialog).rows(), QStringLiteral("10000001"));
}

void TestEventDialog::providerListsFillTheCombos()
{
    FakeView view;
    EventService service(&view, EventDialog::allFields, EventDialog::allFields);
    service.setPrivacies({{"public", "public"}, {"private", "private"}, {"unlisted", "unlisted"}});
    service.setCategories({{"Gaming", "20"}, {"Music", "10"}});
    EventDialog dialog;
    dialog.enableUi(&service, false);
    dialog.enableUi(&service, false);
    Form form(dialog);
    auto* privacy = form.get<QComboBox>("privacy");
    auto* category = form.get<QComboBox>("category");
    QCOMPARE(privacy->count(), 3);
    QCOMPARE(privacy->itemText(2), QStringLiteral("unlisted"));
    QCOMPARE(category->count(), 2);
    QCOMPARE(category->itemText(1), QStringLiteral("Music"));
    QCOMPARE(category->itemData(1).toString(), QStringLiteral("10"));
}

void TestEventDialog::startTimeIsUtcInEveryZone_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QString>("time");
    QTest::addColumn<QString>("expected");

    const QDate may(2024, 5, 1);
    QTest::newRow("23:30, UTC") << QByteArray("UTC") << may << "23:30" << "2024-05-01T23:30:00.000Z";
    QTest::newRow("23:30, UTC+14") << QByteArray("Pacific/Kiritimati") << may << "23:30" << "2024-05-01T23:30:00.000Z";
    QTest::newRow("23:30, UTC-2:30") << QByteArray("America/St_Johns") << may << "23:30" << "2024-05-01T23:30:00.000Z";
    QTest::newRow("00:00, UTC+5:30") << QByteArray("Asia/Kolkata") << may << "00:00" << "2024-05-01T00:00:00.000Z";
    QTest::newRow("hour skipped by local summer time") << QByteArray("Europe/Berlin") << QDate(2024, 3, 31) << "02:30"
                                                       << "2024-03-31T02:30:00.000Z";
    QTest::newRow("hour repeated by local winter time") << QByteArray("America/New_York") << QDate(2024, 11, 3)
                                                        << "01:30" << "2024-11-03T01:30:00.000Z";
}

void TestEventDialog::startTimeIsUtcInEveryZone()
{
    QFETCH(QByteArray, zone);
    QFETCH(QDate, date);
    QFETCH(QString, time);
    QFETCH(QString, expected);
    TimeZone local(zone);

    EventDialog dialog;
    dialog.show();
    Form form(dialog);
    form.get<QDateEdit>("startDateTime")->setDate(date);
    form.get<QComboBox>("startTime")->setCurrentText(time);
    QTest::mouseClick(form.ok(), Qt::LeftButton);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.eventInfo().startTime, expected);
}

void TestEventDialog::endTimeOnlyWhenTicked_data()
{
    QTest::addColumn<bool>("ticked");
    QTest::addColumn<QString>("expected");
    QTest::newRow("unticked") << false << "";
    QTest::newRow("ticked") << true << "2024-06-02T01:00:00.000Z";
}

void TestEventDialog::endTimeOnlyWhenTicked()
{
    QFETCH(bool, ticked);
    QFETCH(QString, expected);
    EventDialog dialog;
    dialog.show();
    Form form(dialog);
    auto* box = form.get<QCheckBox>("enableEndTime");
    // Set while enabled, then possibly unticked again: the values stay in the form.
    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(4, box->height() / 2));
    form.get<QDateEdit>("endDateTime")->setDate(QDate(2024, 6, 2));
    form.get<QComboBox>("endTime")->setCurrentText(QStringLiteral("01:00"));
    if (!ticked)
        QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(4, box->height() / 2));
    QTest::mouseClick(form.ok(), Qt::LeftButton);
    QCOMPARE(dialog.eventInfo().endTime, expected);
    QVERIFY(!dialog.eventInfo().startTime.isEmpty());
}

void TestEventDialog::recordOfTheForm()
{
    FakeView view;
    EventService service(&view, EventDialog::allFields, EventDialog::allFields);
    service.setPrivacies({{"EVERYONE", "EVERYONE"}, {"SELF", "SELF"}});
    service.setCategories({{"Sports", "17"}, {"News", "25"}});
    EventDialog dialog;
    dialog.enableUi(&service, false);
    dialog.show();
    Form form(dialog);
    form.retitle(QStringLiteral("Cup final"));
    QTest::keyClicks(form.get<QPlainTextEdit>("decription"), QStringLiteral("Live from the stadium"));
    QTest::keyClicks(form.get<QLineEdit>("tags"), QStringLiteral("football, final"));
    form.get<QComboBox>("privacy")->setCurrentIndex(1);
    form.get<QComboBox>("category")->setCurrentIndex(1);
    form.get<QComboBox>("streamtype")->setCurrentIndex(1);
    form.get<QDateEdit>("startDateTime")->setDate(QDate(2025, 7, 14));
    form.get<QComboBox>("startTime")->setCurrentText(QStringLiteral("18:30"));
    QTest::mouseClick(form.ok(), Qt::LeftButton);

    const EventInfo& event = dialog.eventInfo();
    QCOMPARE(event.id, QString());
    QCOMPARE(event.title, QStringLiteral("Cup final"));
    QCOMPARE(event.description, QStringLiteral("Live from the stadium"));
    QCOMPARE(event.tags, QStringLiteral("football, final"));
    QCOMPARE(event.privacy, QStringLiteral("SELF"));
    QCOMPARE(event.category, QStringLiteral("25"));
    QCOMPARE(event.streamType, QStringLiteral("AMBIENT"));
    QCOMPARE(event.startTime, QStringLiteral("2025-07-14T18:30:00.000Z"));
    QCOMPARE(event.endTime, QString());
}

void TestEventDialog::noTimesWithoutScheduling()
{
    FakeView view;
    EventService service(&view, 0x213F03A4u, 0x213F03A4u);
    EventDialog dialog;
    dialog.enableUi(&service, false);
    dialog.show();
    Form form(dialog);
    auto* box = form.get<QCheckBox>("enableEndTime");
    box->setChecked(true);
    QTest::mouseClick(form.ok(), Qt::LeftButton);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.eventInfo().startTime, QString());
    QCOMPARE(dialog.eventInfo().endTime, QString());
    QCOMPARE(dialog.eventInfo().title, QStringLiteral("Untitled"));
}

QTEST_MAIN(TestEventDialog)
#include "tst_eventdialog.moc"
