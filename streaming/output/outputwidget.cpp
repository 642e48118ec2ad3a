#include "output/outputwidget.h"
#include "ui_outputwidget.h"

#include "output/outputrow.h"

OutputWidget::OutputWidget(QWidget* parent, int number) : QWidget(parent), ui(new Ui::OutputWidget)
{
    ui->setupUi(this);
    ui->outputLabel->setText(tr("Output %1:").arg(number));
    OutputRow::Controls controls;
    controls.device = ui->deviceList;
    controls.format = ui->formatList;
    controls.videoSource = ui->videoSourceList;
    controls.audioSource = ui->audioSourceList;
    controls.alpha = ui->alphaList;
    m_row = std::make_unique<OutputRow>(OutputLists::External, 0, number, controls);

    const auto changed = qOverload<int>(&QComboBox::currentIndexChanged);
    connect(ui->deviceList, changed, this, &OutputWidget::videoDeviceChange);
    connect(ui->formatList, changed, this, &OutputWidget::videoFormatChange);
    connect(ui->videoSourceList, changed, this, &OutputWidget::videoSourceChange);
    connect(ui->audioSourceList, changed, this, &OutputWidget::audioSourceChange);
    connect(ui->alphaList, changed, this, &OutputWidget::alphaChange);
}

OutputWidget::~OutputWidget() = default;

const OutputInfo& OutputWidget::info() const
{
    return m_row->info();
}

bool OutputWidget::isConfigured() const
{
    return m_row->isConfigured();
}

void OutputWidget::load(const QJsonObject& playout)
{
    m_row->load(playout);
}

void OutputWidget::store(QJsonObject* playout) const
{
    m_row->store(playout);
}

void OutputWidget::videoDeviceChange(int)
{
    m_row->deviceChanged();
}

void OutputWidget::videoFormatChange(int)
{
    m_row->formatChanged();
}

void OutputWidget::videoSourceChange(int)
{
    m_row->videoSourceChanged();
}

void OutputWidget::audioSourceChange(int)
{
    m_row->audioSourceChanged();
}

void OutputWidget::alphaChange(int)
{
    m_row->alphaChanged();
}
