#include "recording/presetnames.h"

QString PresetNames::unique(const QString& base, const QStringList& existing)
{
    QString name = base;
    int counter = 2;
    for (const QString& taken : existing)
        if (taken == name)
            name = QStringLiteral("%1 %2").arg(base).arg(counter++);
    return name;
}
