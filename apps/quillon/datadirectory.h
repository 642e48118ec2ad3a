#pragma once

#include <QCoreApplication>
#include <QJsonObject>
#include <QString>

// The host's data location: the store directories and its JSON files side by side.
class DataDirectory
{
    Q_DECLARE_TR_FUNCTIONS(DataDirectory)

public:
    explicit DataDirectory(const QString& path);

    QString path() const { return m_path; }
    QString filePath(const QString& name) const;
    // Creates the directory with its parents; false with *error set when that fails.
    bool ensureExists(QString* error) const;

    // The object in the named file. A missing file is first written with the defaults
    // (so the operator finds every member to edit). A file that is not a JSON object is
    // left untouched for the operator to fix, and the defaults are used; *message says so.
    QJsonObject readOrCreate(const QString& name, const QJsonObject& defaults, QString* message) const;

private:
    QString m_path;
};
