#pragma once

#include "capture/camerasources.h"
#include "records/codecpreset.h"

#include <QList>
#include <QObject>
#include <QPair>
#include <QString>

class ActivityLog;
class Media;

// The console's ISO recording: one file per chosen camera with the shared codec of the ISO
// dialog, each named by its template with that camera's name, all stopped together.
class IsoRecorder : public QObject
{
    Q_OBJECT

public:
    // The cameras' descriptions name the project's format.
    IsoRecorder(ActivityLog* log, const ProjectPreset& project, QObject* parent = nullptr);
    ~IsoRecorder() override;

    // The cameras the ISO dialog offers; the media stay this object's.
    QList<QPair<QString, Media*>> cameras() const { return m_cameras.sources(); }
    // Starts a recording per source; the number that started. Nothing starts while one runs.
    int start(const CodecPreset& codec, const QList<QPair<QString, Media*>>& sources);
    void stop();
    bool isRunning() const { return !m_running.isEmpty(); }
    QList<CodecPreset> running() const { return m_running; }

signals:
    void runningChanged(bool running);

private:
    ActivityLog* m_log;
    CameraSources m_cameras;
    QList<CodecPreset> m_running;
};
