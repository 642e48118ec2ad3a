#pragma once

#include "host_export.h"
#include "records/codecmodel.h"

#include <QCoreApplication>
#include <QStringList>

// Where a stream goes, as FFmpeg writes it: the URL with the key where the services expect
// it, the muxer of the protocol and its options (SRT's mode, latency and encryption).
struct HOST_EXPORT FfmpegStreamTarget
{
    Q_DECLARE_TR_FUNCTIONS(FfmpegStreamTarget)

public:
    QString url;
    QString muxer;
    QStringList options;  // output options before the URL
    QString display;      // the URL as the console shows it: no key, password or passphrase
    QStringList secrets;  // every form of them that an error line could quote

    static bool resolve(const CodecModel::Streaming& streaming, FfmpegStreamTarget* out, QString* refusal);
    // "••••" and, for a long secret, its last four characters.
    static QString maskedSecret(const QString& secret);
    static QString mask(QString text, const QStringList& secrets);
};
