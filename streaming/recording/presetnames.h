#pragma once

#include <QString>
#include <QStringList>

// Names of new presets in the setup dialogs.
class PresetNames
{
public:
    // `base`, or base + " 2", " 3", ... in a single pass over the existing names in list
    // order: whenever a name equals the candidate, the next number is taken. A later rename
    // can still collide with an earlier row; the dialogs accept that.
    static QString unique(const QString& base, const QStringList& existing);
};
