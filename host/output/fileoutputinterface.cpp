#include "fileoutputinterface.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonParseError>
#include <QLoggingCategory>
#include <QSaveFile>

Q_LOGGING_CATEGORY(lcHostSetup, "quillon.host.setup")

FileOutputInterface::FileOutputInterface(const QString& fileName, QObject* parent)
    : MemoryOutputInterface(QJsonObject(), parent), m_fileName(fileName)
{
    QFile file(fileName);
    if (!file.exists())
        return;
    if (!file.open(QIODevice::ReadOnly)) {
        qCWarning(lcHostSetup) << "Cannot read setup file" << fileName << file.errorString();
        return;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    file.close();
    if (error.error == QJsonParseError::NoError && document.isObject()) {
        replaceSettings(document.object());
        return;
    }
    // Keep the operator's file for inspection rather than overwriting it.
    const QString aside = fileName + QStringLiteral(".corrupt-")
        + QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-hhmmss"));
    if (QFile::rename(fileName, aside))
        m_corruptKeptAs = aside;
    else
        m_corruptKeptAs = fileName;
    qCWarning(lcHostSetup) << "Setup file" << fileName << "is not a JSON object ("
                           << error.errorString() << "); kept as" << m_corruptKeptAs;
}

bool FileOutputInterface::save()
{
    QDir().mkpath(QFileInfo(m_fileName).absolutePath());
    QSaveFile file(m_fileName);
    if (!file.open(QIODevice::WriteOnly)) {
        m_lastError = file.errorString();
        qCWarning(lcHostSetup) << "Cannot write setup file" << m_fileName << m_lastError;
        return false;
    }
    file.write(QJsonDocument(settings()).toJson(QJsonDocument::Indented));
    if (!file.commit()) {
        m_lastError = file.errorString();
        qCWarning(lcHostSetup) << "Cannot write setup file" << m_fileName << m_lastError;
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
