#pragma once

#include <QJsonObject>
#include <QWidget>

#include <memory>

class OutputRow;
struct OutputInfo;

namespace Ui {
class OutputWidget;
}

// One external output: the device, its format, the picture and sound it sends and its keyer.
// The host switches external outputs itself, so the row has no play button.
class OutputWidget : public QWidget
{
    Q_OBJECT
public:
    OutputWidget(QWidget* parent, int number);
    ~OutputWidget() override;

    const OutputInfo& info() const;
    bool isConfigured() const;
    void load(const QJsonObject& playout);
    void store(QJsonObject* playout) const;

private slots:
    void videoDeviceChange(int index);
    void videoFormatChange(int index);
    void videoSourceChange(int index);
    void audioSourceChange(int index);
    void alphaChange(int index);

private:
    std::unique_ptr<Ui::OutputWidget> ui;
    std::unique_ptr<OutputRow> m_row;
};
