#include "capture/displaymode.h"

#include <QRegularExpression>
#include <QtMath>

DisplayMode::DisplayMode(int lines, bool interlaced, double frameRate)
    : m_lines(lines), m_interlaced(interlaced), m_frameRate(frameRate)
{
}

DisplayMode DisplayMode::fromName(const QString& name)
{
    static const QRegularExpression pattern(QStringLiteral("^(\\d{3,4})([pi])(\\d{1,3}(?:\\.\\d{1,3})?)$"));
    const QRegularExpressionMatch match = pattern.match(name.trimmed());
    if (!match.hasMatch())
        return DisplayMode();
    const int lines = match.captured(1).toInt();
    const double rate = match.captured(3).toDouble();
    if (lines <= 0 || rate <= 0.0)
        return DisplayMode();
    return DisplayMode(lines, match.captured(2) == QLatin1String("i"), rate);
}

QStringList DisplayMode::standardModes()
{
    return {QStringLiteral("486i59.94"), QStringLiteral("576i50"),     QStringLiteral("720p50"),
            QStringLiteral("720p59.94"), QStringLiteral("1080i50"),    QStringLiteral("1080i59.94"),
            QStringLiteral("1080p23.98"), QStringLiteral("1080p25"),   QStringLiteral("1080p29.97"),
            QStringLiteral("1080p50"),   QStringLiteral("1080p59.94"), QStringLiteral("2160p25"),
            QStringLiteral("2160p29.97"), QStringLiteral("2160p50"),   QStringLiteral("2160p59.94")};
}

QString DisplayMode::name() const
{
    if (!isValid())
        return QString();
    return QStringLiteral("%1%2%3")
        .arg(m_lines)
        .arg(m_interlaced ? QLatin1Char('i') : QLatin1Char('p'))
        .arg(m_frameRate, 0, 'g', 6);
}

int DisplayMode::width() const
{
    switch (m_lines) {
    case 0:
        return 0;
    case 486:
    case 480:
    case 576:
        return 720; // standard definition is stored anamorphic
    default:
        // Every HD and UHD raster is 16:9 with an even width.
        return qRound(m_lines * 16.0 / 9.0 / 2.0) * 2;
    }
}

bool DisplayMode::fitsWithin(int maxWidth, int maxHeight) const
{
    return isValid() && width() <= maxWidth && height() <= maxHeight;
}

bool DisplayMode::operator==(const DisplayMode& other) const
{
    return m_lines == other.m_lines && m_interlaced == other.m_interlaced
        && qFuzzyCompare(m_frameRate + 1.0, other.m_frameRate + 1.0);
}
