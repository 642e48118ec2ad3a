#pragma once

#include "host_export.h"

#include <QTabWidget>

// The host's styled TabWidget.
class HOST_EXPORT TabWidget : public QTabWidget
{
    Q_OBJECT
public:
    explicit TabWidget(QWidget* parent = nullptr);
};
