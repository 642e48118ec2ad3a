#include "interface/fileoutputinterface.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonParseError>
#include <QLoggingCategory>
#include <QSaveFile>

Q_LOGGING_CATEGORY(lcHostSetup, "quillon.host.setup")

namespace {

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

} // namespace

FileOutputInterface::FileOutputInterface(const QString& fileName, QObject* parent)
    : MemoryOutputInterface(QJsonObject(), parent), m_fileName(fileName)
{
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
    QDir().mkpath(QFileInfo(m_fileName).absolutePath());
    QSaveFile file(m_fileName);
    if (!file.open(QIODevice::WriteOnly)) {
        m_lastError = tr("Couldn't write the setup file %1: %2").arg(m_fileName, file.errorString());
        qCWarning(lcHostSetup).noquote() << m_lastError;
        return false;
    }
    file.write(QJsonDocument(settings()).toJson(QJsonDocument::Indented));
    if (!file.commit()) {
        m_lastError = tr("Couldn't write the setup file %1: %2").arg(m_fileName, file.errorString());
        qCWarning(lcHostSetup).noquote() << m_lastError;
        return false;
    }
    m_lastError.clear();
    return true;
}

void FileOutputInterface::settingsStored(const QString& key)
{
    save();
    MemoryOutputInterface::settingsStored(key);
}
