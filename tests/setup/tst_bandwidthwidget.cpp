// ctest: serial
#include "bandwidthprobe.h"
#include "bandwidthwidget.h"
#include "fakeview.h"
#include "simpleprovider.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QThreadPool>
#include <QtTest>

#include <arpa/inet.h>
#include <cerrno>
#include <fcntl.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

// Addresses well inside 127.0.0.0/8, away from what other programs bind.
QString address(int n)
{
    return QStringLiteral("127.19.35.%1").arg(n);
}

// A raw listener on <address>:1935, so the test controls the backlog and when
// connections are accepted (QTcpServer does neither).
class Listener
{
public:
    Listener() = default;
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;
    ~Listener()
    {
        for (int fd : m_clients)
            ::close(fd);
        if (m_fd >= 0)
            ::close(m_fd);
    }

    bool listen(const QString& host, int backlog = 16)
    {
        m_address = toAddress(host);
        m_fd = ::socket(AF_INET, SOCK_STREAM, 0);
        const int yes = 1;
        ::setsockopt(m_fd, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
        return m_fd >= 0 && ::bind(m_fd, reinterpret_cast<const sockaddr*>(&m_address), sizeof m_address) == 0
               && ::listen(m_fd, backlog) == 0;
    }

    // Connects until the accept queue refuses to take more: later connection
    // attempts wait for a retransmitted SYN (a second or more).
    bool fill()
    {
        for (int attempt = 0; attempt < 64; ++attempt) {
            const int fd = ::socket(AF_INET, SOCK_STREAM, 0);
            ::fcntl(fd, F_SETFL, O_NONBLOCK);
            ::connect(fd, reinterpret_cast<const sockaddr*>(&m_address), sizeof m_address);
            pollfd wait{fd, POLLOUT, 0};
            if (::poll(&wait, 1, 250) == 1) {
                m_clients.append(fd);
                continue;
            }
            ::close(fd); // still in SYN_SENT: the queue is full
            return true;
        }
        return false;
    }

    void acceptOne()
    {
        const int fd = ::accept(m_fd, nullptr, nullptr);
        if (fd >= 0)
            m_clients.append(fd);
    }

private:
    static sockaddr_in toAddress(const QString& host)
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(BandwidthProbe::port);
        ::inet_pton(AF_INET, host.toLatin1().constData(), &address.sin_addr);
        return address;
    }

    int m_fd = -1;
    sockaddr_in m_address{};
    QList<int> m_clients;
};

LabelPair server(const QString& label, int n, const QString& port = QString())
{
    return {label, QStringLiteral("rtmp://%1%2/app").arg(address(n), port.isEmpty() ? QString() : ":" + port)};
}

int measuredMs(const QString& text)
{
    return text.section(QLatin1Char(' '), -2, -2).toInt();
}

} // namespace

class TestBandwidthWidget : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void progress_data();
    void progress();
    void onlyFasterReplacesBest_data();
    void onlyFasterReplacesBest();
    void widgetLooks();

    void fastestServerWins();
    void tieKeepsEarlierServer();
    void refusedServerCountsForProgress();
    void otherPortIsTestedOn1935();
    void allUnreachableNamesNoServer();
    void serverThatNeverAcceptsHitsTheLimit();
    void stopEndsBetweenServers();
    void widgetDestroyedWhileMeasuring();

private:
    struct Run {
        QList<QList<QVariant>> changes;
        QStringList best;
        qint64 elapsed = 0;
    };
    Run measure(const QList<LabelPair>& servers);

    FakeView m_view;
};

void TestBandwidthWidget::cleanup()
{
    QVERIFY(QThreadPool::globalInstance()->waitForDone(10000));
}

void TestBandwidthWidget::progress_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("percent");

    QTest::newRow("1 of 3") << 1 << 3 << 33;
    QTest::newRow("2 of 3 rounds up") << 2 << 3 << 67;
    QTest::newRow("last") << 45 << 45 << 100;
    QTest::newRow("1 of 8 rounds half up") << 1 << 8 << 13;
    QTest::newRow("no servers") << 0 << 0 << 0;
    QTest::newRow("clamped") << 5 << 4 << 100;
}

void TestBandwidthWidget::progress()
{
    QFETCH(int, position);
    QFETCH(int, count);
    QFETCH(int, percent);
    QCOMPARE(BandwidthProbe::progress(position, count), percent);
}

void TestBandwidthWidget::onlyFasterReplacesBest_data()
{
    QTest::addColumn<qint64>("elapsed");
    QTest::addColumn<qint64>("best");
    QTest::addColumn<bool>("better");

    QTest::newRow("faster") << qint64(10) << qint64(11) << true;
    QTest::newRow("tie") << qint64(11) << qint64(11) << false;
    QTest::newRow("slower") << qint64(12) << qint64(11) << false;
    QTest::newRow("first below the start") << qint64(9999) << qint64(BandwidthProbe::initialBest) << true;
    QTest::newRow("never at the start value") << qint64(10000) << qint64(BandwidthProbe::initialBest) << false;
}

void TestBandwidthWidget::onlyFasterReplacesBest()
{
    QFETCH(qint64, elapsed);
    QFETCH(qint64, best);
    QFETCH(bool, better);
    QCOMPARE(BandwidthProbe::isBetter(elapsed, best), better);
}

void TestBandwidthWidget::widgetLooks()
{
    BandwidthWidget widget;
    QCOMPARE(widget.size(), QSize(320, 36));
    QCOMPARE(widget.minimumSize(), widget.maximumSize());
    QCOMPARE(widget.focusPolicy(), Qt::NoFocus);
    QCOMPARE(widget.color(), QColor(Qt::black));
    widget.setColor(QColor(237, 110, 0));
    QCOMPARE(widget.color(), QColor(237, 110, 0));
    QVERIFY(!widget.isStopped());
    widget.bandwidthChange(QStringLiteral("Main 12 ms"), 50);
    QCOMPARE(widget.message(), QStringLiteral("Main 12 ms"));
    QCOMPARE(widget.progress(), 50);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    widget.grab();
}

TestBandwidthWidget::Run TestBandwidthWidget::measure(const QList<LabelPair>& servers)
{
    SimpleProvider provider(&m_view, 3601, QStringLiteral("Test"), QUrl(), QString(), servers);
    BandwidthWidget widget;
    QSignalSpy changes(&widget, &BandwidthWidget::bandwidthChanged);
    QSignalSpy best(&widget, &BandwidthWidget::bestServerChanged);
    QElapsedTimer timer;
    timer.start();
    widget.start(&provider);
    [&] { QTRY_VERIFY_WITH_TIMEOUT(widget.isStopped(), 20000); }();
    Run run;
    run.elapsed = timer.elapsed();
    QCoreApplication::processEvents(); // the last queued results
    run.changes = changes;
    for (const QList<QVariant>& arguments : best)
        run.best.append(arguments.first().toString());
    if (!run.changes.isEmpty())
        [&] { QTRY_COMPARE(widget.message(), run.changes.last().first().toString()); }();
    return run;
}

void TestBandwidthWidget::fastestServerWins()
{
    Listener slow;
    Listener fast;
    QVERIFY(slow.listen(address(1), 0));
    QVERIFY(fast.listen(address(2)));
    QVERIFY(slow.fill());
    // Room in the queue again well before the second SYN is sent (about one second in).
    QTimer::singleShot(300, this, [&slow] { slow.acceptOne(); });

    const Run run = measure({server(QStringLiteral("Slow"), 1), server(QStringLiteral("Fast"), 2)});
    QCOMPARE(run.changes.size(), 2);
    QVERIFY(run.changes.at(0).at(0).toString().startsWith(QLatin1String("Slow ")));
    QVERIFY(run.changes.at(0).at(0).toString().endsWith(QLatin1String(" ms")));
    QVERIFY2(measuredMs(run.changes.at(0).at(0).toString()) >= 500, qPrintable(run.changes.at(0).at(0).toString()));
    QCOMPARE(run.changes.at(0).at(1).toInt(), 50);
    QVERIFY(run.changes.at(1).at(0).toString().startsWith(QLatin1String("Fast ")));
    QCOMPARE(run.changes.at(1).at(1).toInt(), 100);
    QCOMPARE(run.best, QStringList({"Fast"}));
}

void TestBandwidthWidget::tieKeepsEarlierServer()
{
    Listener first;
    Listener second;
    QVERIFY(first.listen(address(3)));
    QVERIFY(second.listen(address(4)));
    // Loopback connections take well under a millisecond, so the two times
    // nearly always tie; when they do not, the faster one must win.
    bool tied = false;
    for (int attempt = 0; attempt < 5 && !tied; ++attempt) {
        const Run run = measure({server(QStringLiteral("First"), 3), server(QStringLiteral("Second"), 4)});
        QCOMPARE(run.changes.size(), 2);
        const int firstMs = measuredMs(run.changes.at(0).at(0).toString());
        const int secondMs = measuredMs(run.changes.at(1).at(0).toString());
        tied = firstMs == secondMs;
        QCOMPARE(run.best, QStringList({secondMs < firstMs ? "Second" : "First"}));
    }
    QVERIFY(tied);
}

void TestBandwidthWidget::refusedServerCountsForProgress()
{
    Listener open;
    QVERIFY(open.listen(address(6)));
    const Run run = measure({server(QStringLiteral("Closed"), 5), server(QStringLiteral("A"), 6),
                             server(QStringLiteral("Closed again"), 7), server(QStringLiteral("B"), 6)});
    QCOMPARE(run.changes.size(), 2);
    QVERIFY(run.changes.at(0).at(0).toString().startsWith(QLatin1String("A ")));
    QCOMPARE(run.changes.at(0).at(1).toInt(), 50);
    QVERIFY(run.changes.at(1).at(0).toString().startsWith(QLatin1String("B ")));
    QCOMPARE(run.changes.at(1).at(1).toInt(), 100);
    QCOMPARE(run.best.size(), 1);
}

void TestBandwidthWidget::otherPortIsTestedOn1935()
{
    Listener listener;
    QVERIFY(listener.listen(address(8)));
    const Run run = measure({server(QStringLiteral("Port 80"), 8, QStringLiteral("80"))});
    QCOMPARE(run.changes.size(), 1);
    QCOMPARE(run.changes.first().at(1).toInt(), 100);
    QCOMPARE(run.best, QStringList({"Port 80"}));
}

void TestBandwidthWidget::allUnreachableNamesNoServer()
{
    const Run run = measure({server(QStringLiteral("One"), 9), server(QStringLiteral("Two"), 10),
                             {QStringLiteral("Broken"), QStringLiteral("not a url")}});
    QVERIFY(run.changes.isEmpty());
    QVERIFY(run.best.isEmpty());
}

void TestBandwidthWidget::serverThatNeverAcceptsHitsTheLimit()
{
    Listener stuck;
    Listener fast;
    QVERIFY(stuck.listen(address(11), 0));
    QVERIFY(fast.listen(address(12)));
    QVERIFY(stuck.fill());

    const Run run = measure({server(QStringLiteral("Stuck"), 11), server(QStringLiteral("Fast"), 12)});
    QVERIFY2(run.elapsed >= BandwidthProbe::connectTimeout - 100, qPrintable(QString::number(run.elapsed)));
    QCOMPARE(run.changes.size(), 1);
    QVERIFY(run.changes.first().at(0).toString().startsWith(QLatin1String("Fast ")));
    QCOMPARE(run.changes.first().at(1).toInt(), 100);
    QCOMPARE(run.best, QStringList({"Fast"}));
}

void TestBandwidthWidget::stopEndsBetweenServers()
{
    Listener stuck;
    Listener fast;
    QVERIFY(stuck.listen(address(13), 0));
    QVERIFY(fast.listen(address(14)));
    QVERIFY(stuck.fill());

    SimpleProvider provider(&m_view, 3601, QStringLiteral("Test"), QUrl(), QString(),
                            {server(QStringLiteral("Stuck"), 13), server(QStringLiteral("Fast"), 14)});
    BandwidthWidget widget;
    QSignalSpy changes(&widget, &BandwidthWidget::bandwidthChanged);
    QSignalSpy best(&widget, &BandwidthWidget::bestServerChanged);
    widget.start(&provider);
    QVERIFY(widget.isRunning());
    // The GUI thread is never held up by the measurement.
    QElapsedTimer timer;
    timer.start();
    widget.stop();
    QVERIFY(timer.elapsed() < 500);
    QVERIFY(widget.isStopped());
    QTRY_VERIFY_WITH_TIMEOUT(!widget.isRunning(), 5000);
    QTest::qWait(50);
    QVERIFY(changes.isEmpty());
    QVERIFY(best.isEmpty());
}

void TestBandwidthWidget::widgetDestroyedWhileMeasuring()
{
    Listener stuck;
    Listener fast;
    QVERIFY(stuck.listen(address(15), 0));
    QVERIFY(fast.listen(address(16)));
    QVERIFY(stuck.fill());

    auto provider = std::make_unique<SimpleProvider>(
        &m_view, 3601, QStringLiteral("Test"), QUrl(), QString(),
        QList<LabelPair>{server(QStringLiteral("Fast"), 16), server(QStringLiteral("Stuck"), 15),
                         server(QStringLiteral("Fast again"), 16)});
    auto widget = std::make_unique<BandwidthWidget>();
    QSignalSpy best(widget.get(), &BandwidthWidget::bestServerChanged);
    widget->start(provider.get());
    // The first result is queued for the widget but not yet delivered when it goes.
    QThread::msleep(200);
    widget.reset();
    provider.reset();
    QVERIFY(QThreadPool::globalInstance()->waitForDone(10000));
    QTest::qWait(50);
    QVERIFY(best.isEmpty());
}

QTEST_MAIN(TestBandwidthWidget)
#include "tst_bandwidthwidget.moc"
