#include "quillon/screenshotrenderer.h"

#include "quillon/hostsession.h"
#include "quillon/mainwindow.h"
#include "quillon/outputdialogregistry.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QPixmap>

ScreenshotRenderer::ScreenshotRenderer(MainWindow& window, HostSession& session)
    : m_window(window), m_session(session)
{
}

bool ScreenshotRenderer::grabToFile(QWidget* widget, const QString& path)
{
    // Laid out and painted as on screen, but never shown there.
    widget->setAttribute(Qt::WA_DontShowOnScreen);
    widget->show();
    QApplication::processEvents();
    const bool saved = widget->grab().save(path, "PNG");
    widget->hide();
    return saved;
}

bool ScreenshotRenderer::renderAll(const QString& directory)
{
    m_written.clear();
    m_errorText.clear();
    if (!QDir().mkpath(directory)) {
        m_errorText = tr("The screenshot folder %1 could not be created.").arg(QDir::toNativeSeparators(directory));
        return false;
    }
    const QDir dir(directory);

    struct Shot {
        QString file;
        QWidget* widget;
        bool owned;
    };
    QList<Shot> shots{{dir.filePath(QStringLiteral("mainwindow.png")), &m_window, false}};
    for (const OutputDialogRegistry::Entry& entry : OutputDialogRegistry::entries())
        shots.append({dir.filePath(entry.id.toLower() + QStringLiteral(".png")), entry.create(&m_window, m_session),
                      true});

    bool ok = true;
    for (const Shot& shot : qAsConst(shots)) {
        if (ok && grabToFile(shot.widget, shot.file)) {
            m_written.append(shot.file);
        } else if (ok) {
            m_errorText = tr("%1 could not be written.").arg(QDir::toNativeSeparators(shot.file));
            ok = false;
        }
        if (shot.owned)
            delete shot.widget;
    }
    return ok;
}
