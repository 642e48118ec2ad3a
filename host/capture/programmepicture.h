#pragma once

#include "host_export.h"

#include <QString>
#include <QTime>

class QPainter;
class QRect;

// The reference host's programme as an output shows it: the engine's test picture (colour
// bars, the source's name and a running clock, here to the frame), drawn with QPainter.
class HOST_EXPORT ProgrammePicture
{
public:
    enum Look { Bars, PreviewBars, Black, Multiview };

    ProgrammePicture() = default;
    // No label: no clock either (a clean feed). Tiles: the windows of a multiview.
    ProgrammePicture(Look look, const QString& label, int tiles = 4);

    Look look() const { return m_look; }
    QString label() const { return m_label; }
    // "PGM 12:34:56:07": label, time and frame within the second.
    QString clockText(const QTime& time, int frame) const;
    void paint(QPainter* painter, const QRect& target, const QTime& time, int frame) const;

private:
    void paintBars(QPainter* painter, const QRect& target, bool preview) const;

    Look m_look = Bars;
    QString m_label;
    int m_tiles = 4;
};
