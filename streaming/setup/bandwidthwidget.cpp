#include "setup/bandwidthwidget.h"

#include "provider/provider.h"
#include "setup/bandwidthprobe.h"

#include <QPainter>
#include <QThreadPool>
#include <QtConcurrent>

BandwidthWidget::BandwidthWidget(QWidget* parent)
    : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint)
{
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFixedSize(fixedWidth, fixedHeight);
    connect(&m_watcher, &QFutureWatcher<void>::finished, this, &BandwidthWidget::stop);
    connect(this, &BandwidthWidget::bandwidthChanged, this, &BandwidthWidget::bandwidthChange, Qt::QueuedConnection);
}

BandwidthWidget::~BandwidthWidget()
{
    // The worker keeps its own reference to the probe and ends at the next server.
    if (m_probe)
        m_probe->stop();
}

void BandwidthWidget::start(Provider* provider)
{
    if (m_probe)
        m_probe->stop();
    m_provider = provider;
    m_stopped = false;
    m_progress = 0;
    m_message.clear();
    update();

    // A copy: the worker must not read a list the GUI thread may change.
    auto probe = std::make_shared<BandwidthProbe>(provider ? provider->servers() : QList<LabelPair>());
    probe->moveToThread(nullptr);
    connect(probe.get(), &BandwidthProbe::measured, this, &BandwidthWidget::bandwidthChanged);
    connect(probe.get(), &BandwidthProbe::bestServerFound, this, &BandwidthWidget::bestServerChanged);
    m_probe = probe;
    m_watcher.setFuture(QtConcurrent::run(QThreadPool::globalInstance(), [probe] { probe->run(); }));
}

void BandwidthWidget::stop()
{
    m_stopped = true;
    if (m_probe)
        m_probe->stop();
}

Provider* BandwidthWidget::provider() const
{
    return m_provider;
}

void BandwidthWidget::setColor(const QColor& color)
{
    m_color = color;
    update();
}

void BandwidthWidget::bandwidthChange(const QString& text, int progress)
{
    m_message = text;
    m_progress = progress;
    update();
}

void BandwidthWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(m_color);
    const QRect textRect = rect().adjusted(4, 0, -4, -3);
    painter.drawText(textRect, Qt::AlignCenter, m_message);
    if (m_progress > 0) {
        const int barWidth = width() * m_progress / 100;
        painter.fillRect(0, height() - 3, barWidth, 3, m_color);
    }
}
