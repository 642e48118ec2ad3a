#include "quillon/activitylog.h"

#include <QLoggingCategory>
#include <QTime>

Q_LOGGING_CATEGORY(lcApp, "quillon.app")

ActivityLog::ActivityLog(QObject* parent) : QObject(parent)
{
}

void ActivityLog::info(const QString& text)
{
    add(Level::Info, text);
}

void ActivityLog::warning(const QString& text)
{
    add(Level::Warning, text);
}

void ActivityLog::add(Level level, const QString& text)
{
    const QString line = QStringLiteral("%1  %2").arg(QTime::currentTime().toString(QStringLiteral("hh:mm:ss")), text);
    m_lines.append(line);
    if (level == Level::Warning) {
        m_lastWarning = text;
        qCWarning(lcApp).noquote() << text;
    } else {
        qCInfo(lcApp).noquote() << text;
    }
    emit lineAdded(line, level);
}
