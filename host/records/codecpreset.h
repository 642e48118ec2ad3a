#pragma once

#include "host_export.h"
#include "records/codecmodel.h"

#include <QMap>
#include <QMetaType>
#include <QString>

// One encoder configuration: codecs, container, recording and streaming blocks, sources.
class HOST_EXPORT CodecPreset
{
public:
    CodecPreset() = default;
    CodecPreset(const CodecPreset&) = default;
    CodecPreset& operator=(const CodecPreset&) = default;
    virtual ~CodecPreset();

    CodecModel::VideoCodec& videoCodec() { return m_videoCodec; }
    const CodecModel::VideoCodec& videoCodec() const { return m_videoCodec; }
    CodecModel::AudioCodec& audioCodec() { return m_audioCodec; }
    const CodecModel::AudioCodec& audioCodec() const { return m_audioCodec; }
    CodecModel::Streaming& streaming() { return m_streaming; }
    const CodecModel::Streaming& streaming() const { return m_streaming; }
    CodecModel::Local& local() { return m_local; }
    const CodecModel::Local& local() const { return m_local; }
    CodecModel::Container& container() { return m_container; }
    const CodecModel::Container& container() const { return m_container; }

    // Source type to source index (-1 for a single-instance source).
    QMap<int, int>& videoSource() { return m_videoSource; }
    const QMap<int, int>& videoSource() const { return m_videoSource; }
    QMap<int, int>& audioSource() { return m_audioSource; }
    const QMap<int, int>& audioSource() const { return m_audioSource; }

    QString name() const { return m_name; }
    void setName(const QString& name) { m_name = name; }
    QString id() const { return m_id; }
    void setId(const QString& id) { m_id = id; }
    // A source's own name (ISO recordings); empty for programme outputs.
    QString sourceName() const { return m_sourceName; }
    void setSourceName(const QString& sourceName) { m_sourceName = sourceName; }

    bool operator==(const CodecPreset& other) const;
    bool operator!=(const CodecPreset& other) const { return !(*this == other); }

private:
    CodecModel::VideoCodec m_videoCodec;
    CodecModel::AudioCodec m_audioCodec;
    CodecModel::Streaming m_streaming;
    CodecModel::Local m_local;
    CodecModel::Container m_container;
    QMap<int, int> m_videoSource;
    QMap<int, int> m_audioSource;
    QString m_name;
    QString m_id;
    QString m_sourceName;
};

Q_DECLARE_METATYPE(CodecPreset)
