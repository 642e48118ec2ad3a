#pragma once

#include <QMetaType>

// A frame size carried as item data of the size list; 0 x 0 stands for "CUSTOM".
struct SizeDefinition {
    int width = 0;
    int height = 0;

    bool isCustom() const { return width <= 0 || height <= 0; }
    bool operator==(const SizeDefinition& other) const { return width == other.width && height == other.height; }
};

Q_DECLARE_METATYPE(SizeDefinition)
