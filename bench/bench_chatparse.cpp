// Reading 100,000 Twitch-shaped PRIVMSG lines (about 600 bytes each, seeded) through the
// chat's own path: the bytes cut into lines as socket reads bring them, each line split and
// read into a message (text, colour, badges, emote ranges). No network, no pictures. Beside
// it the same lines through libcommuni's IrcMessage::fromData, already cut into lines.
#include "chat/ircline.h"
#include "chat/irclinereader.h"
#include "chat/twitchmessage.h"
#include "chatcorpus.h"

#include <IrcCore/IrcMessage>
#include <QCoreApplication>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>

namespace {

constexpr int lineCount = 100000;
constexpr int readSize = 16 * 1024; // what one socket read may bring

struct Corpus {
    QList<QByteArray> lines;
    QByteArray stream; // the lines with CR LF, as the server sends them
    Corpus()
    {
        ChatCorpus::Generator generator;
        for (int i = 0; i < lineCount; ++i) {
            lines.append(generator.line());
            stream += lines.last() + "\r\n";
        }
    }
};

const Corpus& corpus()
{
    static const Corpus c;
    return c;
}

void BM_ChatReadsLines(benchmark::State& state)
{
    const QByteArray& stream = corpus().stream;
    for (auto _ : state) {
        IrcLineReader reader;
        TwitchMessage message;
        qint64 messages = 0;
        qint64 emotes = 0;
        for (int at = 0; at < stream.size(); at += readSize) {
            const int size = qMin(readSize, stream.size() - at);
            reader.feed(stream.constData() + at, static_cast<std::size_t>(size), [&](std::string_view line) {
                if (TwitchMessage::parse(IrcLine::split(line), &message)) {
                    ++messages;
                    emotes += message.emotes.size();
                    benchmark::DoNotOptimize(message.text.constData());
                }
            });
        }
        if (messages != lineCount)
            state.SkipWithError("not every line was read as a message");
        benchmark::DoNotOptimize(emotes);
    }
    state.SetItemsProcessed(state.iterations() * lineCount);
    state.SetBytesProcessed(state.iterations() * stream.size());
}
BENCHMARK(BM_ChatReadsLines)->Unit(benchmark::kMillisecond)->MinTime(2);

void BM_CommuniFromData(benchmark::State& state)
{
    const QList<QByteArray>& lines = corpus().lines;
    for (auto _ : state) {
        qint64 messages = 0;
        for (const QByteArray& line : lines) {
            IrcMessage* message = IrcMessage::fromData(line, nullptr);
            messages += message->type() == IrcMessage::Private;
            delete message;
        }
        if (messages != lineCount)
            state.SkipWithError("libcommuni read a line as no message");
    }
    state.SetItemsProcessed(state.iterations() * lineCount);
}
BENCHMARK(BM_CommuniFromData)->Unit(benchmark::kMillisecond)->MinTime(2);

// For reference: libcommuni decodes lazily, so reading what the chat reads costs it more.
void BM_CommuniFromDataAndFields(benchmark::State& state)
{
    const QList<QByteArray>& lines = corpus().lines;
    for (auto _ : state) {
        qint64 sizes = 0;
        for (const QByteArray& line : lines) {
            auto* message = static_cast<IrcPrivateMessage*>(IrcMessage::fromData(line, nullptr));
            const QVariantMap tags = message->tags();
            sizes += message->content().size() + message->nick().size() + message->target().size()
                     + tags.value(QStringLiteral("color")).toString().size()
                     + tags.value(QStringLiteral("display-name")).toString().size()
                     + tags.value(QStringLiteral("badges")).toString().size()
                     + tags.value(QStringLiteral("emotes")).toString().size();
            delete message;
        }
        benchmark::DoNotOptimize(sizes);
    }
    state.SetItemsProcessed(state.iterations() * lineCount);
}
BENCHMARK(BM_CommuniFromDataAndFields)->Unit(benchmark::kMillisecond)->MinTime(2);

// The console's lines plus a closing line with the ratio of the chat's time to libcommuni's.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs)
            if (run.run_type == Run::RT_Iteration && run.iterations > 0)
            {
                m_perLine[run.benchmark_name()] = run.GetAdjustedRealTime() / lineCount; // ms a line
                m_perLine["cpu " + run.benchmark_name()] = run.GetAdjustedCPUTime() / lineCount;
            }
        ConsoleReporter::ReportRuns(runs);
    }
    void Finalize() override
    {
        ConsoleReporter::Finalize();
        const double chat = perLine("BM_ChatReadsLines/");
        const double communi = perLine("BM_CommuniFromData/");
        if (chat > 0 && communi > 0)
            std::printf("chat: %.0f lines/s, libcommuni fromData: %.0f lines/s, time ratio chat/libcommuni: 1/%.1f\n",
                        1000.0 / chat, 1000.0 / communi, communi / chat);
        const double chatCpu = perLine("cpu BM_ChatReadsLines/");
        const double communiCpu = perLine("cpu BM_CommuniFromData/");
        if (chatCpu > 0 && communiCpu > 0)
            std::printf("CPU time ratio chat/libcommuni: 1/%.1f\n", communiCpu / chatCpu);
    }

private:
    double perLine(const std::string& prefix) const
    {
        for (const auto& [name, time] : m_perLine)
            if (name.rfind(prefix, 0) == 0)
                return time;
        return 0;
    }

    std::map<std::string, double> m_perLine;
};

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    corpus();
    std::printf("corpus: %d lines, %.0f bytes a line\n", lineCount, double(corpus().stream.size()) / lineCount - 2);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}
