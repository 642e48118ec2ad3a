#pragma once

#include "interface/memoryoutputinterface.h"

// The setup object kept in a JSON file, rewritten crash-safe after every change.
// A file that does not parse is moved aside and the host starts from an empty object;
// when it cannot be moved or copied aside it is never written over.
class HOST_EXPORT FileOutputInterface : public MemoryOutputInterface
{
    Q_OBJECT
public:
    explicit FileOutputInterface(const QString& fileName, QObject* parent = nullptr);

    QString fileName() const { return m_fileName; }
    // Where a corrupt file was moved (its own name when it could not be moved);
    // empty when the file loaded or did not exist.
    QString corruptFileKeptAs() const { return m_corruptKeptAs; }
    // The last failure to write, empty after a good write.
    QString lastError() const { return m_lastError; }
    bool save();

protected:
    void settingsStored(const QString& key) override;

private:
    void keepAside(const QString& reason);

    QString m_fileName;
    QString m_corruptKeptAs;
    QString m_lastError;
    bool m_writeBlocked = false;
};
