#pragma once

#include <QJsonObject>
#include <QWidget>

#include <memory>

class OutputInterface;
class OutputRow;
struct OutputInfo;

namespace Ui {
class PlayoutItem;
}

// One playout output: its device, format, sources and keyer, and the button with which the
// operator asks the host to start or stop it.
class PlayoutItem : public QWidget
{
    Q_OBJECT
public:
    PlayoutItem(QWidget* parent, OutputInterface* host, int kind, int number);
    ~PlayoutItem() override;

    const OutputInfo& info() const;
    QString name() const;
    bool isConfigured() const;
    bool isPlaying() const;
    // Shows a state the host set itself: the button with its signals blocked, the lists locked
    // while on. The host is not asked.
    void setPlaying(bool on);

    void load(const QJsonObject& playout);
    void store(QJsonObject* playout) const;

signals:
    // The host started the output: what runs is worth keeping.
    void started();

private slots:
    void videoDeviceChange(int index);
    void audioDeviceChange(int index);
    void videoFormatChange(int index);
    void videoSourceChange(int index);
    void audioSourceChange(int index);
    void alphaChange(int index);
    void playout(bool on);

private:
    void showName();

    std::unique_ptr<Ui::PlayoutItem> ui;
    OutputInterface* m_host;
    std::unique_ptr<OutputRow> m_row;
};
