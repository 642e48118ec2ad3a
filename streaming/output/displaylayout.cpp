#include "output/displaylayout.h"

namespace {

bool startsWithDigit(const QString& text)
{
    return !text.isEmpty() && text.at(0).isDigit();
}

} // namespace

const QStringList& layoutTypeNames()
{
    static const QStringList names{
        QStringLiteral("NONE"),        QStringLiteral("CAM"),           QStringLiteral("CLIP"),
        QStringLiteral("STILL"),       QStringLiteral("M/E"),           QStringLiteral("AUDIO"),
        QStringLiteral("BLACK"),       QStringLiteral("PROGRAM"),       QStringLiteral("PROGRAM(CLEAN)"),
        QStringLiteral("PROGRAM(DELAY)"), QStringLiteral("PREVIEW"),    QStringLiteral("MULTIVIEW"),
        QStringLiteral("DSK"),         QStringLiteral("SWITCHER"),      QStringLiteral("SYSTEM"),
        QStringLiteral("PTZ"),         QStringLiteral("AUDIO MIXER"),   QStringLiteral("BUS_A"),
        QStringLiteral("BUS_B"),       QStringLiteral("VIDEO HUB")};
    return names;
}

bool isSingleLayout(int type)
{
    switch (type) {
    case LayoutType::None:
    case LayoutType::Program:
    case LayoutType::CleanProgram:
    case LayoutType::DelayProgram:
    case LayoutType::Preview:
    case LayoutType::Switcher:
    case LayoutType::System:
        return true;
    default:
        return false;
    }
}

const QString DisplayLayoutName(int type, int index, bool withName, bool numberSingles, bool numberAlways)
{
    if (type < 0)
        return QString();
    QString text = withName ? layoutTypeNames().value(type) : QString();
    const int number = index + 1;
    const bool numbered = number >= 1 && (numberAlways || (numberSingles && !isSingleLayout(type)));
    if (numbered) {
        if (!text.isEmpty())
            text += QLatin1Char(' ');
        text += QString::number(number);
    }
    return text;
}

int layoutIndexFromString(const QString& text)
{
    const QStringList parts = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (parts.size() < 2 || !startsWithDigit(parts.last()))
        return -1;
    // The number the last part starts with; one too large for an int names no instance.
    const QString& last = parts.last();
    int digits = 0;
    while (digits < last.size() && last.at(digits).isDigit())
        ++digits;
    bool ok = false;
    const int number = last.left(digits).toInt(&ok);
    return ok ? number - 1 : -1;
}

int layoutTypeFromString(const QString& text)
{
    // Empty parts are kept here: "CAM  3" is no numbered name.
    const QStringList parts = text.split(QLatin1Char(' '));
    const QString name = parts.size() == 2 && startsWithDigit(parts.at(1)) ? parts.at(0) : text;
    return layoutTypeNames().indexOf(name);
}
