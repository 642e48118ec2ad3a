#pragma once

#include "host_export.h"
#include "records/codecpreset.h"
#include "records/projectpreset.h"

#include <QList>
#include <QObject>
#include <QStringList>

// The switcher's encoder engine. This stand-in keeps the project settings it is
// given and records every encoding request, so the host can show what was started.
class HOST_EXPORT QuillonEngine : public QObject
{
    Q_OBJECT
public:
    struct EncodingCall {
        CodecPreset preset; // as the engine received it
        bool on = false;
    };

    static QuillonEngine& instance();

    static ProjectPreset projectPreset();
    static void setProjectPreset(const ProjectPreset& preset);
    static QStringList audioDevices();
    static void setAudioDevices(const QStringList& devices);
    // Starts or stops one encoder; the stand-in accepts every request.
    static bool encoding(CodecPreset* preset, bool on);

    static QList<EncodingCall> encodingCalls();
    static void clearEncodingCalls();
    // Presets whose encoder runs now, by preset id (or name when it has none).
    static QList<CodecPreset> runningEncoders();

signals:
    void encodingRequested(const CodecPreset& preset, bool on);

private:
    QuillonEngine() = default;

    ProjectPreset m_projectPreset;
    QStringList m_audioDevices{QStringLiteral("Default Output"), QStringLiteral("Headphones"),
                               QStringLiteral("Monitor Speakers")};
    QList<EncodingCall> m_calls;
    QList<CodecPreset> m_running;
};
