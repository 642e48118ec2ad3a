#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QTranslator;

// The console's texts in one language: the library's (libstreaming_<lang>.qm), the
// console's and host's (quillon_<lang>.qm) and Qt's own (qtbase_<lang>.qm), installed
// for as long as this object lives.
class Translations
{
public:
    Translations();
    ~Translations();
    Translations(const Translations&) = delete;
    Translations& operator=(const Translations&) = delete;

    // Where the console looks for its .qm files, in order: beside the installed
    // executable, then in the build tree it was built in.
    static QStringList folders(const QString& applicationDir);
    // English (or C) needs nothing. Otherwise loads what exists for the locale's languages
    // ("de_AT" falls back to "de"); false, with nothing loaded, when neither the library's
    // nor the console's file was found, so the texts stay English.
    bool install(const QLocale& locale, const QStringList& folders);
    // Full paths of the files installed.
    QStringList loadedFiles() const { return m_files; }

private:
    bool load(const QLocale& locale, const QString& name, const QStringList& folders);

    std::vector<std::unique_ptr<QTranslator>> m_translators;
    QStringList m_files;
};
