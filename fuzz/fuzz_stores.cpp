// The stores' files as a crash, another program or a hand edit may leave them: a codec
// preset, a saved server, a signed-in account and the note of an unfinished rename (the
// input's pieces, in that order). Both stores read them as the host does at start, write
// back what they read, and read again; every preset read is also named and expanded.

#include "records/contentssettings.h"
#include "records/licensemodel.h"
#include "stores/codecmanager.h"
#include "stores/filetag.h"
#include "stores/streamingmanager.h"

#include "fuzzsupport.h"

#include <QDir>
#include <QFile>

namespace {

QString root;

QStringList directories;

void put(const QString& directory, const QString& name, const QByteArray& contents)
{
    QFile file(directory + QLatin1Char('/') + name);
    if (file.open(QIODevice::WriteOnly))
        file.write(contents);
}

// Each input starts from empty store folders: what the last one wrote, renamed or left
// half done goes. Emptied rather than made anew, which costs more than most inputs.
void emptyDirectories()
{
    for (const QString& path : directories) {
        QDir directory(path);
        if (!directory.exists())
            QDir().mkpath(path);
        for (const QString& name : directory.entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Unsorted))
            directory.remove(name);
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
    codecs.reloadPresets();

    StreamingManager servers(settings, LicenseModel());
    if (!servers.serverInfos().isEmpty()) {
        const ServerInfo info = servers.serverInfos().first();
        servers.write(info.channel, info.oauth);
    }
    if (!servers.accounts().isEmpty())
        servers.writeAccount(servers.accounts().first());
    servers.reloadPresets();
    return 0;
}
