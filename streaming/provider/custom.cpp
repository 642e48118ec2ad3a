#include "provider/custom.h"

Custom::Custom(ViewInterface* view)
    : Provider(view, QStringLiteral("Custom"))
{
    addFeatures(panelFeatures);
    addFeatures(serverFeatures);
}

Custom::~Custom() = default;
