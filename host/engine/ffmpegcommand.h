#pragma once

#include "engine/ffmpegcapabilities.h"
#include "host_export.h"
#include "records/codecpreset.h"
#include "records/projectpreset.h"

#include <QCoreApplication>
#include <QStringList>

// One FFmpeg run: its arguments and what the console says about it.
struct FfmpegJob {
    QStringList arguments;
    QString target;            // the file, or the URL without its secrets
    QStringList secrets;       // masked in every line shown
    QString file;              // a recording's (first) file
    QString splitFirst;        // a split recording's first file as FFmpeg names it; renamed to file
    bool network = false;
    QStringList trialArguments; // one frame of the same encoding; empty when none is needed
};

// The argument lists of the engine's FFmpeg runs. Arguments go to the program as a list:
// no shell ever reads them.
class HOST_EXPORT FfmpegCommand
{
    Q_DECLARE_TR_FUNCTIONS(FfmpegCommand)

public:
    // A recording into file (its folder exists); split recordings number their later files.
    static bool recording(const CodecPreset& preset, const ProjectPreset& project, const FfmpegCapabilities& caps,
                          const QString& file, FfmpegJob* job, QString* refusal);
    static bool stream(const CodecPreset& preset, const ProjectPreset& project, const FfmpegCapabilities& caps,
                       FfmpegJob* job, QString* refusal);
    static bool grab(int source, const ProjectPreset& project, const QString& path, QStringList* arguments,
                     QString* refusal);
    // Why FFmpeg ended, from what it wrote to stderr: its last line, or, when that is only its
    // summary of a failed start, the first line, in which the encoder or muxer said what it
    // disliked. Without the "[component @ address]" prefix. Empty when it wrote nothing.
    static QString errorReason(const QByteArray& errors);
    // The file FFmpeg writes first for a split recording of file ("name 1.mp4" for "name.mp4").
    static QString splitFileName(const QString& file, int number);

private:
    static QStringList programme(const CodecPreset& preset, const ProjectPreset& project, bool realTime);
};
