#pragma once

#include "host_export.h"

#include <QColor>
#include <QTimer>
#include <QWidget>

// A busy indicator: a turning arc drawn while the host waits for something.
class HOST_EXPORT SplashWidget : public QWidget
{
    Q_OBJECT
public:
    explicit SplashWidget(QWidget* parent = nullptr);

    QColor color() const { return m_color; }
    void setColor(const QColor& color);
    bool isSpinning() const { return m_timer.isActive(); }

public slots:
    void start();
    void stop();

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QColor m_color{237, 110, 0};
    QTimer m_timer;
    int m_angle = 0;
};
