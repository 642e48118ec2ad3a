// File-name templates as the operator or a setup file may hold them: the input's pieces are
// the template, the preset or grab name, the source name, the codec and the extension (in
// that order). Each is expanded for a recording preset and for a grab, and the grab's next
// free image path is made below a scratch folder (a template that climbs out of it, with
// "..", is expanded but not given a folder: the run must not make folders elsewhere).

#include "records/codecpreset.h"
#include "recording/imagesetup.h"
#include "stores/filetag.h"
#include "stores/snapshot.h"

#include "fuzzsupport.h"

#include <QDir>

namespace {

QString root;

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    Fuzz::startApplication(false);
    root = Fuzz::scratchDirectory("filetag");
    FileTag::setClock([] { return QDateTime(QDate(2026, 1, 2), QTime(3, 4, 5)); });
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const QList<QByteArray> pieces = Fuzz::pieces(data + 1, size - 1);
    const auto piece = [&pieces](int i) { return QString::fromUtf8(pieces.value(i)); };

    CodecPreset preset;
    preset.local().fileTag = piece(0);
    preset.setName(piece(1));
    preset.setSourceName(piece(2));
    CodecModel::VideoCodec& video = preset.videoCodec();
    video.codec = piece(3);
    video.bitRate = static_cast<signed char>(data[0]) * 1000;
    video.quality = static_cast<signed char>(data[0]);
    video.width = data[0] * 17;
    video.height = data[0] * 9;
    preset.videoSource().insert(data[0] % 5, 0);
    preset.container().name = piece(4);
    FileTag::fromCodecPreset(&preset, true);
    FileTag::fromCodecPreset(&preset, false);

    Snapshot shot;
    shot.fileTag = piece(0);
    shot.name = piece(1);
    shot.extension = piece(4);
    shot.source = static_cast<signed char>(data[0]);
    shot.directory = root;
    ImageSetup::tagFromName(shot, true);
    const QString name = FileTag::fromSnapshot(shot, false) + QLatin1Char('.') + shot.extension;
    if (QDir::cleanPath(root + QLatin1Char('/') + name).startsWith(root + QLatin1Char('/'))
        && !name.contains(QLatin1String(".."))) {
        ImageSetup::localPath(shot);
        // Folders the path needed go again, so the next input starts from an empty one.
        for (const QString& made : QDir(root).entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden))
            QDir(root + QLatin1Char('/') + made).removeRecursively();
    }
    return 0;
}
