#pragma once

#include "quillon/datadirectory.h"
#include "records/codecpreset.h"
#include "records/licensemodel.h"
#include "records/projectpreset.h"

#include <QObject>
#include <QString>

#include <memory>

class ActivityLog;
class CodecManager;
class FileOutputInterface;
class PlayoutHost;
class IsoRecorder;
class StillGrabber;
class StreamingManager;

// Everything the host keeps for one data location, made before any dialog: the licence
// and project files, both stores (the process instances while the session lives), and
// the setup object every dialog reads and writes.
class HostSession : public QObject
{
    Q_OBJECT

public:
    static const QString setupFileName;
    static const QString licenseFileName;
    static const QString projectFileName;
    static const QString seedMarkerFileName;

    HostSession(const QString& dataDirectory, ActivityLog* log, QObject* parent = nullptr);
    ~HostSession() override;

    QString dataDirectory() const { return m_data.path(); }
    ActivityLog* log() const { return m_log; }
    const LicenseModel& license() const { return m_license; }
    const ProjectPreset& project() const { return m_project; }
    CodecManager& codecManager() { return *m_codecManager; }
    StreamingManager& streamingManager() { return *m_streamingManager; }
    FileOutputInterface& setup() { return *m_setup; }
    // Starts and stops the playout and external outputs the dialogs ask for.
    PlayoutHost& playout() { return *m_playout; }
    // The ISO recording of the cameras and the grab of stills, as the console runs them.
    IsoRecorder& isoRecorder() { return *m_isoRecorder; }
    StillGrabber& stillGrabber() { return *m_stillGrabber; }

    // The recording preset the file naming dialog edits: the stored codec preset first by label,
    // named "Program", written as mp4 with the recording default tag.
    CodecPreset namingSample() const { return m_namingSample; }
    // A short line for the status bar when the setup file could not be used; empty otherwise.
    QString setupNotice() const { return m_setupNotice; }
    void setNamingSample(const CodecPreset& preset) { m_namingSample = preset; }

private:
    void loadLicenseAndProject();
    void logDevices() const;
    void openStores();
    void openSetup();
    CodecPreset makeNamingSample() const;

    DataDirectory m_data;
    ActivityLog* m_log;
    std::unique_ptr<PlayoutHost> m_playout;
    LicenseModel m_license;
    ProjectPreset m_project;
    std::unique_ptr<CodecManager> m_codecManager;
    std::unique_ptr<StreamingManager> m_streamingManager;
    std::unique_ptr<FileOutputInterface> m_setup;
    std::unique_ptr<IsoRecorder> m_isoRecorder;
    std::unique_ptr<StillGrabber> m_stillGrabber;
    CodecPreset m_namingSample;
    QString m_setupNotice;
};
