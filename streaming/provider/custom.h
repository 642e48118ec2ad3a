#pragma once

#include "provider/provider.h"

// The user's own servers: nothing to ask of any service.
class Custom : public Provider
{
    Q_OBJECT
public:
    static constexpr quint32 panelFeatures = 0x0000000A;
    static constexpr quint32 serverFeatures = 0x0000F000;

    explicit Custom(ViewInterface* view);
    ~Custom() override;
};
