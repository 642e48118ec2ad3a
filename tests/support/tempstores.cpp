#include "support/tempstores.h"

#include <QDir>

TempStores::TempStores(const LicenseModel& license)
{
    QDir().mkpath(codecDir());
    QDir().mkpath(serverDir());
    m_codecManager = std::make_unique<CodecManager>(settings());
    m_streamingManager = std::make_unique<StreamingManager>(settings(), license);
}

TempStores::~TempStores()
{
    m_streamingManager.reset();
    m_codecManager.reset();
}

bool TempStores::isValid() const
{
    return m_dir.isValid() && QDir(codecDir()).exists() && QDir(serverDir()).exists();
}
