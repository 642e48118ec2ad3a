#pragma once

#include "host_export.h"

#include <QString>

// Where the host keeps its content: the codec and server preset directories.
class HOST_EXPORT ContentsSettings
{
public:
    ContentsSettings() = default;
    ContentsSettings(const QString& codecPresetPath, const QString& serverPresetPath)
        : m_codecPresetPath(codecPresetPath), m_serverPresetPath(serverPresetPath) {}

    QString codecPresetPath() const { return m_codecPresetPath; }
    void setCodecPresetPath(const QString& path) { m_codecPresetPath = path; }
    QString serverPresetPath() const { return m_serverPresetPath; }
    void setServerPresetPath(const QString& path) { m_serverPresetPath = path; }

    // Both directories below one data directory ("codecs" and "servers").
    static ContentsSettings underDirectory(const QString& dataDirectory);

private:
    QString m_codecPresetPath;
    QString m_serverPresetPath;
};
