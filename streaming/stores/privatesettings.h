#pragma once

#include <QSettings>

// The application's settings as the library writes them: they hold stream keys, so the
// file is created owner-only before the first write and made so again if it was not.
// Rewrites keep the mode (QSettings replaces the file through a copy that takes it over).
class PrivateSettings : public QSettings
{
public:
    PrivateSettings();

    // For any settings file: creates it empty and owner-only when missing (its folder too,
    // when that is new), or takes group and other access away.
    static void restrict(const QString& fileName);
};
