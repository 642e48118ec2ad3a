#include "stores/storefile.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
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

// The note of a replace under way; hidden, so no reload takes it for a record.
const QString pendingName = QStringLiteral(".pending-replace");

// After a rename or an unlink the directory itself must reach the disk, or a power cut
// can bring back the old entry.
void syncDirectory(const QString& directory)
{
#ifdef Q_OS_UNIX
    const int fd = ::open(QFile::encodeName(directory).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        return;
    ::fsync(fd);
    ::close(fd);
#else
    Q_UNUSED(directory)
#endif
}

// A bare file name that stays inside the directory, as pathFor makes them.
bool isPlainName(const QString& name)
{
    return !name.isEmpty() && !name.contains(QLatin1Char('/')) && !name.contains(QLatin1Char('\\'))
        && !name.startsWith(QLatin1Char('.')) && name.endsWith(QLatin1Char('.') + jsonSuffix);
}

// What QSaveFile leaves when the process dies between naming its copy and renaming it:
// "name.json.XXXXXX" (or the note's ".pending-replace.XXXXXX").
bool isCutShort(const QString& name)
{
    const int dot = name.size() - 7;
    if (dot < 1 || name.at(dot) != QLatin1Char('.'))
        return false;
    for (int i = dot + 1; i < name.size(); ++i)
        if (!name.at(i).isLetterOrNumber() || name.at(i).unicode() > 127)
            return false;
    const QStringRef stem = name.leftRef(dot);
    return stem.endsWith(QLatin1Char('.') + jsonSuffix, Qt::CaseInsensitive) || stem == pendingName;
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
    else
        syncDirectory(directory);
    return ok;
}

void StoreFile::remove(const QString& path)
{
    const QFileInfo info(path);
    if (info.isFile() && QFile::remove(path))
        syncDirectory(info.absolutePath());
}

bool StoreFile::replace(const QString& oldPath, const QString& newPath, const QByteArray& contents, Access access)
{
    const QFileInfo from(oldPath);
    const QFileInfo to(newPath);
    if (oldPath == newPath || !from.isFile())
        return write(newPath, contents, access);
    const QString directory = to.absolutePath();
    if (from.absolutePath() != directory) {
        if (!write(newPath, contents, access))
            return false;
        remove(oldPath);
        return true;
    }
    // The note holds the new contents, so it is as private as the record.
    const QJsonObject note{{QStringLiteral("remove"), from.fileName()},
                           {QStringLiteral("write"), to.fileName()},
                           {QStringLiteral("contents"), QString::fromUtf8(contents)},
                           {QStringLiteral("ownerOnly"), access == OwnerOnly}};
    const QString notePath = directory + QLatin1Char('/') + pendingName;
    if (!write(notePath, QJsonDocument(note).toJson(QJsonDocument::Compact), access))
        return false;
    if (!write(newPath, contents, access)) {
        // Not done, and not to be done later: the old record stays as it was.
        remove(notePath);
        return false;
    }
    remove(oldPath);
    remove(notePath);
    return true;
}

void StoreFile::finishPending(const QString& directory)
{
    const QString notePath = directory + QLatin1Char('/') + pendingName;
    if (!QFileInfo(notePath).isFile())
        return;
    QFile file(notePath);
    const QJsonObject note = file.open(QIODevice::ReadOnly) && file.size() <= maxFileSize
        ? QJsonDocument::fromJson(file.readAll()).object()
        : QJsonObject();
    file.close();
    const QString removed = note.value(QLatin1String("remove")).toString();
    const QString written = note.value(QLatin1String("write")).toString();
    const QJsonValue contents = note.value(QLatin1String("contents"));
    // The note is written whole or not at all; anything else was not made here.
    if (!isPlainName(removed) || !isPlainName(written) || removed == written || !contents.isString()) {
        qCWarning(lcStores) << "Dropped an unreadable note of an unfinished change in" << directory;
        remove(notePath);
        return;
    }
    const Access access = note.value(QLatin1String("ownerOnly")).toBool() ? OwnerOnly : Shared;
    if (!write(directory + QLatin1Char('/') + written, contents.toString().toUtf8(), access))
        return; // tried again at the next reload
    remove(directory + QLatin1Char('/') + removed);
    remove(notePath);
    qCInfo(lcStores) << "Finished an interrupted change in" << directory;
}

void StoreFile::makePrivateDirectory(const QString& directory)
{
    QDir().mkpath(directory);
    QFile::setPermissions(directory, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
}

void StoreFile::forEachObject(const QString& directory, const std::function<void(const QJsonObject&)>& visit)
{
    // Same entries as the name filter "*.json" (case-insensitive wildcard), matched
    // without a regular expression per file.
    const QString suffix = QLatin1Char('.') + jsonSuffix;
    QDirIterator it(directory, QDir::Files | QDir::Hidden | QDir::NoSymLinks | QDir::NoDotAndDotDot);
    // One buffer for the whole directory: no allocation per file.
    QByteArray buffer(16384, Qt::Uninitialized);
    while (it.hasNext()) {
        it.next();
        const QString name = it.fileName();
        if (!name.endsWith(suffix, Qt::CaseInsensitive) || name.startsWith(QLatin1Char('.'))) {
            if (isCutShort(name))
                QFile::remove(it.filePath());
            continue;
        }
        int size = 0;
        if (!readWhole(it.filePath(), buffer, size))
            continue;
        const QJsonObject object = QJsonDocument::fromJson(QByteArray::fromRawData(buffer.constData(), size)).object();
        if (!object.isEmpty())
            visit(object);
    }
}
