#include "engine/testpicture.h"

#include <QDateTime>
#include <QPainter>

#include <cmath>

double TestPicture::frameRate(const ProjectPreset& project)
{
    const ProjectPreset::VideoOutput& v = project.videoOutput();
    return v.frameRate * (v.interlaced ? 0.5 : 1.0);
}

QString TestPicture::rateText(double rate)
{
    if (rate <= 0)
        return QStringLiteral("25");
    const double rounded = std::round(rate);
    if (std::abs(rate - rounded) < 1e-6)
        return QString::number(static_cast<int>(rounded));
    // The NTSC family: n * 1000/1001.
    const double ntsc = rate * 1.001;
    if (std::abs(ntsc - std::round(ntsc)) < 0.002)
        return QStringLiteral("%1/1001").arg(static_cast<int>(std::round(ntsc)) * 1000);
    return QStringLiteral("%1/1000").arg(static_cast<int>(std::round(rate * 1000)));
}

int TestPicture::toneOf(int audioSource)
{
    switch (audioSource) {
    case BusA:
        return 440;
    case BusB:
        return 660;
    default:
        return 1000;
    }
}

QString TestPicture::videoGraph(const ProjectPreset& project, bool bars, const QString& label, int hue)
{
    const ProjectPreset::VideoOutput& v = project.videoOutput();
    QString graph = QStringLiteral("%1=size=%2x%3:rate=%4")
                        .arg(bars ? QStringLiteral("smptehdbars") : QStringLiteral("testsrc2"))
                        .arg(v.width)
                        .arg(v.height)
                        .arg(rateText(frameRate(project)));
    if (hue >= 0)
        graph += QStringLiteral(",hue=h=%1").arg(hue);
    if (!label.isEmpty()) {
        // The clock is drawn per frame by FFmpeg; no shell sees this text, only FFmpeg's parser.
        graph += QStringLiteral(",drawtext=text='%1 %{localtime\\:%T}':fontsize=%2:fontcolor=white"
                                ":box=1:boxcolor=black@0.6:boxborderw=8:x=(w-tw)/2:y=h-th-%3")
                     .arg(label)
                     .arg(qMax(12, v.height / 12))
                     .arg(qMax(4, v.height / 20));
    }
    return graph;
}

QString TestPicture::graph(const ProjectPreset& project, int videoSource, const QList<int>& audioSources,
                           bool withAudio)
{
    const bool preview = videoSource == Preview;
    const bool clean = videoSource == CleanProgramme;
    QString graph = videoGraph(project, preview, clean ? QString() : (preview ? QStringLiteral("PVW")
                                                                              : QStringLiteral("PGM")));
    graph += QStringLiteral("[out0]");
    return withAudio ? graph + audioGraph(project, audioSources) : graph;
}

QString TestPicture::cameraGraph(const ProjectPreset& project, int index, const QString& name,
                                 const QList<int>& audioSources, bool withAudio)
{
    // Only plain characters reach FFmpeg's filter parser, which gives ' : , ; [ ] \ a meaning.
    QString label;
    for (const QChar c : name.isEmpty() ? QStringLiteral("CAM %1").arg(qMax(0, index) + 1) : name)
        label += c.isLetterOrNumber() || QStringLiteral(" -_.()#").contains(c) ? c : QLatin1Char(' ');
    // Each camera in a hue of its own, so the files tell apart at a glance.
    QString graph = videoGraph(project, false, label.trimmed(), (qMax(0, index) * 67) % 360) + QStringLiteral("[out0]");
    return withAudio ? graph + audioGraph(project, audioSources) : graph;
}

QString TestPicture::audioGraph(const ProjectPreset& project, const QList<int>& audioSources)
{
    QString graph;
    QList<int> tones;
    for (int source : audioSources)
        if (!tones.contains(toneOf(source)))
            tones.append(toneOf(source));
    if (tones.isEmpty())
        tones.append(toneOf(Programme));
    const int rate = project.audioOutput().sampleRate;
    const int channels = project.audioOutput().channels;
    const QString layout = channels == 1 ? QStringLiteral("mono")
                         : channels == 6 ? QStringLiteral("5.1")
                         : channels == 8 ? QStringLiteral("7.1")
                         : channels == 2 ? QStringLiteral("stereo")
                                         : QStringLiteral("%1c").arg(channels);
    QString mix;
    for (int i = 0; i < tones.size(); ++i) {
        graph += QStringLiteral(";sine=frequency=%1:sample_rate=%2[t%3]").arg(tones.at(i)).arg(rate).arg(i);
        mix += QStringLiteral("[t%1]").arg(i);
    }
    if (tones.size() > 1)
        mix += QStringLiteral("amix=inputs=%1,").arg(tones.size());
    else
        mix += QStringLiteral("anull,");
    graph += QStringLiteral(";%1aformat=sample_rates=%2:channel_layouts=%3[out1]").arg(mix).arg(rate).arg(layout);
    return graph;
}

QString TestPicture::grabGraph(const ProjectPreset& project, int grabSource)
{
    switch (grabSource) {
    case GrabCleanProgramme:
        return videoGraph(project, false, QString()) + QStringLiteral("[out0]");
    case GrabPreview:
        return videoGraph(project, true, QStringLiteral("PVW")) + QStringLiteral("[out0]");
    case GrabCleanPreview:
        return videoGraph(project, true, QString()) + QStringLiteral("[out0]");
    default:
        return videoGraph(project, false, QStringLiteral("PGM")) + QStringLiteral("[out0]");
    }
}

QImage TestPicture::still(const ProjectPreset& project, int grabSource)
{
    const ProjectPreset::VideoOutput& v = project.videoOutput();
    QImage image(v.width, v.height, QImage::Format_RGB32);
    QPainter painter(&image);
    const bool preview = grabSource == GrabPreview || grabSource == GrabCleanPreview;
    const QList<QColor> colours = preview
        ? QList<QColor>{Qt::lightGray, Qt::yellow, Qt::cyan, Qt::green, Qt::magenta, Qt::red, Qt::blue}
        : QList<QColor>{Qt::red, Qt::green, Qt::yellow, Qt::blue, Qt::magenta, Qt::cyan};
    const int bar = (v.width + colours.size() - 1) / colours.size();
    for (int i = 0; i < colours.size(); ++i)
        painter.fillRect(i * bar, 0, bar, v.height, colours.at(i));
    if (grabSource == GrabProgramme || grabSource == GrabPreview) {
        const QString text = QStringLiteral("%1 %2").arg(preview ? QStringLiteral("PVW") : QStringLiteral("PGM"),
                                                         QTime::currentTime().toString(QStringLiteral("HH:mm:ss")));
        QFont font = painter.font();
        font.setPixelSize(qMax(12, v.height / 12));
        painter.setFont(font);
        const QRect box(0, v.height - v.height / 5, v.width, v.height / 8);
        painter.fillRect(box, QColor(0, 0, 0, 150));
        painter.setPen(Qt::white);
        painter.drawText(box, Qt::AlignCenter, text);
    }
    return image;
}
