#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

// What the host did and was asked to do, shown in the log panel and written to the
// "quillon.app" logging category (stderr) so a run without a window can be followed.
class ActivityLog : public QObject
{
    Q_OBJECT

public:
    enum class Level { Info, Warning };

    explicit ActivityLog(QObject* parent = nullptr);

    void info(const QString& text);
    void warning(const QString& text);
    // Every line so far, oldest first, each with its time.
    QStringList lines() const { return m_lines; }
    // The newest warning; empty when there was none.
    QString lastWarning() const { return m_lastWarning; }

signals:
    void lineAdded(const QString& line, ActivityLog::Level level);

private:
    void add(Level level, const QString& text);

    QStringList m_lines;
    QString m_lastWarning;
};
