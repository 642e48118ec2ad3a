#include "engine/ffmpegstreamtarget.h"

#include <QRegularExpression>
#include <QUrl>
#include <QUrlQuery>

namespace {

// Half the time a stalled server needs before the operator would give up on it.
const char* const ioTimeoutUs = "5000000";

void addSecret(QStringList* secrets, const QString& secret)
{
    if (secret.isEmpty())
        return;
    for (const QString& form : {secret, QString::fromUtf8(QUrl::toPercentEncoding(secret)),
                                QString::fromUtf8(QUrl::toPercentEncoding(secret, "/"))})
        if (!secrets->contains(form))
            secrets->append(form);
}

} // namespace

QString FfmpegStreamTarget::maskedSecret(const QString& secret)
{
    const int shown = secret.size() > 8 ? 4 : 0;
    return QString(QChar(0x2022)).repeated(4) + secret.right(shown);
}

QString FfmpegStreamTarget::mask(QString text, const QStringList& secrets)
{
    // Longest first, so a secret inside another is not half-masked.
    QStringList ordered = secrets;
    std::sort(ordered.begin(), ordered.end(), [](const QString& a, const QString& b) { return a.size() > b.size(); });
    for (const QString& secret : ordered)
        if (!secret.isEmpty())
            text.replace(secret, maskedSecret(secret));
    return text;
}

bool FfmpegStreamTarget::resolve(const CodecModel::Streaming& s, FfmpegStreamTarget* out, QString* refusal)
{
    *out = FfmpegStreamTarget();
    const QString raw = s.url.trimmed();
    const int schemeEnd = raw.indexOf(QLatin1String("://"));
    const QString scheme = schemeEnd > 0 ? raw.left(schemeEnd).toLower() : QString();
    const QString rest = schemeEnd > 0 ? raw.mid(schemeEnd + 3) : QString();
    const QString host = rest.section(QLatin1Char('/'), 0, 0).section(QLatin1Char('?'), 0, 0);
    addSecret(&out->secrets, s.key);
    addSecret(&out->secrets, s.password);
    addSecret(&out->secrets, s.passphrase);
    // Operators also type credentials into the URL itself: a password before the host, or a
    // key or token in the query.
    const QUrl typed(raw);
    addSecret(&out->secrets, typed.password(QUrl::FullyDecoded));
    // By how the name ends: "stream_key" and "access_token" are secrets, "keyframe" is not.
    static const QRegularExpression secretName(QStringLiteral("(pass(word|phrase)?|passwd|pwd|key|secret|token|auth|"
                                                              "sig(nature)?)$"),
                                               QRegularExpression::CaseInsensitiveOption);
    for (const auto& [name, value] : QUrlQuery(typed).queryItems(QUrl::FullyDecoded))
        if (secretName.match(name).hasMatch())
            addSecret(&out->secrets, value);
    const QString shown = mask(raw, out->secrets);
    if (scheme.isEmpty() || host.isEmpty()) {
        *refusal = tr("The stream URL \"%1\" is not one the engine can send to (rtmp, rtmps, srt, rtsp, tcp or udp).")
                       .arg(shown);
        return false;
    }
    const bool hasPort = host.contains(QLatin1Char(':')) && !host.endsWith(QLatin1Char(']'));

    if (scheme == QLatin1String("rtmp") || scheme == QLatin1String("rtmps")) {
        // Services take the key as the stream name after the application: rtmp://host/app/key.
        // It goes to FFmpeg whole as its own argument, never parsed from a URL and never through a
        // shell, so spaces and any other character arrive as typed.
        QString url = scheme + QLatin1String("://") + rest;
        while (url.endsWith(QLatin1Char('/')))
            url.chop(1);
        out->display = mask(url, out->secrets);
        if (!s.key.isEmpty()) {
            out->options << QStringLiteral("-rtmp_playpath") << s.key;
            out->display += QLatin1Char('/') + maskedSecret(s.key);
        }
        if (!s.username.isEmpty()) {
            const QString credentials = QString::fromUtf8(QUrl::toPercentEncoding(s.username)) + QLatin1Char(':')
                                      + QString::fromUtf8(QUrl::toPercentEncoding(s.password)) + QLatin1Char('@');
            url.insert(scheme.size() + 3, credentials);
        }
        out->url = url;
        out->muxer = QStringLiteral("flv");
        out->options << QStringLiteral("-rtmp_live") << QStringLiteral("live") << QStringLiteral("-rw_timeout")
                     << QLatin1String(ioTimeoutUs) << QStringLiteral("-flvflags") << QStringLiteral("no_duration_filesize");
        return true;
    }
    if (scheme == QLatin1String("srt")) {
        if (!s.filter.isEmpty()) {
            *refusal = tr("The SRT packet filter \"%1\" is not supported by the installed FFmpeg; choose \"none\".")
                           .arg(s.filter);
            return false;
        }
        QString hostPort = host;
        if (!hasPort) {
            if (s.port <= 0 || s.port > 65535) {
                *refusal = tr("The SRT server \"%1\" has no port.").arg(shown);
                return false;
            }
            hostPort += QStringLiteral(":%1").arg(s.port);
        }
        const QString mode = s.mode.isEmpty() ? QStringLiteral("caller") : s.mode.toLower();
        if (!QStringList{QStringLiteral("caller"), QStringLiteral("listener"), QStringLiteral("rendezvous")}.contains(mode)) {
            *refusal = tr("The SRT mode \"%1\" is unknown; choose caller, listener or rendezvous.").arg(s.mode);
            return false;
        }
        out->options << QStringLiteral("-mode") << mode << QStringLiteral("-pkt_size") << QStringLiteral("1316");
        if (s.latency > 0)
            out->options << QStringLiteral("-latency") << QString::number(qint64(s.latency) * 1000);
        if (!s.passphrase.isEmpty()) {
            if (s.passphrase.size() < 10 || s.passphrase.size() > 79) {
                *refusal = tr("Encryption characters must be between 10 and 79 characters.");
                return false;
            }
            const int keyLength = s.keyLength > 0 ? s.keyLength : 16;
            if (keyLength != 16 && keyLength != 24 && keyLength != 32) {
                *refusal = tr("The SRT key length must be 16, 24 or 32, not %1.").arg(s.keyLength);
                return false;
            }
            out->options << QStringLiteral("-passphrase") << s.passphrase << QStringLiteral("-pbkeylen")
                         << QString::number(keyLength);
        }
        out->url = QStringLiteral("srt://") + hostPort;
        out->display = out->url + QStringLiteral(" (%1)").arg(mode);
        // FFmpeg's own "-streamid" numbers output streams: the SRT one goes in the URL,
        // percent-encoded (FFmpeg decodes it).
        if (!s.streamId.isEmpty())
            out->url += QStringLiteral("?streamid=") + QString::fromUtf8(QUrl::toPercentEncoding(s.streamId));
        out->muxer = QStringLiteral("mpegts");
        return true;
    }
    if (scheme == QLatin1String("rtsp")) {
        out->url = raw;
        out->display = shown;
        out->muxer = QStringLiteral("rtsp");
        out->options << QStringLiteral("-rtsp_transport") << QStringLiteral("tcp") << QStringLiteral("-rw_timeout")
                     << QLatin1String(ioTimeoutUs);
        return true;
    }
    if (scheme == QLatin1String("tcp") || scheme == QLatin1String("udp")) {
        if (!hasPort) {
            *refusal = tr("The stream URL \"%1\" needs a port.").arg(shown);
            return false;
        }
        out->url = raw;
        out->display = shown;
        out->muxer = QStringLiteral("mpegts");
        if (scheme == QLatin1String("tcp"))
            out->options << QStringLiteral("-rw_timeout") << QLatin1String(ioTimeoutUs);
        else
            out->options << QStringLiteral("-pkt_size") << QStringLiteral("1316");
        return true;
    }
    *refusal = tr("The stream URL \"%1\" is not one the engine can send to (rtmp, rtmps, srt, rtsp, tcp or udp).").arg(shown);
    return false;
}
