#pragma once

#include "records/contentssettings.h"
#include "records/licensemodel.h"
#include "stores/codecmanager.h"
#include "stores/streamingmanager.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <memory>

// Both stores over fresh preset directories in a temporary directory. The
// managers are the process instances while this lives and go before the files.
class TempStores
{
public:
    explicit TempStores(const LicenseModel& license = LicenseModel());
    ~TempStores();
    TempStores(const TempStores&) = delete;
    TempStores& operator=(const TempStores&) = delete;

    bool isValid() const;
    QString root() const;
    QString codecDir() const;
    QString serverDir() const;
    ContentsSettings settings() const;

    CodecManager& codecManager() { return *m_codecManager; }
    StreamingManager& streamingManager() { return *m_streamingManager; }

    // Writes raw bytes as a file of a store directory (for hand-made presets); returns its path.
    QString writeCodecFile(const QString& fileName, const QByteArray& contents) const;
    QString writeServerFile(const QString& fileName, const QByteArray& contents) const;

private:
    QTemporaryDir m_dir;
    std::unique_ptr<CodecManager> m_codecManager;
    std::unique_ptr<StreamingManager> m_streamingManager;
};
