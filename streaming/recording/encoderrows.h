#pragma once

#include "records/codecpreset.h"

#include <QList>
#include <QString>

class OutputInterface;
class QListWidget;
class QListWidgetItem;
class QWidget;

// The rows of a setup's preset list: each item keeps its preset under Qt::UserRole and
// shows an EncoderItem of the given kind (0 streams, 1 records). The dialogs keep their
// own texts and pass them in.
class EncoderRows
{
public:
    EncoderRows(QListWidget* list, OutputInterface* host, int kind);

    static CodecPreset presetOf(const QListWidgetItem* item);

    int count() const;
    QList<CodecPreset> presets() const;
    QListWidgetItem* add(const CodecPreset& preset);

    // Checks or unchecks every row's button; false when asked to start an empty list.
    bool setEncoding(bool on);
    bool isEncoding() const;

    // Removes the current row after asking; a row that is running is refused with busyText.
    // True when a row went.
    bool removeCurrent(QWidget* parent, const QString& title, const QString& busyText, const QString& question);

private:
    QListWidget* m_list;
    OutputInterface* m_host;
    int m_kind;
};
