// The stores' files as a crash, another program or a hand edit may leave them: a codec
// preset, a saved server, a signed-in account and the note of an unfinished rename (the
// input's pieces, in that order). Both stores read them as the host does at start and write
// back what they read; every preset read is also named and expanded. Reading again what they
// wrote ran the same readers on files of their own making, for a third of each input's time.

#include "records/contentssettings.h"
#include "records/licensemodel.h"
#include "stores/codecmanager.h"
#include "stores/filetag.h"
#include "stores/streamingmanager.h"

#include "fuzzsupport.h"

#include <QDir>
#include <QFile>

#include <dirent.h>
#include <unistd.h>

namespace {

QString root;

QStringList directories;

// The stores copy it; made once, as the host does.
const LicenseModel& license()
{
    static const LicenseModel model;
    return model;
}

void put(const QString& directory, const QString& name, const QByteArray& contents)
{
    QFile file(directory + QLatin1Char('/') + name);
    if (file.open(QIODevice::WriteOnly))
        file.write(contents);
}

// Each input starts from empty store folders: what the last one wrote, renamed or left
// half done goes. Emptied in place with plain calls: making them anew, or listing them
// through QDir, costs more than most inputs.
void emptyDirectories()
{
    for (const QString& path : directories) {
        const QByteArray encoded = QFile::encodeName(path);
        DIR* directory = opendir(encoded.constData());
        if (!directory) {
            QDir().mkpath(path);
            continue;
        }
        while (const dirent* entry = readdir(directory)) {
            if (entry->d_type != DT_DIR)
                unlinkat(dirfd(directory), entry->d_name, 0);
        }
        closedir(directory);
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    Fuzz::startApplication(false);
    root = Fuzz::scratchDirectory("stores");
    const ContentsSettings settings = ContentsSettings::underDirectory(root);
    directories = QStringList{settings.codecPresetPath(), settings.serverPresetPath(),
                              settings.serverPresetPath() + QStringLiteral("/accounts")};
    // Expansions read the clock; a fixed one keeps every run of an input the same.
    FileTag::setClock([] { return QDateTime(QDate(2026, 1, 2), QTime(3, 4, 5)); });
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QList<QByteArray> pieces = Fuzz::pieces(data, size);
    emptyDirectories();
    const ContentsSettings settings = ContentsSettings::underDirectory(root);
    put(settings.codecPresetPath(), QStringLiteral("preset.json"), pieces.value(0));
    put(settings.serverPresetPath(), QStringLiteral("server.json"), pieces.value(1));
    put(settings.serverPresetPath() + QStringLiteral("/accounts"), QStringLiteral("service.json"), pieces.value(2));
    if (pieces.size() > 3)
        put(settings.codecPresetPath(), QStringLiteral(".pending-replace"), pieces.at(3));

    CodecManager codecs(settings);
    for (const CodecPreset& preset : codecs.codecPresets()) {
        CodecManager::namingFromPreset(&preset);
        FileTag::fromCodecPreset(&preset, true);
    }
    if (!codecs.codecPresets().isEmpty())
        codecs.write(codecs.codecPresets().first());

    StreamingManager servers(settings, license());
    if (!servers.serverInfos().isEmpty()) {
        const ServerInfo info = servers.serverInfos().first();
        servers.write(info.channel, info.oauth);
    }
    if (!servers.accounts().isEmpty())
        servers.writeAccount(servers.accounts().first());
    return 0;
}
