#include "quillon/translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QTranslator>

Translations::Translations() = default;

Translations::~Translations()
{
    for (const auto& translator : m_translators)
        QCoreApplication::removeTranslator(translator.get());
}

QStringList Translations::folders(const QString& applicationDir)
{
    // Both relative to the executable, so an installed tree or a build tree can move.
    const QDir dir(applicationDir);
    return {QDir::cleanPath(dir.filePath(QStringLiteral(QUILLON_INSTALLED_TRANSLATIONS))),
            QDir::cleanPath(dir.filePath(QStringLiteral(QUILLON_BUILD_TRANSLATIONS)))};
}

bool Translations::install(const QLocale& locale, const QStringList& folders)
{
    if (locale.language() == QLocale::English || locale.language() == QLocale::C)
        return true;
    const bool library = load(locale, QStringLiteral("libstreaming"), folders);
    const bool console = load(locale, QStringLiteral("quillon"), folders);
    if (!library && !console)
        return false;
    // Qt's own texts (standard buttons, file dialogs) to match; absent without qttranslations5-l10n.
    load(locale, QStringLiteral("qtbase"), {QLibraryInfo::location(QLibraryInfo::TranslationsPath)});
    return true;
}

bool Translations::load(const QLocale& locale, const QString& name, const QStringList& folders)
{
    for (const QString& folder : folders) {
        auto translator = std::make_unique<QTranslator>();
        if (!translator->load(locale, name, QStringLiteral("_"), folder))
            continue;
        QCoreApplication::installTranslator(translator.get());
        m_files.append(QDir::toNativeSeparators(translator->filePath()));
        m_translators.push_back(std::move(translator));
        return true;
    }
    return false;
}
