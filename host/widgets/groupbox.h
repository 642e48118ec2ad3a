#pragma once

#include "host_export.h"

#include <QGroupBox>

// The host's styled GroupBox.
class HOST_EXPORT GroupBox : public QGroupBox
{
    Q_OBJECT
public:
    explicit GroupBox(QWidget* parent = nullptr);
    explicit GroupBox(const QString& title, QWidget* parent = nullptr);
};
