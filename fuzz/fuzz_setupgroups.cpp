// The host's setup file as it may be found on disk: the host reads it, then every group a
// setup dialog loads is read from it. The recording, streaming and ISO codec groups go
// through their loaders (and back to JSON, as the next save writes them); the grab presets,
// the ISO sources and the playout and external output rows are read only by their dialogs,
// which are made once and reload from each input as when they are opened.

#include "interface/fileoutputinterface.h"
#include "interface/memoryoutputinterface.h"
#include "widgets/messagebox.h"
#include "output/outputsetup.h"
#include "output/playoutsetup.h"
#include "recording/imagesetup.h"
#include "recording/isocorderjson.h"
#include "recording/isocordersetup.h"
#include "recording/recordingpresetjson.h"
#include "setup/streamingpresetjson.h"
#include "stores/codecmanager.h"
#include "stores/streamingmanager.h"

#include "fuzzsupport.h"

#include <QFile>
#include <QJsonArray>

namespace {

struct Dialogs {
    MemoryOutputInterface host;
    ImageSetup grab{nullptr, &host};
    IsoCorderSetup iso{nullptr, &host};
    OutputSetup external{nullptr, &host};
    PlayoutSetup playout{nullptr, &host};
};

QString root;
QString setupFile;
Dialogs* dialogs = nullptr;

void eachObject(const QJsonValue& value, const std::function<void(const QJsonObject&)>& visit)
{
    const QJsonArray array = value.toArray();
    for (const QJsonValue& element : array)
        visit(element.toObject());
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    Fuzz::startApplication(true);
    MessageBox::setScripted(true);
    root = Fuzz::scratchDirectory("setupgroups");
    setupFile = root + QStringLiteral("/setup.json");
    const ContentsSettings settings = ContentsSettings::underDirectory(root);
    static CodecManager codecs(settings);
    static StreamingManager servers(settings, LicenseModel());
    dialogs = new Dialogs; // lives for the whole run, as the host's dialogs do
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    {
        QFile file(setupFile);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return 0;
        file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
    }
    // A file that does not read is set aside; the host then starts from an empty setup.
    QJsonObject setup;
    {
        FileOutputInterface host(setupFile);
        setup = host.settings();
        if (!host.corruptFileKeptAs().isEmpty() && host.corruptFileKeptAs() != setupFile)
            QFile::remove(host.corruptFileKeptAs());
    }

    eachObject(setup.value(QLatin1String("RECORDING")), [](const QJsonObject& object) {
        RecordingPresetJson::toJson(RecordingPresetJson::fromJson(object));
    });
    eachObject(setup.value(QLatin1String("STREAMING")), [](const QJsonObject& object) {
        StreamingPresetJson::toJson(StreamingPresetJson::fromJson(object));
    });
    const QJsonObject iso = setup.value(QLatin1String("ISOCORDER")).toObject();
    IsoCorderJson::codecToJson(IsoCorderJson::codecFromJson(iso.value(QLatin1String("CODEC")).toObject()));

    dialogs->host.replaceSettings(setup);
    dialogs->grab.reloadPresets();
    dialogs->grab.presets();
    dialogs->iso.reloadPresets();
    dialogs->external.reloadPresets();
    dialogs->playout.reloadPresets();
    Fuzz::settle();
    return 0;
}
