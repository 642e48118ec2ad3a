#include "stores/storefile.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#endif

Q_LOGGING_CATEGORY(lcStores, "streaming.stores")

namespace {

const QString jsonSuffix = QStringLiteral("json");
// Far beyond any preset; keeps a stray huge file from exhausting memory.
constexpr int maxFileSize = 16 * 1024 * 1024;

// Reads a file into buffer[0, size). Unreadable and oversized files give false.
bool readWhole(const QString& path, QByteArray& buffer, int& size)
{
    size = 0;
#ifdef Q_OS_UNIX
    // Plain system calls: a reload reads thousands of small files, and QFile adds
    // a status query and allocations to each. O_NONBLOCK: a pipe put in the
    // file's place after the listing must not block the host.
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (fd < 0)
        return false;
    bool ok = true;
    for (;;) {
        if (buffer.size() - size < 4096) {
            if (buffer.size() >= maxFileSize) {
                ok = false;
                break;
            }
            buffer.resize(buffer.size() * 2);
        }
        const ssize_t got = ::read(fd, buffer.data() + size, size_t(buffer.size() - size));
        if (got > 0) {
            size += int(got);
        } else if (got < 0 && errno == EINTR) {
            continue;
        } else {
            ok = got == 0;
            break;
        }
    }
    ::close(fd);
    return ok;
#else
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) || file.size() > maxFileSize)
        return false;
    const QByteArray contents = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return false;
    buffer = contents;
    size = contents.size();
    return true;
#endif
}

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
    // QSaveFile writes through a symbolic link, to wherever it points. A link is
    // never loaded as a preset anyway, so the preset replaces the link itself.
    if (info.isSymLink())
        QFile::remove(path);

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
    // One buffer for the whole directory: no allocation per file.
    QByteArray buffer(16384, Qt::Uninitialized);
    while (it.hasNext()) {
        it.next();
        if (!it.fileName().endsWith(suffix, Qt::CaseInsensitive))
            continue;
        int size = 0;
        if (!readWhole(it.filePath(), buffer, size))
            continue;
        const QJsonObject object = QJsonDocument::fromJson(QByteArray::fromRawData(buffer.constData(), size)).object();
        if (!object.isEmpty())
            visit(object);
    }
}
