#pragma once

#include "records/contentssettings.h"
#include "records/licensemodel.h"
#include "stores/codecmanager.h"
#include "stores/streamingmanager.h"

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
    QString root() const { return m_dir.path(); }
    QString codecDir() const { return settings().codecPresetPath(); }
    QString serverDir() const { return settings().serverPresetPath(); }
    ContentsSettings settings() const { return ContentsSettings::underDirectory(m_dir.path()); }

    CodecManager& codecManager() { return *m_codecManager; }
    StreamingManager& streamingManager() { return *m_streamingManager; }

private:
    QTemporaryDir m_dir;
    std::unique_ptr<CodecManager> m_codecManager;
    std::unique_ptr<StreamingManager> m_streamingManager;
};
