#include "engine/ffmpegcodecmap.h"

#include "engine/testpicture.h"

#include <cmath>

namespace {

enum class Family { X264, X265, Nvenc, Qsv, Amf, Mpeg2, Xdcam, Dv, Dnxhd, Mjpeg, ProRes, Wmv, Av1 };

struct VideoEntry {
    const char* name;
    const char* encoder;
    Family family;
    bool interlace;     // the encoder can write fields
    const char* muxers; // the muxers that take the codec, as tried with FFmpeg 5.1
};

const VideoEntry videoTable[] = {
    {"H.264", "libx264", Family::X264, true, "flv mp4 mov mpegts matroska avi rtsp"},
    {"H.264 NVENC", "h264_nvenc", Family::Nvenc, false, "flv mp4 mov mpegts matroska avi rtsp"},
    {"H.264 QSV", "h264_qsv", Family::Qsv, false, "flv mp4 mov mpegts matroska avi rtsp"},
    {"H.264 AMF", "h264_amf", Family::Amf, false, "flv mp4 mov mpegts matroska avi rtsp"},
    {"HEVC", "libx265", Family::X265, false, "mp4 mov mpegts matroska rtsp"},
    {"HEVC NVENC", "hevc_nvenc", Family::Nvenc, false, "mp4 mov mpegts matroska rtsp"},
    {"HEVC AMF", "hevc_amf", Family::Amf, false, "mp4 mov mpegts matroska rtsp"},
    {"MPEG-2", "mpeg2video", Family::Mpeg2, true, "mp4 mov mpegts mxf matroska avi"},
    {"DV25", "dvvideo", Family::Dv, true, "mov mxf avi"},
    {"WMV", "wmv2", Family::Wmv, false, "avi matroska"},
    {"DNxHD", "dnxhd", Family::Dnxhd, true, "mov mxf matroska avi"},
    {"MJPEG", "mjpeg", Family::Mjpeg, false, "mp4 mov matroska avi"},
    {"Apple ProRes", "prores_ks", Family::ProRes, true, "mov matroska"},
    {"XDCAM HD", "mpeg2video", Family::Xdcam, true, "mov mxf mpegts"},
    {"AV1", "libsvtav1", Family::Av1, false, "mp4 matroska"},
};

struct AudioEntry {
    const char* name;
    const char* encoder;
    const char* muxers;
};

const AudioEntry audioTable[] = {
    {"AAC", "aac", "flv mp4 mov mpegts matroska rtsp"},
    {"MP3", "libmp3lame", "flv mp4 mov mpegts matroska avi rtsp"},
    {"Opus", "libopus", "mp4 mpegts matroska rtsp"},
    {"AC3", "ac3", "mp4 mov mpegts matroska avi"},
    {"PCM", "pcm_s16le", "mov mxf matroska avi"},
};

const struct {
    const char* container;
    const char* muxer;
} containerTable[] = {
    {"flv", "flv"}, {"mp4", "mp4"}, {"mov", "mov"}, {"ts", "mpegts"},
    {"mxf", "mxf"}, {"mkv", "matroska"}, {"avi", "avi"},
};

const VideoEntry* videoEntry(const QString& name)
{
    for (const VideoEntry& entry : videoTable)
        if (name == QLatin1String(entry.name))
            return &entry;
    return nullptr;
}

const AudioEntry* audioEntry(const QString& name)
{
    for (const AudioEntry& entry : audioTable)
        if (name == QLatin1String(entry.name))
            return &entry;
    return nullptr;
}

bool takes(const char* muxers, const QString& muxer)
{
    return QString::fromLatin1(muxers).split(QLatin1Char(' ')).contains(muxer);
}

// What the operator calls the container: the file extension, or the stream's protocol.
QString containerText(const QString& muxer)
{
    for (const auto& c : containerTable)
        if (muxer == QLatin1String(c.muxer))
            return QString::fromLatin1(c.container).toUpper();
    if (muxer == QLatin1String("rtsp"))
        return QStringLiteral("RTSP");
    return muxer.toUpper();
}

QString kbps(int value)
{
    return QStringLiteral("%1k").arg(value);
}

const QStringList x264Presets{QStringLiteral("ultrafast"), QStringLiteral("superfast"), QStringLiteral("veryfast"),
                              QStringLiteral("faster"),    QStringLiteral("fast"),      QStringLiteral("medium"),
                              QStringLiteral("slow"),      QStringLiteral("slower"),    QStringLiteral("veryslow"),
                              QStringLiteral("placebo")};
const QStringList avcProfiles{QStringLiteral("baseline"), QStringLiteral("main"), QStringLiteral("high")};

bool isStandardMpegRate(double rate)
{
    for (double r : {23.976, 24.0, 25.0, 29.97, 30.0, 50.0, 59.94, 60.0})
        if (std::abs(rate - r) < 0.01)
            return true;
    return false;
}

} // namespace

QString FfmpegCodecMap::muxerOfContainer(const QString& container)
{
    const QString name = container.trimmed().toLower();
    for (const auto& c : containerTable)
        if (name == QLatin1String(c.container))
            return QString::fromLatin1(c.muxer);
    return QString();
}

bool FfmpegCodecMap::map(const CodecPreset& preset, const ProjectPreset& project, const QString& muxer,
                         const FfmpegCapabilities& caps, FfmpegEncoding* out, QString* refusal)
{
    *out = FfmpegEncoding();
    out->muxer = muxer;
    if (!preset.videoCodec().enabled && !preset.audioCodec().enabled) {
        *refusal = tr("\"%1\" has neither video nor audio to encode.").arg(preset.name());
        return false;
    }
    return mapVideo(preset, project, muxer, caps, out, refusal) && mapAudio(preset, project, muxer, caps, out, refusal);
}

bool FfmpegCodecMap::mapVideo(const CodecPreset& preset, const ProjectPreset& project, const QString& muxer,
                              const FfmpegCapabilities& caps, FfmpegEncoding* out, QString* refusal)
{
    const CodecModel::VideoCodec& v = preset.videoCodec();
    if (!v.enabled) {
        out->arguments << QStringLiteral("-vn");
        return true;
    }
    const VideoEntry* entry = videoEntry(v.codec);
    if (!entry) {
        *refusal = tr("The video codec \"%1\" is unknown to the engine.").arg(v.codec);
        return false;
    }
    QString encoder = QString::fromLatin1(entry->encoder);
    if (entry->family == Family::Av1 && !caps.hasEncoder(encoder))
        encoder = QStringLiteral("libaom-av1");
    if (!caps.hasEncoder(encoder)) {
        *refusal = tr("%1 needs the encoder %2, which the installed FFmpeg does not have.").arg(v.codec, encoder);
        return false;
    }
    if (!takes(entry->muxers, muxer)) {
        *refusal = tr("%1 video cannot be written into %2.").arg(v.codec, containerText(muxer));
        return false;
    }

    const ProjectPreset::VideoOutput& p = project.videoOutput();
    int width = v.width > 0 ? v.width : p.width;
    int height = v.height > 0 ? v.height : p.height;
    double rate = v.frameRate > 0 ? v.frameRate : TestPicture::frameRate(project);
    const bool interlaced = v.field != 0 || entry->family == Family::Dv;
    if (entry->family == Family::Dv) {
        // NTSC DV whatever the project is.
        width = 720;
        height = 480;
        rate = 30000.0 / 1001.0;
    }
    if (interlaced && !entry->interlace) {
        *refusal = tr("%1 cannot be written interlaced; choose a progressive frame rate.").arg(v.codec);
        return false;
    }
    if (width % 2 || height % 2) {
        *refusal = tr("The frame size %1x%2 is odd; %3 needs an even width and height.").arg(width).arg(height).arg(v.codec);
        return false;
    }
    if ((entry->family == Family::Mpeg2 || entry->family == Family::Xdcam) && !isStandardMpegRate(rate)) {
        *refusal = tr("MPEG-2 cannot run at %1 frames per second.").arg(rate, 0, 'g', 6);
        return false;
    }
    out->frameRate = rate;
    const QString rateText = TestPicture::rateText(rate);
    if (width != p.width || height != p.height)
        out->videoFilters << QStringLiteral("scale=%1:%2%3").arg(width).arg(height).arg(interlaced ? QStringLiteral(":interl=1") : QString());
    if (rateText != TestPicture::rateText(TestPicture::frameRate(project)))
        out->videoFilters << QStringLiteral("fps=%1").arg(rateText);
    if (interlaced)
        out->videoFilters << (entry->family == Family::Dv ? QStringLiteral("setfield=bff") : QStringLiteral("setfield=tff"));

    QStringList& a = out->arguments;
    a << QStringLiteral("-c:v") << encoder;
    const int gop = v.keyFrame > 0 ? qMax(1, static_cast<int>(std::lround(v.keyFrame * rate))) : 0;
    const auto longGop = [&](const QString& pixFmt) {
        a << QStringLiteral("-pix_fmt") << pixFmt;
        if (gop > 0)
            a << QStringLiteral("-g") << QString::number(gop);
        if (v.bitRate > 0)
            a << QStringLiteral("-b:v") << kbps(v.bitRate) << QStringLiteral("-maxrate") << kbps(v.bitRate)
              << QStringLiteral("-bufsize") << kbps(2 * v.bitRate);
    };
    const auto fields = [&](bool topFirst) {
        if (interlaced) {
            a << QStringLiteral("-flags") << QStringLiteral("+ildct+ilme") << QStringLiteral("-field_order")
              << (topFirst ? QStringLiteral("tt") : QStringLiteral("bb"));
        }
    };

    switch (entry->family) {
    case Family::X264:
    case Family::X265: {
        const bool x264 = entry->family == Family::X264;
        const QString presetName = v.preset.isEmpty() ? QStringLiteral("veryfast") : v.preset;
        if (!x264Presets.contains(presetName)) {
            *refusal = tr("%1 has no encoder preset \"%2\".").arg(v.codec, presetName);
            return false;
        }
        const QStringList tunes = x264
            ? QStringList{QStringLiteral("film"), QStringLiteral("animation"), QStringLiteral("grain"),
                          QStringLiteral("stillimage"), QStringLiteral("psnr"), QStringLiteral("ssim"),
                          QStringLiteral("fastdecode"), QStringLiteral("zerolatency")}
            : QStringList{QStringLiteral("animation"), QStringLiteral("grain"), QStringLiteral("psnr"),
                          QStringLiteral("ssim"), QStringLiteral("fastdecode"), QStringLiteral("zerolatency")};
        const bool noTune = v.tune.isEmpty() || v.tune == QLatin1String("none");
        if (!noTune && !tunes.contains(v.tune)) {
            *refusal = tr("%1 has no tune \"%2\"; choose another tune.").arg(v.codec, v.tune);
            return false;
        }
        if (x264 && (v.profile < 0 || v.profile >= avcProfiles.size())) {
            *refusal = tr("%1 has no profile number %2.").arg(v.codec).arg(v.profile);
            return false;
        }
        const bool baseline = x264 && v.profile == 0;
        if (baseline && interlaced) {
            *refusal = tr("The H.264 baseline profile cannot be interlaced; choose main or high.");
            return false;
        }
        longGop(QStringLiteral("yuv420p"));
        a << QStringLiteral("-preset") << presetName;
        if (!noTune)
            a << QStringLiteral("-tune") << v.tune;
        a << QStringLiteral("-profile:v") << (x264 ? avcProfiles.at(v.profile) : QStringLiteral("main"));
        a << QStringLiteral("-bf") << QString::number(baseline ? 0 : qBound(0, v.bframes, 16));
        if (!x264)
            a << QStringLiteral("-x265-params") << QStringLiteral("log-level=error");
        fields(true);
        break;
    }
    case Family::Nvenc: {
        const bool hevc = encoder.startsWith(QLatin1String("hevc"));
        const QStringList profiles = hevc ? QStringList{QStringLiteral("main"), QStringLiteral("main10")} : avcProfiles;
        if (v.profile < 0 || v.profile >= profiles.size()) {
            *refusal = tr("%1 has no profile number %2.").arg(v.codec).arg(v.profile);
            return false;
        }
        const QHash<QString, QString> presets{{QString(), QStringLiteral("default")},
                                              {QStringLiteral("default"), QStringLiteral("default")},
                                              {QStringLiteral("High Quality"), QStringLiteral("hq")},
                                              {QStringLiteral("High Performance"), QStringLiteral("hp")},
                                              // as the ISO dialog stores them
                                              {QStringLiteral("hq"), QStringLiteral("hq")},
                                              {QStringLiteral("hp"), QStringLiteral("hp")},
                                              {QStringLiteral("lowLatencyHQ"), QStringLiteral("llhq")},
                                              {QStringLiteral("lowLatencyHP"), QStringLiteral("llhp")}};
        if (!presets.contains(v.preset)) {
            *refusal = tr("%1 has no encoder preset \"%2\".").arg(v.codec, v.preset);
            return false;
        }
        const bool tenBit = hevc && v.profile == 1;
        longGop(tenBit ? QStringLiteral("p010le") : QStringLiteral("yuv420p"));
        a << QStringLiteral("-preset") << presets.value(v.preset) << QStringLiteral("-profile:v") << profiles.at(v.profile)
          << QStringLiteral("-bf") << QString::number(qBound(0, v.bframes, 4));
        out->needsTrial = true;
        break;
    }
    case Family::Qsv:
        longGop(QStringLiteral("nv12"));
        a << QStringLiteral("-bf") << QString::number(qBound(0, v.bframes, 16));
        out->needsTrial = true;
        break;
    case Family::Amf: {
        const QString quality = v.preset.isEmpty() ? QStringLiteral("balanced") : v.preset.toLower();
        if (!QStringList{QStringLiteral("balanced"), QStringLiteral("speed"), QStringLiteral("quality")}.contains(quality)) {
            *refusal = tr("%1 has no encoder preset \"%2\".").arg(v.codec, v.preset);
            return false;
        }
        longGop(QStringLiteral("yuv420p"));
        a << QStringLiteral("-quality") << quality;
        out->needsTrial = true;
        break;
    }
    case Family::Mpeg2:
        a << QStringLiteral("-pix_fmt") << QStringLiteral("yuv420p");
        if (gop > 0)
            a << QStringLiteral("-g") << QString::number(gop);
        if (v.bitRate > 0)
            a << QStringLiteral("-b:v") << kbps(v.bitRate) << QStringLiteral("-maxrate") << kbps(v.bitRate * 3 / 2)
              << QStringLiteral("-bufsize") << kbps(qMin(v.bitRate, 9000));
        a << QStringLiteral("-bf") << QString::number(qBound(0, v.bframes, 2));
        fields(true);
        out->needsTrial = muxer == QLatin1String("mxf");
        break;
    case Family::Xdcam: {
        // The format's own GOP and rate control; 50 Mbps is 4:2:2, 35 Mbps 4:2:0.
        const int rate = v.bitRate > 0 ? v.bitRate : 50000;
        a << QStringLiteral("-pix_fmt") << (rate >= 50000 ? QStringLiteral("yuv422p") : QStringLiteral("yuv420p"))
          << QStringLiteral("-b:v") << kbps(rate) << QStringLiteral("-minrate") << kbps(rate) << QStringLiteral("-maxrate")
          << kbps(rate) << QStringLiteral("-bufsize") << QStringLiteral("17825792") << QStringLiteral("-g")
          << QString::number(std::abs(out->frameRate - 25) < 0.1 || std::abs(out->frameRate - 50) < 0.1 ? 12 : 15)
          << QStringLiteral("-bf") << QStringLiteral("2") << QStringLiteral("-intra_vlc") << QStringLiteral("1")
          << QStringLiteral("-non_linear_quant") << QStringLiteral("1") << QStringLiteral("-dc") << QStringLiteral("10")
          << QStringLiteral("-qmin") << QStringLiteral("1") << QStringLiteral("-qmax") << QStringLiteral("28");
        fields(true);
        out->needsTrial = muxer == QLatin1String("mxf");
        break;
    }
    case Family::Dv:
        a << QStringLiteral("-pix_fmt") << QStringLiteral("yuv411p");
        fields(false);
        break;
    case Family::Dnxhd:
        if (!((width == 1920 && height == 1080) || (width == 1280 && height == 720))) {
            *refusal = tr("DNxHD is written at 1920x1080 or 1280x720 only, not %1x%2.").arg(width).arg(height);
            return false;
        }
        a << QStringLiteral("-pix_fmt") << QStringLiteral("yuv422p") << QStringLiteral("-b:v")
          << QStringLiteral("%1M").arg(v.bitRate / 1000);
        if (interlaced)
            a << QStringLiteral("-flags") << QStringLiteral("+ildct") << QStringLiteral("-field_order") << QStringLiteral("tt");
        // Only some rates pair with a size and frame rate: the encoder's own table decides.
        out->needsTrial = true;
        break;
    case Family::Mjpeg:
        a << QStringLiteral("-pix_fmt") << QStringLiteral("yuvj420p");
        if (v.bitRate > 0)
            a << QStringLiteral("-b:v") << kbps(v.bitRate);
        break;
    case Family::ProRes: {
        if (v.quality < 0 || v.quality > 5) {
            *refusal = tr("Apple ProRes has no profile number %1.").arg(v.quality);
            return false;
        }
        const bool alpha = v.quality >= 4; // 4444 and XQ
        a << QStringLiteral("-profile:v") << QString::number(v.quality) << QStringLiteral("-pix_fmt")
          << (alpha ? QStringLiteral("yuva444p10le") : QStringLiteral("yuv422p10le")) << QStringLiteral("-vendor")
          << QStringLiteral("apl0");
        if (interlaced)
            a << QStringLiteral("-flags") << QStringLiteral("+ildct") << QStringLiteral("-field_order") << QStringLiteral("tt");
        break;
    }
    case Family::Wmv:
        longGop(QStringLiteral("yuv420p"));
        break;
    case Family::Av1:
        a << QStringLiteral("-pix_fmt") << QStringLiteral("yuv420p");
        if (gop > 0)
            a << QStringLiteral("-g") << QString::number(gop);
        if (v.bitRate > 0)
            a << QStringLiteral("-b:v") << kbps(v.bitRate);
        if (encoder == QLatin1String("libsvtav1"))
            a << QStringLiteral("-preset") << QStringLiteral("10");
        else
            a << QStringLiteral("-cpu-used") << QStringLiteral("8") << QStringLiteral("-usage") << QStringLiteral("realtime")
              << QStringLiteral("-row-mt") << QStringLiteral("1");
        break;
    }
    if (muxer == QLatin1String("mxf"))
        out->needsTrial = true;
    return true;
}

bool FfmpegCodecMap::mapAudio(const CodecPreset& preset, const ProjectPreset& project, const QString& muxer,
                              const FfmpegCapabilities& caps, FfmpegEncoding* out, QString* refusal)
{
    const CodecModel::AudioCodec& au = preset.audioCodec();
    QStringList& a = out->arguments;
    if (!au.enabled) {
        a << QStringLiteral("-an");
        return true;
    }
    const AudioEntry* entry = audioEntry(au.codec);
    if (!entry) {
        *refusal = tr("The audio codec \"%1\" is unknown to the engine.").arg(au.codec);
        return false;
    }
    QString encoder = QString::fromLatin1(entry->encoder);
    if (encoder == QLatin1String("pcm_s16le") && au.bitPerSamples > 16)
        encoder = au.bitPerSamples > 24 ? QStringLiteral("pcm_s32le") : QStringLiteral("pcm_s24le");
    if (!caps.hasEncoder(encoder)) {
        *refusal = tr("%1 needs the encoder %2, which the installed FFmpeg does not have.").arg(au.codec, encoder);
        return false;
    }
    if (!takes(entry->muxers, muxer)) {
        *refusal = tr("%1 audio cannot be written into %2.").arg(au.codec, containerText(muxer));
        return false;
    }
    const int rate = au.sampleRate > 0 ? au.sampleRate : project.audioOutput().sampleRate;
    const int channels = au.channels > 0 ? au.channels : project.audioOutput().channels;
    const auto refuseRate = [&](const QString& allowed) {
        *refusal = tr("%1 in %2 cannot run at %3 Hz; it takes %4.").arg(au.codec, containerText(muxer)).arg(rate).arg(allowed);
        return false;
    };
    if (au.codec == QLatin1String("Opus") && rate != 48000)
        return refuseRate(QStringLiteral("48000 Hz"));
    if (au.codec == QLatin1String("AC3") && rate != 48000 && rate != 44100 && rate != 32000)
        return refuseRate(QStringLiteral("48000, 44100 or 32000 Hz"));
    if (au.codec == QLatin1String("MP3") && muxer == QLatin1String("flv") && rate != 44100 && rate != 22050)
        return refuseRate(QStringLiteral("44100 or 22050 Hz"));
    if (muxer == QLatin1String("mxf") && rate != 48000)
        return refuseRate(QStringLiteral("48000 Hz"));
    a << QStringLiteral("-c:a") << encoder << QStringLiteral("-ar") << QString::number(rate) << QStringLiteral("-ac")
      << QString::number(channels);
    if (!encoder.startsWith(QLatin1String("pcm_")) && au.bitRate > 0)
        a << QStringLiteral("-b:a") << kbps(au.bitRate);
    return true;
}
