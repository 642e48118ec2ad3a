#pragma once

#include "engine/ffmpegbackend.h"
#include "engine/quillonengine.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTest>

// The engine's outputs as the console sees them, for tests that run real encoders.
namespace EngineOutputs {

inline EngineOutput status(const QString& key)
{
    for (const EngineOutput& o : QuillonEngine::outputs())
        if (o.key == key)
            return o;
    return {};
}

inline bool waitFor(const QString& key, EngineOutput::State state, int ms = 15000)
{
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < ms && status(key).state != state)
        QTest::qWait(50);
    return status(key).state == state;
}

// True once no encoder process of the backend is left (at most ten seconds).
inline bool reaped(const FfmpegBackend& backend)
{
    QElapsedTimer clock;
    clock.start();
    while (!backend.processIds().isEmpty() && clock.elapsed() < 10000)
        QTest::qWait(50);
    return backend.processIds().isEmpty();
}

// Children of this process that ended and were never waited for.
inline int zombieChildren()
{
    int zombies = 0;
    for (const QString& pid : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
        QFile stat(QStringLiteral("/proc/%1/stat").arg(pid));
        const QList<QByteArray> fields = stat.open(QIODevice::ReadOnly) ? stat.readAll().split(')').value(1).split(' ')
                                                                         : QList<QByteArray>();
        zombies += fields.size() > 2 && fields.at(1) == "Z" && fields.at(2).toLongLong() == QCoreApplication::applicationPid();
    }
    return zombies;
}

} // namespace EngineOutputs
