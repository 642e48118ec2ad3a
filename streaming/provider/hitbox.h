#pragma once

#include "provider/provider.h"

// Smashcast (formerly Hitbox): password login, ingest list and media key.
class Hitbox : public Provider
{
    Q_OBJECT
public:
    static constexpr quint32 panelFeatures = 0x00000EA1;
    static constexpr quint32 eventFeatures = 0x00300000;

    explicit Hitbox(ViewInterface* view);
    ~Hitbox() override;

    bool login(const QString& username, const QString& password) override;
    bool isAuthorized() const override;
    bool revoke() override;
};
