// A busy chat in the console: 5,000 Twitch-shaped lines a second for 10 s, three times,
// from an IRC server on a loopback socket (its own thread) into the console's chat panel,
// with the emote and badge pictures served on loopback too. Reported: the longest the
// event loop went without running (a 1 ms timer's longest gap), the lines the view shows,
// and the process's resident memory with the view empty and after each burst.
#include "chat/chatprovider.h"
#include "chatcorpus.h"
#include "provider/savedaccount.h"
#include "provider/twitch.h"
#include "quillon/activitylog.h"
#include "quillon/chatmessageview.h"
#include "quillon/chatpanel.h"
#include "quillon/hostsession.h"
#include "quillon/mainwindow.h"
#include "stores/streamingmanager.h"
#include "support/httpserver.h"

#include <QApplication>
#include <QBuffer>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QImage>
#include <QPushButton>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <atomic>
#include <memory>

namespace {

constexpr int linesPerSecond = 5000;
constexpr int burstSeconds = 10;

double residentMegabytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').value(0).toDouble() / 1024.0;
    return 0;
}

// The IRC side, on its own thread: takes one client and, when asked, sends lines on a
// schedule of linesPerSecond for burstSeconds.
class BurstServer : public QObject
{
    Q_OBJECT
public:
    std::atomic<int> sent{0};
    std::atomic<bool> done{false};
    std::atomic<quint16> port{0};

public slots:
    void listen()
    {
        m_server = new QTcpServer(this);
        connect(m_server, &QTcpServer::newConnection, this, [this] {
            m_client = m_server->nextPendingConnection();
            connect(m_client, &QTcpSocket::readyRead, m_client, [this] { m_client->readAll(); });
        });
        m_server->listen(QHostAddress::LocalHost, 0);
        ChatCorpus::Generator generator;
        for (int i = 0; i < linesPerSecond * burstSeconds; ++i)
            m_lines.append(generator.line("kai") + "\r\n");
        port = m_server->serverPort();
    }
    void burst()
    {
        done = false;
        m_clock.start();
        m_next = 0;
        auto* timer = new QTimer(this);
        timer->setTimerType(Qt::PreciseTimer);
        connect(timer, &QTimer::timeout, this, [this, timer] {
            const qint64 due = qMin<qint64>(m_lines.size(), m_clock.elapsed() * linesPerSecond / 1000);
            QByteArray bytes;
            for (; m_next < due; ++m_next)
                bytes += m_lines.at(m_next);
            if (m_client && !bytes.isEmpty())
                m_client->write(bytes);
            sent += static_cast<int>(bytes.count('\n'));
            if (m_next >= m_lines.size()) {
                timer->deleteLater();
                done = true;
            }
        });
        timer->start(5);
    }

private:
    QTcpServer* m_server = nullptr;
    QTcpSocket* m_client = nullptr;
    QList<QByteArray> m_lines;
    QElapsedTimer m_clock;
    int m_next = 0;
};

QByteArray png(int side)
{
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(QColor(120, 60, 200));
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data();
}

// Runs the event loop until the server has sent its burst and the panel has shown the
// last line; the longest gap between two ticks of a 1 ms timer is the longest stall.
double runBurst(BurstServer& server, ChatPanel& panel)
{
    QMetaObject::invokeMethod(&server, "burst", Qt::QueuedConnection);
    QElapsedTimer clock;
    clock.start();
    qint64 last = 0;
    qint64 longest = 0;
    QTimer ticks;
    ticks.setTimerType(Qt::PreciseTimer);
    QObject::connect(&ticks, &QTimer::timeout, [&] {
        const qint64 now = clock.nsecsElapsed();
        longest = std::max(longest, now - last);
        last = now;
    });
    ticks.start(1);
    QEventLoop loop;
    QTimer check;
    QObject::connect(&check, &QTimer::timeout, [&] {
        if (server.done && panel.messageView()->lineCount() > 0 && clock.elapsed() > burstSeconds * 1000 + 500)
            loop.quit();
    });
    check.start(100);
    last = clock.nsecsElapsed();
    loop.exec();
    return longest / 1e6;
}

void BM_ChatBurstIntoThePanel(benchmark::State& state)
{
    QTemporaryDir data;
    HttpServer pictures;
    for (const QByteArray& id : ChatCorpus::emoteIds())
        pictures.on("GET", QStringLiteral("/emoticons/v1/%1/1.0").arg(QString::fromLatin1(id)),
                    HttpServer::Reply{200, png(28), "image/png", {}, false});
    pictures.on("GET", QStringLiteral("/badge.png"), HttpServer::Reply{200, png(18), "image/png", {}, false});
    pictures.onJson("GET", QStringLiteral("/kraken/chat/44322889/badges"),
                    QStringLiteral(R"({"mod":{"image":"%1/badge.png"},"subscriber":{"image":"%1/badge.png"}})")
                        .arg(pictures.baseUrl())
                        .toUtf8());
    qputenv("QUILLON_TWITCH_API", pictures.baseUrl().toUtf8());
    qputenv("QUILLON_TWITCH_EMOTES", pictures.baseUrl().toUtf8());

    QThread thread;
    BurstServer server;
    server.moveToThread(&thread);
    thread.start();
    QMetaObject::invokeMethod(&server, "listen", Qt::BlockingQueuedConnection);
    qputenv("QUILLON_TWITCH_IRC", "127.0.0.1");
    qputenv("QUILLON_TWITCH_IRCPORT", QByteArray::number(server.port));

    ActivityLog log;
    auto session = std::make_unique<HostSession>(data.path(), &log);
    Twitch account(nullptr);
    account.setAccessToken(QStringLiteral("tok"));
    account.setChannelName(QStringLiteral("kai"));
    session->streamingManager().writeAccount(SavedAccount::toServerInfo(account));
    auto window = std::make_unique<MainWindow>(*session);
    window->resize(1400, 800);
    window->show();
    auto* panel = window->findChild<ChatPanel*>(QStringLiteral("chatPanel"));
    panel->findChild<QPushButton*>(QStringLiteral("chatConnect"))->click();
    QElapsedTimer settle;
    settle.start();
    while (settle.elapsed() < 1000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);

    for (auto _ : state) {
        // The first burst fills the view (and the font, glyph and picture caches); the
        // next ones show whether anything still grows.
        const double empty = residentMegabytes();
        double stall = runBurst(server, *panel);
        const double full = residentMegabytes();
        stall = std::max(stall, runBurst(server, *panel));
        const double second = residentMegabytes();
        stall = std::max(stall, runBurst(server, *panel));
        const double third = residentMegabytes();
        state.counters["lines_sent"] = server.sent.load();
        state.counters["lines_in_view"] = panel->messageView()->lineCount();
        state.counters["longest_stall_ms"] = stall;
        state.counters["rss_MB_empty_view"] = empty;
        state.counters["rss_MB_after_1"] = full;
        state.counters["rss_MB_after_2"] = second;
        state.counters["rss_MB_after_3"] = third;
    }
    window.reset();
    session.reset();
    thread.quit();
    thread.wait();
}
BENCHMARK(BM_ChatBurstIntoThePanel)->Iterations(1)->Unit(benchmark::kSecond);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The debug lines of every message would measure the terminal.
    qputenv("QT_LOGGING_RULES", "*.debug=false;quillon.app.info=false");
    QStandardPaths::setTestModeEnabled(true);
    QApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("libstreaming-bench"));
    QCoreApplication::setApplicationName(QStringLiteral("bench_chatburst"));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

#include "bench_chatburst.moc"
