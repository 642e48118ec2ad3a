#pragma once

#include <QCoreApplication>
#include <QStringList>

class QComboBox;
class QLabel;

// The fixed choices of the ISO dialog's shared codec (texts in the context "IsoCorderSetup").
// Each list's item data is what the preset stores.
class IsoCodecLists
{
    Q_DECLARE_TR_FUNCTIONS(IsoCorderSetup)

public:
    enum CodecBit { MjpegBit = 0x800, ProResBit = 0x1000 };

    // What the operator may type as a video bit rate; both 0 where the list picks a quality.
    struct BitrateRange {
        int minimum = 0;
        int maximum = 0;
    };

    static void fillKeyFrames(QComboBox* list);
    static void fillNvencPresets(QComboBox* list);
    static void fillAmfPresets(QComboBox* list);
    static void fillX264Presets(QComboBox* list);
    static void fillX264Tunes(QComboBox* list);
    // Refills a profile list unless it already holds exactly these names; "main" is the initial choice.
    static void fillProfiles(QComboBox* list, const QStringList& profiles);
    static void fillNvencBframes(QComboBox* list);
    static void fillChannels(QComboBox* list);
    static void fillSampleRates(QComboBox* list);
    static void fillAudioBitrates(QComboBox* list);
    // The bit-rate list (or, for Apple ProRes, the quality list) of a video codec bit, with its label.
    static BitrateRange fillVideoBitrates(QComboBox* list, QLabel* label, int codecBit);

    static const QStringList& profiles();
    static const QStringList& proResQualities();
};
