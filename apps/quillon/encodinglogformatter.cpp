#include "quillon/encodinglogformatter.h"

#include "engine/ffmpegstreamtarget.h"
#include "records/codecpreset.h"
#include "stores/codecmanager.h"
#include "stores/filetag.h"

#include <QUrl>

QString EncodingLogFormatter::describe(int kind, const CodecPreset& preset, bool on, const QString& file)
{
    QString what;
    switch (kind) {
    case Streaming:
        what = on ? tr("Start streaming") : tr("Stop streaming");
        break;
    case Recording:
        what = on ? tr("Start recording") : tr("Stop recording");
        break;
    default:
        what = on ? tr("Start output kind %1").arg(kind) : tr("Stop output kind %1").arg(kind);
        break;
    }
    if (!preset.name().isEmpty())
        what += QStringLiteral(" \"%1\"").arg(preset.name());

    QString summary = CodecManager::namingFromPreset(&preset);
    if (summary.isEmpty())
        summary = tr("no codec");
    const QString target = file.isEmpty() ? destination(kind, preset) : file;
    if (target.isEmpty())
        return tr("%1: %2").arg(what, summary);
    return tr("%1: %2 -> %3").arg(what, summary, target);
}

QString EncodingLogFormatter::destination(int kind, const CodecPreset& preset)
{
    if (kind == Recording)
        return FileTag::fromCodecPreset(&preset, true);
    if (kind == Streaming) {
        // The stream key is a secret: the log shows only its last characters, enough for the
        // operator to see which key the engine got.
        const QUrl url(preset.streaming().url);
        if (preset.streaming().url.isEmpty())
            return tr("(no URL)");
        QString target = url.isValid() ? url.toDisplayString(QUrl::RemoveUserInfo) : preset.streaming().url;
        // Whatever the engine would mask in its own lines (a token in the query, say) is
        // masked here too.
        FfmpegStreamTarget engineTarget;
        QString refusal;
        FfmpegStreamTarget::resolve(preset.streaming(), &engineTarget, &refusal);
        target = FfmpegStreamTarget::mask(target, engineTarget.secrets);
        if (!preset.streaming().key.isEmpty())
            target += tr(" (key %1)").arg(maskedKey(preset.streaming().key));
        return target;
    }
    return QString();
}

QString EncodingLogFormatter::maskedKey(const QString& key)
{
    const int shown = key.size() > 8 ? 4 : 0;
    return QString(QChar(0x2022)).repeated(4) + key.right(shown);
}
