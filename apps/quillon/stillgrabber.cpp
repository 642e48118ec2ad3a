#include "quillon/stillgrabber.h"

#include "engine/quillonengine.h"
#include "quillon/activitylog.h"
#include "recording/imagesetup.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryFile>

StillGrabber::StillGrabber(OutputInterface* setup, ActivityLog* log, QObject* parent)
    : QObject(parent), m_setup(setup), m_log(log)
{
    connect(&QuillonEngine::instance(), &QuillonEngine::grabFinished, this, &StillGrabber::finished);
}

StillGrabber::~StillGrabber() = default;

int StillGrabber::grab()
{
    if (!m_presets)
        m_presets = std::make_unique<ImageSetup>(nullptr, m_setup);
    m_presets->reloadPresets();
    const QList<Snapshot> presets = m_presets->presets();
    if (presets.isEmpty()) {
        m_log->info(tr("No grab preset: add one in \"Grab…\" first."));
        return 0;
    }
    int started = 0;
    for (Snapshot shot : presets) {
        if (shot.directory.isEmpty())
            shot.directory = QDir(QStandardPaths::writableLocation(QStandardPaths::PicturesLocation))
                                 .filePath(QCoreApplication::applicationName());
        // Written by a probe file, as the engine checks its recording folders.
        QTemporaryFile probe(QDir(shot.directory).filePath(QStringLiteral(".quillon-XXXXXX")));
        if (!QDir().mkpath(shot.directory) || !probe.open()) {
            m_log->warning(tr("The folder %1 cannot be written; choose another location for the grab \"%2\".")
                               .arg(QDir::toNativeSeparators(shot.directory), shot.name));
            continue;
        }
        // The name is taken at once, so a second grab before the engine wrote this one gets the next.
        const QString path = ImageSetup::localPath(shot);
        QFile(path).open(QIODevice::WriteOnly);
        if (!QuillonEngine::grab(shot.source, path)) {
            QFile::remove(path);
            m_log->warning(tr("The grab \"%1\" did not start.").arg(shot.name));
            continue;
        }
        m_pending.insert(path, shot.name);
        ++started;
    }
    return started;
}

void StillGrabber::finished(const QString& path, const QString& error)
{
    if (!m_pending.contains(path))
        return;
    const QString name = m_pending.take(path);
    if (error.isEmpty())
        m_log->info(tr("Grabbed \"%1\": %2").arg(name, QDir::toNativeSeparators(path)));
    else
        m_log->warning(tr("The grab \"%1\" failed: %2").arg(name, error));
    if (!error.isEmpty() && QFileInfo(path).size() == 0)
        QFile::remove(path);
    emit grabbed(path, error);
}
