#pragma once

#include "host_export.h"
#include "records/mediapreset.h"

// A live source of the switcher.
class HOST_EXPORT Media
{
public:
    Media() = default;
    explicit Media(const MediaPreset& preset) : m_preset(preset) {}
    virtual ~Media();

    const MediaPreset& mediaPreset() const { return m_preset; }
    void setMediaPreset(const MediaPreset& preset) { m_preset = preset; }

private:
    MediaPreset m_preset;
};
