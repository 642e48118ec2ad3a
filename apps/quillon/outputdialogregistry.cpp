#include "quillon/outputdialogregistry.h"

#include "interface/fileoutputinterface.h"
#include "output/outputsetup.h"
#include "output/playoutsetup.h"
#include "quillon/activitylog.h"
#include "quillon/hostsession.h"
#include "quillon/isorecorder.h"
#include "quillon/playouthost.h"
#include "recording/imagesetup.h"
#include "recording/isocordersetup.h"
#include "recording/recordingsetup.h"
#include "setup/streamingsetup.h"
#include "stores/filenamingdialog.h"
#include "stores/filetag.h"

#include <memory>

namespace {

// Edits a copy of the session's sample recording preset, so Cancel leaves it as it was.
QDialog* createFileNaming(QWidget* parent, HostSession& session)
{
    auto preset = std::make_shared<CodecPreset>(session.namingSample());
    auto* dialog = new FileNamingDialog(parent, preset.get(), nullptr);
    // The connection owns the copy, so it lives exactly as long as the dialog.
    QObject::connect(dialog, &QDialog::accepted, dialog, [preset, &session] {
        session.setNamingSample(*preset);
        session.log()->info(OutputDialogRegistry::tr("File naming: \"%1\" gives %2")
                                .arg(preset->local().fileTag, FileTag::fromCodecPreset(preset.get(), true)));
    });
    return dialog;
}

// The outputs go on while these dialogs are hidden: the console keeps them and shows them
// modeless, as the switcher does, so the operator can start a stream and close the window.
void presentModeless(QDialog* dialog)
{
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
}

QDialog* createStreaming(QWidget* parent, HostSession& session)
{
    auto* dialog = new StreamingSetup(parent, &session.setup());
    dialog->reloadPresets();
    return dialog;
}

QDialog* createRecording(QWidget* parent, HostSession& session)
{
    auto* dialog = new RecordingSetup(parent, &session.setup());
    dialog->reloadPresets();
    return dialog;
}

// Playout outputs run on while the dialog is hidden, like streams and recordings.
QDialog* createPlayout(QWidget* parent, HostSession& session)
{
    return new PlayoutSetup(parent, &session.setup());
}

void presentPlayout(QDialog* dialog)
{
    static_cast<PlayoutSetup*>(dialog)->open(false);
    presentModeless(dialog);
}

// The console drives what an accepted dialog configured; with nothing configured it stops them.
QDialog* createExternalOutput(QWidget* parent, HostSession& session)
{
    auto* dialog = new OutputSetup(parent, &session.setup());
    dialog->reloadPresets();
    QObject::connect(dialog, &QDialog::accepted, dialog, [dialog, &session] {
        session.playout().applyExternal(dialog->validCheck() ? dialog->outputInfos() : QList<OutputInfo>());
    });
    return dialog;
}

// Modal and kept, as the switcher runs it: every opening starts from the stored settings,
// and OK with a source chosen starts the recordings.
QDialog* createIsoRecording(QWidget* parent, HostSession& session)
{
    auto* dialog = new IsoCorderSetup(parent, &session.setup());
    dialog->setSources(session.isoRecorder().cameras());
    QObject::connect(dialog, &QDialog::accepted, dialog, [dialog, &session] {
        const QList<IsoCorderSetup::Source> sources = dialog->validCheck() ? dialog->sources()
                                                                           : QList<IsoCorderSetup::Source>();
        session.isoRecorder().start(dialog->codecPreset(), sources);
    });
    return dialog;
}

void presentModal(QDialog* dialog)
{
    dialog->exec();
}

QDialog* createGrab(QWidget* parent, HostSession& session)
{
    auto* dialog = new ImageSetup(parent, &session.setup());
    dialog->reloadPresets();
    return dialog;
}

} // namespace

const QList<OutputDialogRegistry::Entry>& OutputDialogRegistry::entries()
{
    static const QList<Entry> list{
        {QStringLiteral("streaming"), QT_TR_NOOP("Streaming…"), QStringLiteral(":/resources/appicons/streaming.png"),
         true, createStreaming, presentModeless},
        {QStringLiteral("recording"), QT_TR_NOOP("Recording…"), QStringLiteral(":/resources/appicons/recording.png"),
         true, createRecording, presentModeless},
        {QStringLiteral("isoRecording"), QT_TR_NOOP("ISO Recording…"),
         QStringLiteral(":/resources/appicons/recording.png"), true, createIsoRecording, presentModal},
        {QStringLiteral("grab"), QT_TR_NOOP("Grab…"), QStringLiteral(":/resources/appicons/eye.png"), false, createGrab,
         {}},
        {QStringLiteral("fileNaming"), QT_TR_NOOP("File Naming…"), QStringLiteral(":/resources/appicons/addfiles.png"),
         false, createFileNaming, {}},
        {QStringLiteral("playout"), QT_TR_NOOP("Playout…"), QStringLiteral(":/resources/appicons/output.png"), true,
         createPlayout, presentPlayout},
        {QStringLiteral("externalOutput"), QT_TR_NOOP("External Output…"),
         QStringLiteral(":/resources/appicons/output.png"), false, createExternalOutput, {}},
    };
    return list;
}

QString OutputDialogRegistry::label(const Entry& entry)
{
    return tr(entry.label);
}
