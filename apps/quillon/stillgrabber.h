#pragma once

#include <QHash>
#include <QObject>
#include <QString>

#include <memory>

class ActivityLog;
class ImageSetup;
class OutputInterface;

// The console's grab button: a still of each grab preset (programme, clean programme or
// preview) into its folder, in its format, under the next free name; the log names the file.
class StillGrabber : public QObject
{
    Q_OBJECT

public:
    StillGrabber(OutputInterface* setup, ActivityLog* log, QObject* parent = nullptr);
    ~StillGrabber() override;

    // The number of grabs that started; each reports in the log when its file is written.
    int grab();

signals:
    // After the engine wrote (or failed to write) one of this grabber's stills.
    void grabbed(const QString& path, const QString& error);

private:
    void finished(const QString& path, const QString& error);

    OutputInterface* m_setup;
    ActivityLog* m_log;
    std::unique_ptr<ImageSetup> m_presets; // never shown: it reads "GRAB" as the dialog does
    QHash<QString, QString> m_pending;     // path to preset name
};
