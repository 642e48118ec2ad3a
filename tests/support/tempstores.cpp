#include "support/tempstores.h"

#include <QDir>
#include <QFile>

namespace {

QString writeFile(const QString& dir, const QString& fileName, const QByteArray& contents)
{
    const QString path = dir + QLatin1Char('/') + fileName;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qWarning("TempStores: cannot write %s", qPrintable(path));
    return path;
}

} // namespace

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

QString TempStores::root() const
{
    return m_dir.path();
}

QString TempStores::codecDir() const
{
    return settings().codecPresetPath();
}

QString TempStores::serverDir() const
{
    return settings().serverPresetPath();
}

ContentsSettings TempStores::settings() const
{
    return ContentsSettings::underDirectory(m_dir.path());
}

QString TempStores::writeCodecFile(const QString& fileName, const QByteArray& contents) const
{
    return writeFile(codecDir(), fileName, contents);
}

QString TempStores::writeServerFile(const QString& fileName, const QByteArray& contents) const
{
    return writeFile(serverDir(), fileName, contents);
}
