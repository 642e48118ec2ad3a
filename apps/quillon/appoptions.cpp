#include "quillon/appoptions.h"

#include <QCommandLineParser>
#include <QDir>
#include <QStandardPaths>

#include <cstring>

AppOptions AppOptions::parse(const QStringList& arguments)
{
    AppOptions options;
    QCommandLineParser parser;
    parser.setApplicationDescription(tr("Quillon output console: the reference host of the streaming library."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption data(QStringLiteral("data"),
                                  tr("Keep presets, servers, setup, licence and project files in <dir>."),
                                  tr("dir"));
    const QCommandLineOption screenshots(QStringLiteral("screenshots"),
                                         tr("Render every window and dialog to PNG files in <dir> and exit."),
                                         tr("dir"));
    const QCommandLineOption language(QStringLiteral("lang"),
                                      tr("Show the texts in <language> (de, fr or en) instead of the system's language."),
                                      tr("language"));
    parser.addOption(data);
    parser.addOption(screenshots);
    parser.addOption(language);

    if (!parser.parse(arguments)) {
        options.m_errorText = parser.errorText();
        return options;
    }
    if (!parser.positionalArguments().isEmpty()) {
        options.m_errorText = tr("Unexpected argument: %1").arg(parser.positionalArguments().first());
        return options;
    }
    options.m_helpRequested = parser.isSet(help);
    options.m_helpText = parser.helpText();

    if (parser.isSet(data)) {
        const QString dir = parser.value(data);
        if (dir.isEmpty()) {
            options.m_errorText = tr("--data needs a directory.");
            return options;
        }
        options.m_dataDirectory = QDir::cleanPath(QDir::current().absoluteFilePath(dir));
    } else {
        options.m_dataDirectory = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    }
    if (parser.isSet(screenshots)) {
        const QString dir = parser.value(screenshots);
        if (dir.isEmpty()) {
            options.m_errorText = tr("--screenshots needs a directory.");
            return options;
        }
        options.m_screenshotDirectory = QDir::cleanPath(QDir::current().absoluteFilePath(dir));
    }
    if (parser.isSet(language)) {
        const QString name = parser.value(language);
        if (name.isEmpty()) {
            options.m_errorText = tr("--lang needs a language code such as de, fr or en.");
            return options;
        }
        const QLocale locale(name);
        // QLocale reads any name it does not know as "C".
        if (locale.language() == QLocale::C && name.compare(QLatin1String("C"), Qt::CaseInsensitive) != 0) {
            options.m_errorText = tr("Unknown language: %1. Use a code such as de, fr or en.").arg(name);
            return options;
        }
        options.m_locale = locale;
        options.m_languageRequested = true;
    }
    return options;
}

bool AppOptions::wantsScreenshots(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--screenshots") == 0 || std::strncmp(argv[i], "--screenshots=", 14) == 0)
            return true;
    }
    return false;
}
