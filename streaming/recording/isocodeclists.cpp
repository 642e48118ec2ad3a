#include "recording/isocodeclists.h"

#include "codec/codectables.h"

#include <QComboBox>
#include <QIntValidator>
#include <QLabel>

namespace {

struct NamedData {
    const char* text;
    const char* data;
};

const NamedData nvencPresets[] = {
    {QT_TRANSLATE_NOOP("IsoCorderSetup", "Default"), "default"},
    {QT_TRANSLATE_NOOP("IsoCorderSetup", "High Quality"), "hq"},
    {QT_TRANSLATE_NOOP("IsoCorderSetup", "High Performance"), "hp"},
    {QT_TRANSLATE_NOOP("IsoCorderSetup", "Low-Latency High Quality"), "lowLatencyHQ"},
    {QT_TRANSLATE_NOOP("IsoCorderSetup", "Low-Latency High Performance"), "lowLatencyHP"},
};

const QList<int> sampleRates{48000, 44100, 32000, 24000, 22050, 16000};
const QList<int> audioBitrates{320, 256, 224, 192, 160, 128, 112, 96, 80, 64, 56, 48, 40, 32};
const QList<int> mjpegBitrates{25000, 50000, 75000, 100000, 125000, 150000};
const QList<int> videoBitrates{1000, 1500, 2000, 2500, 3000, 4000, 5000, 6000, 7000, 8000, 9000, 12000, 15000, 20000};

void fillTexts(QComboBox* list, const QStringList& texts, const QString& initial)
{
    list->clear();
    for (const QString& text : texts)
        list->addItem(text, text);
    list->setCurrentIndex(qMax(0, list->findData(initial)));
}

} // namespace

void IsoCodecLists::fillKeyFrames(QComboBox* list)
{
    list->clear();
    for (int seconds = 1; seconds <= 10; ++seconds)
        list->addItem(tr("%1 sec").arg(seconds), seconds);
    list->setCurrentIndex(list->findData(2));
}

void IsoCodecLists::fillNvencPresets(QComboBox* list)
{
    list->clear();
    for (const NamedData& preset : nvencPresets)
        list->addItem(tr(preset.text), QString::fromLatin1(preset.data));
    list->setCurrentIndex(0);
}

void IsoCodecLists::fillAmfPresets(QComboBox* list)
{
    fillTexts(list, CodecTables::amfPresets(), QStringLiteral("Balanced"));
}

void IsoCodecLists::fillX264Presets(QComboBox* list)
{
    fillTexts(list, CodecTables::x264Presets(), QStringLiteral("ultrafast"));
}

void IsoCodecLists::fillX264Tunes(QComboBox* list)
{
    fillTexts(list, CodecTables::x264Tunes(), QStringLiteral("none"));
}

void IsoCodecLists::fillProfiles(QComboBox* list, const QStringList& names)
{
    QStringList current;
    for (int i = 0; i < list->count(); ++i)
        current.append(list->itemText(i));
    if (current != names)
        fillTexts(list, names, QStringLiteral("main"));
}

void IsoCodecLists::fillNvencBframes(QComboBox* list)
{
    list->clear();
    for (int frames = 0; frames <= 4; ++frames)
        list->addItem(QString::number(frames), frames);
    list->setCurrentIndex(list->findData(CodecTables::defaultNvencBframes()));
}

void IsoCodecLists::fillChannels(QComboBox* list)
{
    list->clear();
    for (int channels : CodecTables::channelCounts())
        list->addItem(tr(channels == 2 ? QT_TRANSLATE_NOOP("IsoCorderSetup", "Stereo")
                                       : QT_TRANSLATE_NOOP("IsoCorderSetup", "Mono")),
                      channels);
    list->setCurrentIndex(0);
}

void IsoCodecLists::fillSampleRates(QComboBox* list)
{
    list->clear();
    for (int hz : sampleRates)
        list->addItem(tr("%1 kHz").arg(hz / 1000.0, 0, 'g', 4), hz);
    list->setCurrentIndex(list->findData(48000));
}

void IsoCodecLists::fillAudioBitrates(QComboBox* list)
{
    list->clear();
    for (int kbps : audioBitrates)
        list->addItem(tr("%1 kbps").arg(kbps), kbps);
    list->setCurrentIndex(list->findData(192));
}

IsoCodecLists::BitrateRange IsoCodecLists::fillVideoBitrates(QComboBox* list, QLabel* label, int codecBit)
{
    list->clear();
    list->setEditable(codecBit != ProResBit);
    if (codecBit == ProResBit) {
        label->setText(tr("Quality:"));
        for (int i = 0; i < proResQualities().size(); ++i)
            list->addItem(proResQualities().at(i), i);
        list->setCurrentIndex(1); // LT
        return {};
    }
    label->setText(tr("Bitrate(kbps):"));
    const bool mjpeg = codecBit == MjpegBit;
    const BitrateRange range = mjpeg ? BitrateRange{1000, 999999} : BitrateRange{100, 99999};
    for (int kbps : mjpeg ? mjpegBitrates : videoBitrates)
        list->addItem(QString::number(kbps), kbps);
    // One validator per list, kept across codec changes.
    auto* validator = list->findChild<QIntValidator*>(QString(), Qt::FindDirectChildrenOnly);
    if (!validator)
        validator = new QIntValidator(list);
    validator->setRange(range.minimum, range.maximum);
    list->setInsertPolicy(QComboBox::NoInsert);
    list->setValidator(validator);
    list->setCurrentIndex(list->findData(mjpeg ? 75000 : 8000));
    return range;
}

const QStringList& IsoCodecLists::profiles()
{
    return CodecTables::x264Profiles();
}

const QStringList& IsoCodecLists::proResQualities()
{
    static const QStringList qualities{QStringLiteral("PROXY"), QStringLiteral("LT"), QStringLiteral("STANDARD"),
                                       QStringLiteral("HQ")};
    return qualities;
}
