#include "webbrowser/browserenvironment.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QLoggingCategory>

#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {
Q_LOGGING_CATEGORY(lcEnvironment, "host.webbrowser")

// Why the sandbox is off, empty while it is on.
const char* sandboxOffReason = "";

// The engine's sandbox puts each page process in user namespaces of its own; where a
// process may not create one (containers, hardened kernels) no page process can start.
bool userNamespacesWork()
{
    const pid_t child = fork();
    if (child < 0)
        return false;
    if (child == 0)
        _exit(unshare(CLONE_NEWUSER) == 0 ? 0 : 1);
    int status = 0;
    if (waitpid(child, &status, 0) != child)
        return false;
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

void appendFlag(QByteArray* flags, const QByteArray& flag)
{
    if (flags->split(' ').contains(flag))
        return;
    if (!flags->isEmpty())
        flags->append(' ');
    flags->append(flag);
}
} // namespace

namespace BrowserEnvironment {

void prepare()
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);

    // The browser shows the services' sign-in pages and nothing else: no updates,
    // reports or prefetching behind the operator's back.
    QByteArray flags = qgetenv("QTWEBENGINE_CHROMIUM_FLAGS").simplified();
    for (const char* flag : {"--disable-background-networking", "--disable-component-update",
                             "--disable-domain-reliability", "--no-pings"})
        appendFlag(&flags, flag);
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS", flags);

    // The engine refuses to start as root with its sandbox on, and the sandbox cannot
    // start without user namespaces; everywhere else it stays on.
    if (qEnvironmentVariableIsSet("QTWEBENGINE_DISABLE_SANDBOX"))
        return;
    const bool root = geteuid() == 0;
    if (!root && userNamespacesWork())
        return;
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    sandboxOffReason = root ? "running as root." : "this system does not allow user namespaces.";
}

void logSandbox()
{
    if (*sandboxOffReason)
        qCInfo(lcEnvironment).noquote() << "The browser's sandbox is off:" << sandboxOffReason;
}

bool canRender()
{
    const QString platform = QGuiApplication::platformName();
    return !platform.isEmpty() && platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

} // namespace BrowserEnvironment
