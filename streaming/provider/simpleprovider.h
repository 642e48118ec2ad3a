#pragma once

#include "provider/provider.h"

// A built-in service without an API: a fixed stream URL or server table and
// the stream key the user pasted, remembered per service under "ql.stream.key".
class SimpleProvider : public Provider
{
    Q_OBJECT
public:
    SimpleProvider(ViewInterface* view, quint32 features, const QString& name, const QUrl& homeUrl,
                   const QString& streamUrl, const QList<LabelPair>& servers);
    ~SimpleProvider() override;

    // The application setting holding the map from service name to stream key.
    static const QString streamKeySetting;
};
