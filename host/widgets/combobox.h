#pragma once

#include "host_export.h"

#include <QComboBox>

// The host's styled ComboBox.
class HOST_EXPORT ComboBox : public QComboBox
{
    Q_OBJECT
public:
    explicit ComboBox(QWidget* parent = nullptr);

protected:
    // Scrolling over a form must not change a setting during a show.
    void wheelEvent(QWheelEvent* event) override;
};
