#pragma once

#include "engine/ffmpegcapabilities.h"
#include "host_export.h"
#include "records/codecpreset.h"
#include "records/projectpreset.h"

#include <QCoreApplication>
#include <QStringList>

// How one output encodes, as FFmpeg arguments.
struct FfmpegEncoding {
    QStringList videoFilters; // applied to the programme picture
    QStringList arguments;    // encoders and their options
    QString muxer;
    double frameRate = 0.0;   // frames per second written
    // Parameters only the encoder can judge (hardware, DNxHD's rate tables, MXF): the backend
    // tries them on one frame before it starts the output.
    bool needsTrial = false;
};

// The codec, container and option names of the presets, mapped to FFmpeg's encoders; a
// preset the installed encoders cannot write is refused with a sentence for the operator.
class HOST_EXPORT FfmpegCodecMap
{
    Q_DECLARE_TR_FUNCTIONS(FfmpegCodecMap)

public:
    // The muxer of a container name ("mkv" is "matroska"); empty for an unknown name.
    static QString muxerOfContainer(const QString& container);
    static bool map(const CodecPreset& preset, const ProjectPreset& project, const QString& muxer,
                    const FfmpegCapabilities& caps, FfmpegEncoding* out, QString* refusal);

private:
    static bool mapVideo(const CodecPreset& preset, const ProjectPreset& project, const QString& muxer,
                         const FfmpegCapabilities& caps, FfmpegEncoding* out, QString* refusal);
    static bool mapAudio(const CodecPreset& preset, const ProjectPreset& project, const QString& muxer,
                         const FfmpegCapabilities& caps, FfmpegEncoding* out, QString* refusal);
};
