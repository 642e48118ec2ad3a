// A host that finds the installed library with find_package and uses its exported classes.
#include "interface/memoryoutputinterface.h"
#include "output/displaylayout.h"
#include "output/outputsetup.h"
#include "output/playoutsetup.h"
#include "recording/recordingsetup.h"
#include "setup/streamingsetup.h"
#include "stores/codecmanager.h"
#include "stores/streamingmanager.h"

#include <QApplication>
#include <QTemporaryDir>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QTemporaryDir dir;
    const ContentsSettings contents = ContentsSettings::underDirectory(dir.path());
    CodecManager codecs(contents);
    StreamingManager servers(contents, LicenseModel());
    MemoryOutputInterface host;
    RecordingSetup recording(nullptr, &host);
    recording.reloadPresets();
    StreamingSetup streaming(nullptr, &host);
    streaming.reloadPresets();
    PlayoutSetup playout(nullptr, &host);
    OutputSetup external(nullptr, &host);
    const bool outputs = !playout.isEncoding() && !external.validCheck() && DisplayLayoutName(1, 0, true, true, false) == "CAM 1";
    // The singletons must be the same objects on both sides of the library boundary.
    const bool shared = CodecManager::getInstancePtr() == &codecs && StreamingManager::getInstancePtr() == &servers;
    return shared && outputs && !recording.isEncoding() && !streaming.isEncoding() ? 0 : 1;
}
