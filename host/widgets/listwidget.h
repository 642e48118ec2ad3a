#pragma once

#include "host_export.h"

#include <QListWidget>

// The host's styled ListWidget.
class HOST_EXPORT ListWidget : public QListWidget
{
    Q_OBJECT
public:
    explicit ListWidget(QWidget* parent = nullptr);
};
