#pragma once

#include "host_export.h"

#include <QFrame>

// The host's styled Frame.
class HOST_EXPORT Frame : public QFrame
{
    Q_OBJECT
public:
    explicit Frame(QWidget* parent = nullptr);
};
