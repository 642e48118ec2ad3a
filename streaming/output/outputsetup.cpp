#include "output/outputsetup.h"
#include "ui_outputsetup.h"

#include "codec/codectables.h"
#include "interface/outputinterface.h"
#include "output/outputrow.h"
#include "output/outputwidget.h"
#include "records/licensemodel.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace {

const char settingsKey[] = "PLAYOUT";

} // namespace

OutputSetup::OutputSetup(QWidget* parent, OutputInterface* host)
    : QDialog(parent), ui(new Ui::OutputSetup), host(host)
{
    ui->setupUi(this);
    if (QPushButton* cancel = ui->buttonBox->button(QDialogButtonBox::Cancel))
        cancel->setText(tr("Cancel"));
    auto* layout = new QVBoxLayout(ui->container);
    layout->setContentsMargins(0, 0, 0, 0);
    const LicenseModel& license = CodecTables::licenseModel();
    ui->maxResolution->setText(tr("Max Resolution: %1x%2").arg(license.maxWidth()).arg(license.maxHeight()));
    ui->maxOutput->setText(tr("Max Output: %1").arg(license.maxOutput()));
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &OutputSetup::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &OutputSetup::reject);
    buildOutputs();
}

OutputSetup::~OutputSetup() = default;

void OutputSetup::buildOutputs()
{
    qDeleteAll(m_rows);
    m_rows.clear();
    auto* layout = static_cast<QVBoxLayout*>(ui->container->layout());
    while (QLayoutItem* item = layout->takeAt(0))
        delete item;
    // As many rows as the licence allows outputs.
    for (int number = 1; number <= CodecTables::licenseModel().maxOutput(); ++number) {
        auto* row = new OutputWidget(ui->container, number);
        layout->addWidget(row);
        m_rows.append(row);
    }
    layout->addStretch(1);
}

int OutputSetup::exec()
{
    reloadPresets();
    return QDialog::exec();
}

void OutputSetup::reloadPresets()
{
    const QJsonObject playout = OutputRow::storedPlayout(host);
    for (OutputWidget* row : qAsConst(m_rows))
        row->load(playout);
}

bool OutputSetup::validCheck()
{
    m_outputInfos.clear();
    for (const OutputWidget* row : qAsConst(m_rows))
        if (row->isConfigured())
            m_outputInfos.append(row->info());
    return !m_outputInfos.isEmpty();
}

const QList<OutputInfo>& OutputSetup::outputInfos() const
{
    return m_outputInfos;
}

void OutputSetup::accept()
{
    if (host) {
        // The playout rows' entries share the object and stay as they are.
        QJsonObject playout = OutputRow::storedPlayout(host);
        for (const OutputWidget* row : qAsConst(m_rows))
            row->store(&playout);
        host->setSettingsObject(QLatin1String(settingsKey), playout);
    }
    QDialog::accept();
}
