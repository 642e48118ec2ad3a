#pragma once

#include "host_export.h"
#include "records/projectpreset.h"

#include <QCoreApplication>
#include <QImage>
#include <QList>
#include <QString>

// The reference host's programme: a test picture with a running clock and a tone, at the
// project's size, rate and sample rate. Encoders get it as an FFmpeg filter graph; the
// stand-in engine draws the same picture itself for stills.
class HOST_EXPORT TestPicture
{
    Q_DECLARE_TR_FUNCTIONS(TestPicture)

public:
    // Video source types of the outputs' source maps.
    enum SourceType { Camera = 1, Programme = 7, CleanProgramme = 8, Preview = 10, BusA = 17, BusB = 18 };
    // Still sources of the grab: programme, clean programme, preview, clean preview.
    enum GrabSource { GrabProgramme = 0, GrabCleanProgramme = 1, GrabPreview = 2, GrabCleanPreview = 3 };

    // A graph for FFmpeg's lavfi device: [out0] the picture of the video source, [out1] the
    // mixed tones of the audio sources (absent without audio). Clean sources carry no clock.
    static QString graph(const ProjectPreset& project, int videoSource, const QList<int>& audioSources,
                         bool withAudio);
    // A camera's own picture for its ISO recording: the pattern in a hue of its own, labelled
    // with its name ("CAM <index + 1>" without one).
    static QString cameraGraph(const ProjectPreset& project, int index, const QString& name,
                               const QList<int>& audioSources, bool withAudio);
    static QString grabGraph(const ProjectPreset& project, int grabSource);
    // Frames per second of the project's video (an interlaced project's rate is a field rate).
    static double frameRate(const ProjectPreset& project);
    // A rate as FFmpeg reads it exactly: 29.97 is 30000/1001.
    static QString rateText(double rate);
    // The stand-in's still: the same pattern family, drawn with QPainter.
    static QImage still(const ProjectPreset& project, int grabSource);
    // Tone of an audio source, in Hz.
    static int toneOf(int audioSource);

private:
    // hue: degrees to turn the pattern's colours by, none when negative.
    static QString videoGraph(const ProjectPreset& project, bool bars, const QString& label, int hue = -1);
    static QString audioGraph(const ProjectPreset& project, const QList<int>& audioSources);
};
