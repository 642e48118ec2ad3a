#include "provider/simpleprovider.h"

#include <QSettings>

const QString SimpleProvider::streamKeySetting = QStringLiteral("ql.stream.key");

SimpleProvider::SimpleProvider(ViewInterface* view, quint32 features, const QString& name, const QUrl& homeUrl,
                               const QString& streamUrl, const QList<LabelPair>& servers)
    : Provider(view, name)
{
    addFeatures(features);
    setHomeUrl(homeUrl);
    setStreamUrl(streamUrl);
    setServers(servers);
    setStreamKey(QSettings().value(streamKeySetting).toMap().value(name).toString());
}

SimpleProvider::~SimpleProvider() = default;
