#include "records/utility.h"

#include <QFontMetrics>

QString Utility::maxTextLength(const QString& text, const QFontMetrics& metrics, int width)
{
    if (width <= 0)
        return QString();
    if (metrics.horizontalAdvance(text) <= width)
        return text;
    const QString ellipsis(QChar(0x2026));
    int low = 0;
    int high = text.size();
    while (low < high) {
        const int mid = (low + high + 1) / 2;
        if (metrics.horizontalAdvance(text.left(mid) + ellipsis) <= width)
            low = mid;
        else
            high = mid - 1;
    }
    return low == 0 ? QString() : text.left(low) + ellipsis;
}
