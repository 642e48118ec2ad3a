// ctest: serial
#include "provider/simpleprovider.h"
#include "setup/bandwidthprobe.h"
#include "setup/bandwidthwidget.h"
#include "support/fakeview.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QThreadPool>
#include <QtTest>

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

// A raw listener on 127.19.35.<n>:1935 (well inside 127.0.0.0/8, away from what other
// programs bind), so the test controls the backlog and when connections are accepted.
class Listener
{
public:
    // stuck: the accept queue is filled, so later connection attempts wait for a
    // retransmitted SYN (a second or more).
    Listener(int n, bool stuck)
    {
        m_address.sin_family = AF_INET;
        m_address.sin_port = htons(BandwidthProbe::port);
        ::inet_pton(AF_INET, QStringLiteral("127.19.35.%1").arg(n).toLatin1().constData(), &m_address.sin_addr);
        m_fd = ::socket(AF_INET, SOCK_STREAM, 0);
        const int yes = 1;
        ::setsockopt(m_fd, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
        m_ok = ::bind(m_fd, reinterpret_cast<const sockaddr*>(&m_address), sizeof m_address) == 0
               && ::listen(m_fd, stuck ? 0 : 16) == 0 && (!stuck || fill());
    }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;
    ~Listener()
    {
        for (int fd : m_clients)
            ::close(fd);
        ::close(m_fd);
    }
    bool ok() const { return m_ok; }
    void acceptOne()
    {
        const int fd = ::accept(m_fd, nullptr, nullptr);
        if (fd >= 0)
            m_clients.append(fd);
    }

private:
    bool fill()
    {
        for (int attempt = 0; attempt < 64; ++attempt) {
            const int fd = ::socket(AF_INET, SOCK_STREAM, 0);
            ::fcntl(fd, F_SETFL, O_NONBLOCK);
            ::connect(fd, reinterpret_cast<const sockaddr*>(&m_address), sizeof m_address);
            pollfd wait{fd, POLLOUT, 0};
            if (::poll(&wait, 1, 250) != 1) {
                ::close(fd); // still in SYN_SENT: the queue is full
                return true;
            }
            m_clients.append(fd);
        }
        return false;
    }

    int m_fd = -1;
    bool m_ok = false;
    sockaddr_in m_address{};
    QList<int> m_clients;
};

LabelPair server(const QString& label, int n, const QString& port = QString())
{
    return {label, QStringLiteral("rtmp://127.19.35.%1%2/app").arg(n).arg(port.isEmpty() ? QString() : ":" + port)};
}

// The time in a result "<label> <time> ms <progress>".
int measuredMs(const QString& result)
{
    return result.section(' ', -3, -3).toInt();
}

} // namespace

class TestBandwidthWidget : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QVERIFY(QThreadPool::globalInstance()->waitForDone(10000)); }

    void measure_data()
    {
        QTest::addColumn<QList<LabelPair>>("servers");
        QTest::addColumn<QList<int>>("open");
        QTest::addColumn<int>("slow");  // accepts its first connection after 300 ms, 0: none
        QTest::addColumn<int>("stuck"); // never accepts, 0: none
        QTest::addColumn<QStringList>("results"); // label and progress of each result
        QTest::addColumn<QStringList>("best");

        QTest::newRow("fastest wins") << QList<LabelPair>{server("Slow", 1), server("Fast", 2)} << QList<int>{2} << 1 << 0
                                      << QStringList{"Slow ms 50", "Fast ms 100"} << QStringList{"Fast"};
        // Ports in the URL are ignored, and a bare host is a host too.
        QTest::newRow("refused counts for progress but emits nothing")
            << QList<LabelPair>{server("Closed", 5), server("Port 80", 6, "80"), server("Closed again", 7)} << QList<int>{6}
            << 0 << 0 << QStringList{"Port 80 ms 67"} << QStringList{"Port 80"};
        QTest::newRow("all unreachable names no server")
            << QList<LabelPair>{server("One", 9), server("Two", 10), {"Broken", "not a url"}} << QList<int>{} << 0 << 0
            << QStringList{} << QStringList{};
        QTest::newRow("never accepting hits the limit") << QList<LabelPair>{server("Stuck", 11), {"Bare", "127.19.35.12"}}
                                                        << QList<int>{12} << 0 << 11 << QStringList{"Bare ms 100"}
                                                        << QStringList{"Bare"};
    }
    void measure()
    {
        QFETCH(QList<LabelPair>, servers);
        QFETCH(QList<int>, open);
        QFETCH(int, slow);
        QFETCH(int, stuck);
        QFETCH(QStringList, results);
        QFETCH(QStringList, best);

        std::vector<std::unique_ptr<Listener>> listeners;
        for (int n : open + QList<int>{slow, stuck})
            if (n)
                listeners.push_back(std::make_unique<Listener>(n, n == slow || n == stuck));
        for (const auto& listener : listeners)
            QVERIFY(listener->ok());
        // Room in the queue again well before the second SYN is sent (about one second in).
        if (slow)
            QTimer::singleShot(300, this, [&] { listeners.at(open.size())->acceptOne(); });

        const Run run = this->run(servers);
        QStringList labels = run.results;
        for (QString& result : labels) // "<label> <time> ms <progress>" without the time
            result = result.section(' ', 0, -4) + ' ' + result.section(' ', -2);
        QCOMPARE(labels, results);
        QCOMPARE(run.best, best);
        if (slow)
            QVERIFY2(measuredMs(run.results.first()) >= 500, qPrintable(run.results.first()));
        if (stuck)
            QVERIFY2(run.elapsed >= BandwidthProbe::connectTimeout - 100, qPrintable(QString::number(run.elapsed)));
    }
    void tieKeepsEarlierServer()
    {
        Listener first(3, false);
        Listener second(4, false);
        QVERIFY(first.ok() && second.ok());
        // Loopback connections take well under a millisecond, so the two times
        // nearly always tie; when they do not, the faster one must win.
        bool tied = false;
        for (int attempt = 0; attempt < 5 && !tied; ++attempt) {
            const Run run = this->run({server("First", 3), server("Second", 4)});
            QCOMPARE(run.results.size(), 2);
            const int firstMs = measuredMs(run.results.at(0));
            const int secondMs = measuredMs(run.results.at(1));
            tied = firstMs == secondMs;
            QCOMPARE(run.best, QStringList({secondMs < firstMs ? "Second" : "First"}));
        }
        QVERIFY(tied);
    }
    void endsEarlyWithoutResults_data()
    {
        QTest::addColumn<bool>("destroy");
        QTest::newRow("stop()") << false;
        QTest::newRow("widget destroyed") << true;
    }
    void endsEarlyWithoutResults()
    {
        QFETCH(bool, destroy);
        const int n = destroy ? 15 : 13;
        Listener stuck(n, true);
        Listener fast(n + 1, false);
        QVERIFY(stuck.ok() && fast.ok());
        // Stopped before anything is measured, or destroyed with a first result queued but not delivered.
        const QList<LabelPair> servers = destroy ? QList<LabelPair>{server("Fast", n + 1), server("Stuck", n),
                                                                    server("Fast again", n + 1)}
                                                 : QList<LabelPair>{server("Stuck", n), server("Fast", n + 1)};
        auto provider = std::make_unique<SimpleProvider>(&m_view, 3601, "Test", QUrl(), QString(), servers);
        auto widget = std::make_unique<BandwidthWidget>();
        QSignalSpy changes(widget.get(), &BandwidthWidget::bandwidthChanged);
        QSignalSpy best(widget.get(), &BandwidthWidget::bestServerChanged);
        widget->start(provider.get());
        QVERIFY(widget->isRunning());
        if (destroy) {
            QThread::msleep(200);
            widget.reset();
            provider.reset();
            QVERIFY(QThreadPool::globalInstance()->waitForDone(10000));
        } else {
            QElapsedTimer timer;
            timer.start();
            widget->stop(); // the GUI thread is never held up by the measurement
            QVERIFY(timer.elapsed() < 500 && widget->isStopped());
            QTRY_VERIFY_WITH_TIMEOUT(!widget->isRunning(), 5000);
        }
        QTest::qWait(50);
        QVERIFY(changes.isEmpty());
        QVERIFY(best.isEmpty());
    }

private:
    struct Run {
        QStringList results; // each bandwidthChanged: its text, a space, the progress
        QStringList best;
        qint64 elapsed = 0;
    };
    Run run(const QList<LabelPair>& servers)
    {
        SimpleProvider provider(&m_view, 3601, "Test", QUrl(), QString(), servers);
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
        for (const QList<QVariant>& arguments : changes)
            run.results << arguments.at(0).toString() + ' ' + arguments.at(1).toString();
        for (const QList<QVariant>& arguments : best)
            run.best << arguments.at(0).toString();
        if (!changes.isEmpty()) // what the widget shows is the last result
            [&] { QTRY_COMPARE(widget.message(), changes.last().at(0).toString()); }();
        return run;
    }

    FakeView m_view;
};

QTEST_MAIN(TestBandwidthWidget)
#include "tst_bandwidthwidget.moc"
