#pragma once

#include "engine/engineoutput.h"
#include "host_export.h"
#include "records/codecpreset.h"
#include "records/projectpreset.h"

#include <QList>
#include <QObject>

// A real encoder behind QuillonEngine. A host installs one with QuillonEngine::setBackend;
// without it the engine only records what it was asked.
class HOST_EXPORT EngineBackend : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;
    ~EngineBackend() override;

    // Starts the outputs of one preset (its frame rate already resolved). False with a
    // sentence for the operator when the preset cannot run; nothing is started then.
    virtual bool start(const QString& key, const CodecPreset& preset, const ProjectPreset& project,
                       QString* refusal) = 0;
    // Ends the outputs of that key cleanly; returns at once, the files close shortly after.
    virtual void stop(const QString& key) = 0;
    // Ends every output and waits until each has closed its files.
    virtual void stopAll() = 0;
    virtual QList<EngineOutput> outputs() const = 0;
    // Writes one still of a source (0 programme, 1 clean programme, 2 preview, 3 clean
    // preview) to path, in the format of its extension; grabFinished follows.
    virtual bool grab(int source, const QString& path, const ProjectPreset& project, QString* refusal) = 0;

signals:
    void outputsChanged();
    void message(const QString& text, bool warning);
    void grabFinished(const QString& path, const QString& error);
};
