#pragma once

// What each container can hold, as video and audio codec bits. The recording and ISO
// dialogs restrict their codec choices with it.
class ContainerMasks
{
public:
    // Sets the masks of container `id` (with the licence's available video mask where the
    // rule derives from it) and returns true; other ids leave both masks untouched.
    static bool forContainer(int id, int availableVideoMask, int* videoMask, int* audioMask);
};
