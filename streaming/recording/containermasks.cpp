#include "recording/containermasks.h"

namespace {

struct ContainerRule {
    int id;
    int videoMask;     // used as it stands unless xorAvailable
    bool xorAvailable; // the licence's available mask XOR videoMask
    int audioMask;
};
const ContainerRule containerRules[] = {
    {1, 0x407F, false, 1},
    {2, 0x2580, true, 19},
    {64, 0x3600, true, 19},
    {128, 0x800, false, 16},
};

} // namespace

bool ContainerMasks::forContainer(int id, int availableVideoMask, int* videoMask, int* audioMask)
{
    for (const ContainerRule& rule : containerRules) {
        if (rule.id != id)
            continue;
        *videoMask = rule.xorAvailable ? availableVideoMask ^ rule.videoMask : rule.videoMask;
        *audioMask = rule.audioMask;
        return true;
    }
    return false;
}
