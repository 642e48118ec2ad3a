#pragma once

#include "browser_export.h"

// What Qt WebEngine needs from the process it runs in.
namespace BrowserEnvironment {

// Call before the QApplication is constructed: shares the OpenGL contexts the engine
// composes with, keeps the browser from any network traffic of its own, and turns the
// engine's sandbox off where it cannot work (running as root, no user namespaces).
BROWSER_EXPORT void prepare();
// Logs that prepare() turned the sandbox off, and why; nothing when it is on.
BROWSER_EXPORT void logSandbox();
// Whether the running platform plugin can draw pages (not "offscreen" or "minimal").
BROWSER_EXPORT bool canRender();

} // namespace BrowserEnvironment
