#pragma once

#include "host_export.h"

#include <QString>

class QFontMetrics;

namespace Utility {

// The longest prefix of text that fits in width pixels, ending in an ellipsis when cut.
HOST_EXPORT QString maxTextLength(const QString& text, const QFontMetrics& metrics, int width);

} // namespace Utility
