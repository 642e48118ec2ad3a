#pragma once

#include <QColor>
#include <QFutureWatcher>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <memory>

class BandwidthProbe;
class Provider;

// The best-server test: times a TCP connection to each ingest server of a
// provider on a pool thread and names the fastest. Shows one line of text.
class BandwidthWidget : public QWidget
{
    Q_OBJECT
public:
    static constexpr int fixedWidth = 320;
    static constexpr int fixedHeight = 36;

    explicit BandwidthWidget(QWidget* parent = nullptr);
    ~BandwidthWidget() override;

    // Measures the provider's servers; a run still going is stopped first.
    void start(Provider* provider);

    QString message() const { return m_message; }
    int progress() const { return m_progress; }
    QColor color() const { return m_color; }
    void setColor(const QColor& color);
    bool isStopped() const { return m_stopped; }
    bool isRunning() const { return m_watcher.isRunning(); }
    Provider* provider() const;

public slots:
    void stop();
    void bandwidthChange(const QString& text, int progress);

signals:
    void bandwidthChanged(const QString& text, int progress);
    void bestServerChanged(QString label);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_message;
    QColor m_color{Qt::black};
    bool m_stopped = false;
    QPointer<Provider> m_provider;
    QFutureWatcher<void> m_watcher;
    std::shared_ptr<BandwidthProbe> m_probe;
    int m_progress = 0;
};
