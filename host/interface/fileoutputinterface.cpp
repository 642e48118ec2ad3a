#include "interface/fileoutputinterface.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonParseError>
#include <QLoggingCategory>
#include <QSaveFile>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

Q_LOGGING_CATEGORY(lcHostSetup, "quillon.host.setup")

namespace {

// QSaveFile's temporary name: the file's name, a dot and six letters or digits.
bool isCutShortCopy(const QString& candidate, const QString& fileName)
{
    if (candidate.size() != fileName.size() + 7 || !candidate.startsWith(fileName)
        || candidate.at(fileName.size()) != QLatin1Char('.'))
        return false;
    for (int i = fileName.size() + 1; i < candidate.size(); ++i) {
        const QChar c = candidate.at(i);
        if (c.unicode() > 127 || !c.isLetterOrNumber())
            return false;
    }
    return true;
}

// A name beside the file that nothing else uses yet.
QString freeAsideName(const QString& fileName)
{
    const QString base = fileName + QStringLiteral(".corrupt-")
        + QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-hhmmss"));
    QString candidate = base;
    for (int n = 2; QFileInfo::exists(candidate) && n < 1000; ++n)
        candidate = base + QStringLiteral("-%1").arg(n);
    return candidate;
}

// The rename reaches the disk only with its directory: without this a power cut can bring
// back the previous setup.
void syncDirectory(const QString& directory)
{
#ifdef Q_OS_UNIX
    const int fd = ::open(QFile::encodeName(directory).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd >= 0) {
        ::fsync(fd);
        ::close(fd);
    }
#else
    Q_UNUSED(directory)
#endif
}

} // namespace

FileOutputInterface::FileOutputInterface(const QString& fileName, QObject* parent)
    : MemoryOutputInterface(QJsonObject(), parent), m_fileName(fileName)
{
    // What a save cut short by a crash left beside the file ("setup.json.XXXXXX"): it may hold
    // keys, and only this host writes its setup file.
    const QFileInfo info(fileName);
    for (const QFileInfo& leftover : QDir(info.absolutePath()).entryInfoList(QDir::Files | QDir::NoSymLinks))
        if (isCutShortCopy(leftover.fileName(), info.fileName()))
            QFile::remove(leftover.filePath());

    QFile file(fileName);
    if (!file.exists())
        return;
    if (!file.open(QIODevice::ReadOnly)) {
        qCWarning(lcHostSetup) << "Cannot read setup file" << fileName << file.errorString();
        keepAside(tr("Setup file could not be read: %1").arg(file.errorString()));
        return;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    file.close();
    if (error.error == QJsonParseError::NoError && document.isObject()) {
        replaceSettings(document.object());
        return;
    }
    keepAside(error.error != QJsonParseError::NoError ? error.errorString() : tr("not a JSON object"));
}

void FileOutputInterface::keepAside(const QString& reason)
{
    // Keep the operator's file for inspection rather than overwriting it.
    const QString aside = freeAsideName(m_fileName);
    if (QFile::rename(m_fileName, aside) || QFile::copy(m_fileName, aside)) {
        // What is left of it may still hold keys.
        QFile::setPermissions(aside, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
        m_corruptKeptAs = aside;
        qCWarning(lcHostSetup) << "Setup file" << m_fileName << "unusable (" << reason << "); kept as" << aside;
        return;
    }
    // Nowhere to keep it: leave it where it is and never write over it.
    m_corruptKeptAs = m_fileName;
    m_writeBlocked = true;
    m_lastError = tr("The unusable setup file %1 could not be kept aside; it is left unchanged.").arg(m_fileName);
    qCWarning(lcHostSetup) << "Setup file" << m_fileName << "unusable (" << reason
                           << ") and could not be moved; changes are not saved";
}

bool FileOutputInterface::save()
{
    if (m_writeBlocked) {
        qCWarning(lcHostSetup) << "Not writing over" << m_fileName << "which could not be kept aside";
        return false;
    }
    const QString directory = QFileInfo(m_fileName).absolutePath();
    if (!QDir(directory).exists() && QDir().mkpath(directory))
        QFile::setPermissions(directory, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    // Unbuffered, with every step checked: a failed final flush must not commit a short file.
    QSaveFile file(m_fileName);
    const QByteArray contents = QJsonDocument(settings()).toJson(QJsonDocument::Indented);
    // Stream keys, passwords and passphrases are in it: the owner's alone, at every rewrite.
    const bool ok = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)
        && file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner)
        && file.write(contents) == contents.size();
    if (!ok)
        file.cancelWriting();
    if (!ok || !file.commit()) {
        m_lastError = tr("Couldn't write the setup file %1: %2").arg(m_fileName, file.errorString());
        qCWarning(lcHostSetup).noquote() << m_lastError;
        return false;
    }
    m_lastError.clear();
    syncDirectory(directory);
    return true;
}

void FileOutputInterface::settingsStored(const QString& key)
{
    save();
    MemoryOutputInterface::settingsStored(key);
}
