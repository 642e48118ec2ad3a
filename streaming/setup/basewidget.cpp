#include "setup/basewidget.h"
#include "ui_basewidget.h"

BaseWidget::BaseWidget(QWidget* parent)
    : QWidget(parent), ui(std::make_unique<Ui::BaseWidget>())
{
    ui->setupUi(this);
    // As tall as its visible rows: the spare height goes to the preset list below.
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    ui->providerSelect->setIconSize(QSize(18, 18));
    ui->providerSelect->setMinimumHeight(20);
    // Never cut a service's name: the window widens instead (the translated buttons beside
    // the list are wider in some languages).
    ui->providerSelect->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    ui->providerSelect->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed);
    connect(ui->showKey, &QToolButton::toggled, this, &BaseWidget::showStreamKey);
}

BaseWidget::~BaseWidget() = default;

void BaseWidget::showStreamKey(bool on)
{
    ui->streamKey->setEchoMode(on ? QLineEdit::Normal : QLineEdit::Password);
}
