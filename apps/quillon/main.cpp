#include "quillon/activitylog.h"
#include "quillon/appoptions.h"
#include "quillon/enginehost.h"
#include "quillon/hostsession.h"
#include "quillon/mainwindow.h"
#include "quillon/screenshotrenderer.h"
#include "quillon/translations.h"

#ifdef QUILLON_BROWSER
#include "webbrowser/browserenvironment.h"
#include "webbrowser/webenginecefmanager.h"
#endif

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QTextStream>

#include <memory>

int main(int argc, char* argv[])
{
    // Screenshots need no display: render offscreen unless a platform was chosen.
    if (AppOptions::wantsScreenshots(argc, argv) && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
#ifdef QUILLON_BROWSER
    BrowserEnvironment::prepare();
#endif

    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Quillon"));
    QApplication::setApplicationName(QStringLiteral("Quillon"));

    AppOptions options = AppOptions::parse(QApplication::arguments());
    Translations translations;
    bool translated = true;
    if (options.isValid()) {
        translated = translations.install(options.locale(),
                                          Translations::folders(QCoreApplication::applicationDirPath()));
        // Read again so that --help and the messages about the arguments are in that language.
        options = AppOptions::parse(QApplication::arguments());
    }
    QTextStream err(stderr);
    if (!options.isValid()) {
        err << options.errorText() << '\n';
        return 2;
    }
    if (options.helpRequested()) {
        QTextStream(stdout) << options.helpText();
        return 0;
    }

    // The library's "ql." settings live with the rest of the data, so a data folder is complete.
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, options.dataDirectory());

    ActivityLog log;
    QStringList loaded;
    for (const QString& file : translations.loadedFiles())
        loaded.append(QFileInfo(file).fileName());
    if (!loaded.isEmpty()) {
        log.info(QCoreApplication::translate("main", "Translations: %1").arg(loaded.join(QStringLiteral(", "))));
    } else if (!translated) {
        const QString text = QCoreApplication::translate("main", "No translation for %1 was found; the texts are in "
                                                                 "English.")
                                 .arg(options.locale().name());
        // Worth a warning when asked for by name; a system language that is not shipped is not.
        if (options.languageRequested())
            log.warning(text);
        else
            log.info(text);
    }
#ifdef QUILLON_BROWSER
    // The services' sign-in pages open in the built-in browser where the platform can draw
    // them; elsewhere the sign-in window shows the address to open in another browser.
    std::unique_ptr<CefManager> browser;
    if (BrowserEnvironment::canRender()) {
        const QString sessions = QDir(options.dataDirectory()).filePath(QStringLiteral("browser"));
        browser = std::make_unique<WebEngineCefManager>(sessions);
        CefManager::setInstance(browser.get());
        log.info(QCoreApplication::translate("main", "Sign-in pages open in the built-in browser."));
    }
#endif
    // The stores exist before any dialog can be opened.
    HostSession session(options.dataDirectory(), &log);
    MainWindow window(session);

    if (!options.screenshotDirectory().isEmpty()) {
        ScreenshotRenderer renderer(window, session);
        const bool ok = renderer.renderAll(options.screenshotDirectory());
        for (const QString& file : renderer.written())
            log.info(QCoreApplication::translate("main", "Screenshot %1").arg(QDir::toNativeSeparators(file)));
        if (!ok) {
            err << renderer.errorText() << '\n';
            return 1;
        }
        return 0;
    }

    // Real encoders from here on; leaving main stops them and closes their files.
    EngineHost engine(&log);
    window.show();
    return app.exec();
}
