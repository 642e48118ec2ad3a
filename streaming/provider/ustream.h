#pragma once

#include "provider/provider.h"

// UStream: password login, then every channel of the account with its key.
class UStream : public Provider
{
    Q_OBJECT
public:
    static constexpr quint32 panelFeatures = 0x000002A4;
    static constexpr quint32 eventFeatures = 0x00310000;

    explicit UStream(ViewInterface* view);
    ~UStream() override;

    bool login(const QString& username, const QString& password) override;

private:
    bool loadChannel(const QJsonObject& channel, QList<LiveChannel>* channels);
};
