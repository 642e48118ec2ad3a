#pragma once

#include <QMetaType>
#include <QString>

// One encoder output as the console shows it: what it is, how it runs and, after a
// failure, why. A snapshot, copied out of the engine.
struct EngineOutput {
    enum class Kind { Streaming, Recording, StreamSave };
    enum class State {
        Starting, // process launched, no packet written yet
        Running,
        Retrying, // failed; waits for the next attempt
        Failed,   // gave up; a recording keeps its file so far
        Stopped,
    };

    QString key;    // the preset's id, or its name without one; "#save" for a stream's file
    QString name;   // the preset's name
    Kind kind = Kind::Recording;
    QString target; // file path, or the URL with its secrets masked
    State state = State::Starting;
    qint64 elapsedMs = 0;
    double fps = 0.0;
    double bitRateKbps = 0.0;
    qint64 droppedFrames = 0;
    QString reason;    // the encoder's last error line, secrets masked
    int attempt = 0;   // failed attempts in a row
    int maxAttempts = 0;
    qint64 retryInMs = 0;
};

Q_DECLARE_METATYPE(EngineOutput)
