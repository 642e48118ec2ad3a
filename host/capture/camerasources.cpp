#include "capture/camerasources.h"

CameraSources::CameraSources(const QList<VideoDevice>& devices, const ProjectPreset& project)
{
    for (const VideoDevice& device : devices) {
        if (!device.canCapture())
            continue;
        const QString name = tr("CAM %1").arg(m_names.size() + 1);
        m_names.append(name);
        m_media.push_back(std::make_unique<Media>(MediaPreset(name, description(device, project))));
    }
}

QList<QPair<QString, Media*>> CameraSources::sources() const
{
    QList<QPair<QString, Media*>> list;
    for (int i = 0; i < count(); ++i)
        list.append({m_names.at(i), m_media.at(size_t(i)).get()});
    return list;
}

int CameraSources::indexOf(const Media* media) const
{
    for (int i = 0; i < count(); ++i)
        if (m_media.at(size_t(i)).get() == media)
            return i;
    return -1;
}

QString CameraSources::description(const VideoDevice& device, const ProjectPreset& project)
{
    const ProjectPreset::VideoOutput& v = project.videoOutput();
    return QStringLiteral("%1 %2x%3 %4%5")
        .arg(device.name())
        .arg(v.width)
        .arg(v.height)
        .arg(v.frameRate, 0, 'g', 6)
        .arg(v.interlaced ? QLatin1Char('i') : QLatin1Char('p'));
}
