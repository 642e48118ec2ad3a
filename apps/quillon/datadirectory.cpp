#include "quillon/datadirectory.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QSaveFile>

DataDirectory::DataDirectory(const QString& path) : m_path(QDir::cleanPath(path))
{
}

QString DataDirectory::filePath(const QString& name) const
{
    return QDir(m_path).filePath(name);
}

bool DataDirectory::ensureExists(QString* error) const
{
    const bool existed = QDir(m_path).exists();
    if (QDir().mkpath(m_path)) {
        // Setup, settings and servers inside hold stream keys and passwords. A folder the
        // operator chose and made is left as it is.
        if (!existed)
            QFile::setPermissions(m_path, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        return true;
    }
    if (error)
        *error = tr("The data folder %1 could not be created.").arg(QDir::toNativeSeparators(m_path));
    return false;
}

QJsonObject DataDirectory::readOrCreate(const QString& name, const QJsonObject& defaults, QString* message) const
{
    const QString path = filePath(name);
    QFile file(path);
    if (!file.exists()) {
        QSaveFile out(path);
        if (!out.open(QIODevice::WriteOnly) || out.write(QJsonDocument(defaults).toJson()) < 0 || !out.commit()) {
            if (message)
                *message = tr("%1 could not be written (%2); the defaults are used.").arg(name, out.errorString());
            return defaults;
        }
        if (message)
            *message = tr("%1 written with the defaults.").arg(name);
        return defaults;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        if (message)
            *message = tr("%1 could not be read (%2); the defaults are used.").arg(name, file.errorString());
        return defaults;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (error.error != QJsonParseError::NoError || !document.isObject()) {
        if (message) {
            const QString reason = error.error != QJsonParseError::NoError
                ? tr("%1 at offset %2").arg(error.errorString()).arg(error.offset)
                : tr("not a JSON object");
            *message = tr("%1 is not valid (%2); the defaults are used and the file is left as it is.")
                           .arg(name, reason);
        }
        return defaults;
    }
    if (message)
        message->clear();
    return document.object();
}
