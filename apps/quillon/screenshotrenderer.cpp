#include "quillon/screenshotrenderer.h"

#include "quillon/hostsession.h"
#include "quillon/mainwindow.h"
#include "quillon/outputdialogregistry.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QPixmap>
#include <QPointer>
#include <QTimer>

#include <functional>

namespace {

// The control at `path` ("encoderList/customAdd": a child of a child) of type T, or null.
template <typename T>
T* control(QWidget* dialog, const QString& path)
{
    QObject* at = dialog;
    for (const QString& name : path.split(QLatin1Char('/')))
        at = at ? at->findChild<QObject*>(name) : nullptr;
    return qobject_cast<T*>(at);
}

bool click(QWidget* dialog, const QString& path)
{
    auto* button = control<QAbstractButton>(dialog, path);
    if (button)
        button->click();
    return button;
}

bool choose(QWidget* dialog, const QString& path, const QString& item)
{
    auto* list = control<QComboBox>(dialog, path);
    const int index = list ? list->findText(item) : -1;
    if (index >= 0)
        list->setCurrentIndex(index);
    return index >= 0;
}

// The dialogs the registered ones open, reached as the operator reaches them, one entry
// each; the steps return false when a control they name is gone. Only dialogs that open
// and cancel without a service or a change to the operator's data belong here.
struct InnerShot {
    QString dialogId;
    QString file;
    std::function<bool(QWidget* dialog)> open;
};

const QList<InnerShot>& innerShots()
{
    static const QList<InnerShot> list{
        {QStringLiteral("recording"), QStringLiteral("codecpreset"),
         [](QWidget* d) { return click(d, QStringLiteral("encoderList/customAdd")); }},
        {QStringLiteral("streaming"), QStringLiteral("server"),
         [](QWidget* d) {
             return choose(d, QStringLiteral("providerSelect"), QStringLiteral("Custom"))
                 && click(d, QStringLiteral("baseWidget/customAdd"));
         }},
    };
    return list;
}

} // namespace

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
    if (!write(&m_window, dir.filePath(QStringLiteral("mainwindow.png"))))
        return false;
    for (const OutputDialogRegistry::Entry& entry : OutputDialogRegistry::entries()) {
        std::unique_ptr<QDialog> dialog(entry.create(&m_window, m_session));
        if (!write(dialog.get(), dir.filePath(entry.id.toLower() + QStringLiteral(".png"))))
            return false;
    }
    for (const InnerShot& shot : innerShots()) {
        if (!renderInner(shot.dialogId, shot.open, dir.filePath(shot.file + QStringLiteral(".png"))))
            return false;
    }
    return true;
}

bool ScreenshotRenderer::write(QWidget* widget, const QString& file)
{
    if (!grabToFile(widget, file)) {
        m_errorText = tr("%1 could not be written.").arg(QDir::toNativeSeparators(file));
        return false;
    }
    m_written.append(file);
    return true;
}

bool ScreenshotRenderer::renderInner(const QString& dialogId, const std::function<bool(QWidget*)>& open,
                                     const QString& file)
{
    const QString name = QDir::toNativeSeparators(file);
    std::unique_ptr<QDialog> outer;
    for (const OutputDialogRegistry::Entry& entry : OutputDialogRegistry::entries())
        if (entry.id == dialogId)
            outer.reset(entry.create(&m_window, m_session));
    if (!outer) {
        m_errorText = tr("%1: the console has no dialog \"%2\".").arg(name, dialogId);
        return false;
    }
    outer->setAttribute(Qt::WA_DontShowOnScreen);
    outer->show();
    QApplication::processEvents();

    // Modal dialogs run their own loop inside the click: the shot is taken from in there,
    // then the dialog is cancelled, so nothing the operator keeps is changed.
    bool grabbed = false;
    bool found = false;
    QTimer::singleShot(0, outer.get(), [&] {
        QPointer<QDialog> inner = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!inner || inner == outer.get())
            return;
        found = true;
        grabbed = inner->grab().save(file, "PNG");
        inner->reject();
    });
    const bool opened = open(outer.get());
    QApplication::processEvents();
    outer->hide();
    if (!opened || !found) {
        m_errorText = tr("%1: the dialog did not open from \"%2\".").arg(name, dialogId);
        return false;
    }
    if (!grabbed) {
        m_errorText = tr("%1 could not be written.").arg(name);
        return false;
    }
    m_written.append(file);
    return true;
}
