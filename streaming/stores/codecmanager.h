#pragma once

#include "records/codecpreset.h"
#include "records/contentssettings.h"
#include "stores/singleton.h"
#include "streaming_export.h"

#include <QJsonObject>
#include <QList>
#include <QString>

class CodecManager;
extern template class STREAMING_EXPORT Singleton<CodecManager>;

// The store of the operator's codec presets: one JSON file per preset, named by its label.
class STREAMING_EXPORT CodecManager : public Singleton<CodecManager>
{
public:
    explicit CodecManager(const ContentsSettings& settings);
    CodecManager(const CodecManager& other);
    CodecManager& operator=(const CodecManager& other);
    ~CodecManager() override;

    const QList<CodecPreset>& codecPresets() const;
    void reloadPresets();
    QList<CodecPreset> codecPresetFromName(const QString& name) const;
    CodecPreset codecPresetFromJson(const QJsonObject& object) const;
    QJsonObject jsonFromCodecPreset(const CodecPreset& preset) const;
    bool write(CodecPreset preset);
    bool remove(CodecPreset preset);
    // An edited preset takes the place of the one it was made from, in one step even when
    // its label, and so its file, changes.
    bool replace(const CodecPreset& before, const CodecPreset& after);

    // The directory the presets live in.
    QString presetDirectory() const;

    static QString namingFromPreset(const CodecPreset* preset);
    static QString humanReadableSize(qint64 kbps);
    static QString sampleRateTokHz(int hz);

private:
    ContentsSettings m_settings;
    QList<CodecPreset> m_codecPresets;
};
