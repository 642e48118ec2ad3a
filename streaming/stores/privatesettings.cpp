#include "stores/privatesettings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

PrivateSettings::PrivateSettings()
{
#if defined(Q_OS_WIN) || defined(Q_OS_DARWIN)
    if (format() == QSettings::NativeFormat)
        return; // the registry or a property list kept by the system
#endif
    restrict(fileName());
}

void PrivateSettings::restrict(const QString& fileName)
{
    const QFileDevice::Permissions ownerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
    const QFileInfo info(fileName);
    if (info.exists()) {
        const QFileDevice::Permissions others = QFileDevice::ReadGroup | QFileDevice::WriteGroup
            | QFileDevice::ExeGroup | QFileDevice::ReadOther | QFileDevice::WriteOther | QFileDevice::ExeOther;
        if (info.permissions() & others)
            QFile::setPermissions(fileName, ownerOnly);
        return;
    }
    const QString directory = info.absolutePath();
    if (!QDir(directory).exists() && QDir().mkpath(directory))
        QFile::setPermissions(directory, ownerOnly | QFileDevice::ExeOwner);
#ifdef Q_OS_UNIX
    // Created with the mode, never readable by others even for a moment.
    const int fd = ::open(QFile::encodeName(fileName).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (fd >= 0)
        ::close(fd);
#else
    QFile file(fileName);
    if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        file.setPermissions(ownerOnly);
#endif
}
