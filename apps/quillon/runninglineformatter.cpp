#include "quillon/runninglineformatter.h"

QString RunningLineFormatter::elapsed(qint64 ms)
{
    const qint64 s = ms / 1000;
    return QStringLiteral("%1:%2:%3")
        .arg(s / 3600, 2, 10, QLatin1Char('0'))
        .arg(s / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(s % 60, 2, 10, QLatin1Char('0'));
}

QString RunningLineFormatter::line(const EngineOutput& o)
{
    QString what;
    switch (o.kind) {
    case EngineOutput::Kind::Streaming:
        what = tr("Stream");
        break;
    case EngineOutput::Kind::StreamSave:
        what = tr("Stream file");
        break;
    case EngineOutput::Kind::Recording:
        what = tr("Recording");
        break;
    }
    const QString name = o.name.isEmpty() ? tr("Unnamed") : o.name;
    const QString head = tr("%1 \"%2\"  %3").arg(what, name, elapsed(o.elapsedMs));
    switch (o.state) {
    case EngineOutput::State::Starting:
        return tr("%1  starting  %2").arg(head, o.target);
    case EngineOutput::State::Running:
        return tr("%1  running  %2 fps  %3 kbps  %4 dropped  %5")
            .arg(head)
            .arg(o.fps, 0, 'f', 1)
            .arg(qRound(o.bitRateKbps))
            .arg(o.droppedFrames)
            .arg(o.target);
    case EngineOutput::State::Retrying:
        if (o.retryInMs <= 0)
            return tr("%1  failed, trying again (%2 of %3): %4").arg(head).arg(o.attempt).arg(o.maxAttempts).arg(o.reason);
        return tr("%1  failed, try %2 of %3 in %4 s: %5")
            .arg(head)
            .arg(o.attempt)
            .arg(o.maxAttempts)
            .arg((o.retryInMs + 999) / 1000)
            .arg(o.reason);
    case EngineOutput::State::Failed:
        return tr("%1  failed: %2").arg(head, o.reason);
    case EngineOutput::State::Stopped:
        break;
    }
    return tr("%1  stopped").arg(head);
}
