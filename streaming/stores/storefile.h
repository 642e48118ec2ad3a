#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QString>

#include <functional>

Q_DECLARE_LOGGING_CATEGORY(lcStores)

// One JSON file per record in a store directory. Writes go to a temporary file
// that replaces the old one only when complete, so a crash or a full disk keeps
// the previous version.
class StoreFile
{
public:
    enum Access { Shared, OwnerOnly };

    // The file for a title or label inside directory; separators and leading dots
    // are mapped so no name can reach outside it or hide from the directory scan.
    static QString pathFor(const QString& directory, const QString& baseName);
    static QString safeBaseName(const QString& baseName);

    // Logs "Couldn't open save file." and returns false when nothing could be written.
    static bool write(const QString& path, const QByteArray& contents, Access access);
    static void remove(const QString& path);
    // Writes contents as newPath and drops oldPath (same directory) as one step: a crash
    // part way leaves a note that finishPending completes, so a renamed record is never
    // lost nor doubled. With equal paths it is a plain write.
    static bool replace(const QString& oldPath, const QString& newPath, const QByteArray& contents, Access access);
    // Completes a replace that a crash interrupted; reloads call it before reading.
    static void finishPending(const QString& directory);
    // Creates the directory owner-only, or makes it so: it holds passwords and tokens.
    static void makePrivateDirectory(const QString& directory);

    // Every non-empty JSON object of the directory's *.json regular files, in
    // directory order; anything else is skipped. On the way it deletes what a write cut
    // short by a crash left ("name.json.XXXXXX"): only this process writes its stores, from
    // one thread, so no write is under way meanwhile.
    static void forEachObject(const QString& directory, const std::function<void(const QJsonObject&)>& visit);
};
