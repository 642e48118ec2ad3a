#pragma once

#include "host_export.h"

#include <QCheckBox>

// The host's styled CheckBox.
class HOST_EXPORT CheckBox : public QCheckBox
{
    Q_OBJECT
public:
    explicit CheckBox(QWidget* parent = nullptr);
    explicit CheckBox(const QString& text, QWidget* parent = nullptr);
};
