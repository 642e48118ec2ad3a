#include "storefile.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

Q_LOGGING_CATEGORY(lcStores, "streaming.stores")

namespace {

const QString jsonSuffix = QStringLiteral("json");

} // namespace

QString StoreFile::safeBaseName(const QString& baseName)
{
    // ".json" would be a hidden file, skipped by every reload.
    if (baseName.isEmpty())
        return QString(QChar(0x2205));
    QString name = baseName;
    // Look-alike characters keep the name readable in a file manager.
    name.replace(QLatin1Char('/'), QChar(0x2215));
    name.replace(QLatin1Char('\\'), QChar(0x29F5));
    for (int i = 0; i < name.size() && name.at(i) == QLatin1Char('.'); ++i)
        name[i] = QChar(0x2024);
    return name;
}

QString StoreFile::pathFor(const QString& directory, const QString& baseName)
{
    return directory + QLatin1Char('/') + safeBaseName(baseName) + QLatin1Char('.') + jsonSuffix;
}

bool StoreFile::write(const QString& path, const QByteArray& contents, Access access)
{
    const QFileInfo info(path);
    const QString directory = info.absolutePath();
    if (!QDir(directory).exists())
        QDir().mkpath(directory);

    QSaveFile file(path);
    // Unbuffered: a buffered QSaveFile commits a short file when its final flush fails.
    bool ok = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    if (ok && access == OwnerOnly)
        ok = file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    if (ok)
        ok = file.write(contents) == contents.size() && file.flush() && file.error() == QFileDevice::NoError;
    if (ok)
        ok = file.commit();
    else
        file.cancelWriting();
    if (!ok)
        qCWarning(lcStores, "Couldn't open save file.");
    return ok;
}

void StoreFile::remove(const QString& path)
{
    const QFileInfo info(path);
    if (info.isFile())
        QFile::remove(path);
}

void StoreFile::forEachObject(const QString& directory, const std::function<void(const QJsonObject&)>& visit)
{
    // Same entries as the name filter "*.json" (case-insensitive wildcard), matched
    // without a regular expression per file.
    const QString suffix = QLatin1Char('.') + jsonSuffix;
    QDirIterator it(directory, QDir::Files | QDir::NoSymLinks | QDir::NoDotAndDotDot);
    // One buffer for the whole directory: no size query and no allocation per file.
    QByteArray buffer(16384, Qt::Uninitialized);
    while (it.hasNext()) {
        it.next();
        if (!it.fileName().endsWith(suffix, Qt::CaseInsensitive))
            continue;
        QFile file(it.filePath());
        if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
            continue;
        qint64 used = 0;
        qint64 got = 0;
        for (;;) {
            if (buffer.size() - used < 4096)
                buffer.resize(buffer.size() * 2);
            got = file.read(buffer.data() + used, buffer.size() - used);
            if (got <= 0)
                break;
            used += got;
        }
        if (got < 0)
            continue;
        const QJsonObject object =
            QJsonDocument::fromJson(QByteArray::fromRawData(buffer.constData(), int(used))).object();
        if (!object.isEmpty())
            visit(object);
    }
}
