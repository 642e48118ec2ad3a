#pragma once

#include "engine/engineoutput.h"
#include "host_export.h"
#include "records/codecpreset.h"
#include "records/projectpreset.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>

class EngineBackend;

// The switcher's encoder engine. It keeps the project settings it is given and records
// every encoding request; a host that installs a backend (setBackend) gets real encoders,
// otherwise the engine is a stand-in that accepts every request.
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
    // Starts or stops one encoder. The stand-in accepts every request; a backend may refuse
    // a start, and says why through engineMessage.
    static bool encoding(CodecPreset* preset, bool on);

    static QList<EncodingCall> encodingCalls();
    static void clearEncodingCalls();
    // Presets whose encoder runs now, by preset id (or name when it has none).
    static QList<CodecPreset> runningEncoders();

    // Not owned; null returns to the stand-in. The backend must outlive its installation.
    static void setBackend(EngineBackend* backend);
    static EngineBackend* backend();
    // The outputs the backend runs, with their progress; the stand-in's running encoders otherwise.
    static QList<EngineOutput> outputs();
    // Writes one still of a source (0 programme, 1 clean programme, 2 preview, 3 clean preview)
    // to path; grabFinished follows. False when the grab cannot start (engineMessage says why).
    static bool grab(int source, const QString& path);
    // Ends every output cleanly (the host calls it before it quits).
    static void stopAll();

signals:
    void encodingRequested(const CodecPreset& preset, bool on);
    void outputsChanged();
    void engineMessage(const QString& text, bool warning);
    void grabFinished(const QString& path, const QString& error);

private:
    QuillonEngine() = default;
    bool standInGrab(int source, const QString& path);

    ProjectPreset m_projectPreset;
    QStringList m_audioDevices{QStringLiteral("Default Output"), QStringLiteral("Headphones"),
                               QStringLiteral("Monitor Speakers")};
    QList<EncodingCall> m_calls;
    QList<CodecPreset> m_running;
    QPointer<EngineBackend> m_backend;
};
