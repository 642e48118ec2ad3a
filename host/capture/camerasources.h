#pragma once

#include "capture/videodevice.h"
#include "host_export.h"
#include "records/media.h"
#include "records/projectpreset.h"

#include <QCoreApplication>
#include <QList>
#include <QPair>
#include <QString>

#include <memory>
#include <vector>

// The switcher's camera inputs: one per device that captures, named "CAM 1", "CAM 2", ...
// in device order, each a Media whose video device description names the device and the
// format it captures (the project's, as the stand-in's cards run at it).
class HOST_EXPORT CameraSources
{
    Q_DECLARE_TR_FUNCTIONS(CameraSources)

public:
    CameraSources(const QList<VideoDevice>& devices, const ProjectPreset& project);
    CameraSources(const CameraSources&) = delete;
    CameraSources& operator=(const CameraSources&) = delete;

    int count() const { return int(m_media.size()); }
    // Name and media of each camera, in order; the media stay this object's.
    QList<QPair<QString, Media*>> sources() const;
    // The camera index of a media of this list; -1 for any other.
    int indexOf(const Media* media) const;

    // "SDI HD Port 1 1920x1080 59.94i": device, size, and rate with its scan.
    static QString description(const VideoDevice& device, const ProjectPreset& project);

private:
    QList<QString> m_names;
    std::vector<std::unique_ptr<Media>> m_media;
};
