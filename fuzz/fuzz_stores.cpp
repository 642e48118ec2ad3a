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

void put(const QString& directory, const QString& name, const QByteArray& contents)
{
    QDir().mkpath(directory);
    QFile file(directory + QLatin1Char('/') + name);
    if (file.open(QIODevice::WriteOnly))
        file.write(contents);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    Fuzz::startApplication(false);
    root = Fuzz::scratchDirectory("stores");
    // Expansions read the clock; a fixed one keeps every run of an input the same.
    FileTag::setClock([] { return QDateTime(QDate(2026, 1, 2), QTime(3, 4, 5)); });
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QList<QByteArray> pieces = Fuzz::pieces(data, size);
    QDir(root).removeRecursively();
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
