#include "quillon/hostsession.h"

#include "capture/capturemanager.h"
#include "capture/displaymode.h"
#include "engine/quillonengine.h"
#include "interface/fileoutputinterface.h"
#include "quillon/activitylog.h"
#include "quillon/isorecorder.h"
#include "quillon/playouthost.h"
#include "quillon/presetseeder.h"
#include "quillon/stillgrabber.h"
#include "records/contentssettings.h"
#include "stores/codecmanager.h"
#include "stores/streamingmanager.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

const QString HostSession::setupFileName = QStringLiteral("setup.json");
const QString HostSession::licenseFileName = QStringLiteral("license.json");
const QString HostSession::projectFileName = QStringLiteral("project.json");
const QString HostSession::seedMarkerFileName = QStringLiteral(".presets-seeded");

HostSession::HostSession(const QString& dataDirectory, ActivityLog* log, QObject* parent)
    : QObject(parent), m_data(dataDirectory), m_log(log), m_playout(std::make_unique<PlayoutHost>(log))
{
    m_log->info(tr("Data folder: %1").arg(QDir::toNativeSeparators(m_data.path())));
    QString error;
    if (!m_data.ensureExists(&error))
        m_log->warning(error);
    loadLicenseAndProject();
    openStores();
    openSetup();
    m_namingSample = makeNamingSample();
    m_isoRecorder = std::make_unique<IsoRecorder>(m_log, m_project);
    m_stillGrabber = std::make_unique<StillGrabber>(m_setup.get(), m_log);
}

HostSession::~HostSession() = default;

void HostSession::loadLicenseAndProject()
{
    QString message;
    m_license = LicenseModel::fromJson(m_data.readOrCreate(licenseFileName, LicenseModel().toJson(), &message));
    if (!message.isEmpty())
        m_log->info(message);
    m_log->info(tr("Licence: %1 streams, %2 recordings, %3 ISO recordings, %4 outputs, up to %5x%6.")
                    .arg(m_license.maxStreaming())
                    .arg(m_license.maxRecording())
                    .arg(m_license.maxIsoRecording())
                    .arg(m_license.maxOutput())
                    .arg(m_license.maxWidth())
                    .arg(m_license.maxHeight()));

    m_project = ProjectPreset::fromJson(m_data.readOrCreate(projectFileName, ProjectPreset().toJson(), &message));
    if (!message.isEmpty())
        m_log->info(message);
    QuillonEngine::setProjectPreset(m_project);
    const ProjectPreset::VideoOutput& v = m_project.videoOutput();
    m_log->info(tr("Project: %1x%2 %3, %4 Hz audio.")
                    .arg(v.width)
                    .arg(v.height)
                    .arg(DisplayMode(v.height, v.interlaced, v.frameRate).name())
                    .arg(m_project.audioOutput().sampleRate));
    logDevices();
}

void HostSession::logDevices() const
{
    const CaptureManager& capture = CaptureManager::instance();
    m_log->info(tr("Video outputs: %1 SDI, %2 NDI, %3 display, %4 virtual camera; %5 audio devices.")
                    .arg(capture.outputDevices(VideoDevice::Sdi).size())
                    .arg(capture.outputDevices(VideoDevice::Ndi).size())
                    .arg(capture.outputDevices(VideoDevice::Display).size())
                    .arg(capture.outputDevices(VideoDevice::VirtualCamera).size())
                    .arg(QuillonEngine::audioDevices().size()));
}

void HostSession::openStores()
{
    const ContentsSettings contents = ContentsSettings::underDirectory(m_data.path());
    m_codecManager = std::make_unique<CodecManager>(contents);
    m_streamingManager = std::make_unique<StreamingManager>(contents, m_license);

    QString error;
    const int seeded = PresetSeeder::seedOnce(*m_codecManager, m_data.filePath(seedMarkerFileName), &error);
    if (seeded < 0)
        m_log->warning(error);
    else if (seeded > 0)
        m_log->info(tr("Seeded %n starter codec preset(s).", nullptr, seeded));
    m_log->info(tr("Codec presets: %1, saved servers: %2.")
                    .arg(m_codecManager->codecPresets().size())
                    .arg(m_streamingManager->serverInfos().size()));
}

void HostSession::openSetup()
{
    m_setup = std::make_unique<FileOutputInterface>(m_data.filePath(setupFileName));
    m_setup->setPlayoutHandler([this](OutputInfo* output, bool on) { return m_playout->playout(output, on); });
    const QString aside = m_setup->corruptFileKeptAs();
    if (!aside.isEmpty() && aside != m_setup->fileName()) {
        m_setupNotice = tr("Setup file damaged: kept as %1, defaults in use.").arg(QFileInfo(aside).fileName());
        m_log->warning(tr("The setup file was damaged and has been kept as %1; starting with default settings.")
                           .arg(QDir::toNativeSeparators(aside)));
    } else if (!aside.isEmpty()) {
        m_setupNotice = tr("Setup file damaged: defaults in use, changes are not saved.");
        m_log->warning(tr("The setup file %1 is damaged and could not be kept aside; starting with default "
                          "settings, and changes are not saved.")
                           .arg(QDir::toNativeSeparators(aside)));
    }
}

CodecPreset HostSession::makeNamingSample() const
{
    // The store's order is the directory's; the first label keeps the sample stable.
    CodecPreset sample;
    sample.videoCodec().codec = QStringLiteral("H.264");
    QString first;
    for (const CodecPreset& preset : m_codecManager->codecPresets()) {
        const QString label = CodecManager::namingFromPreset(&preset);
        if (first.isEmpty() || label < first) {
            first = label;
            sample = preset;
        }
    }
    sample.setName(QStringLiteral("Program"));
    sample.container().name = QStringLiteral("mp4");
    sample.container().id = 2;
    sample.local().enabled = true;
    sample.local().fileTag = QStringLiteral("%P %Y-%M-%D %h-%m-%s %C_%B_%R");
    sample.local().path = QStandardPaths::writableLocation(QStandardPaths::MoviesLocation);
    return sample;
}
