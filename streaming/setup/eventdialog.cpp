#include "setup/eventdialog.h"

#include "provider/provider.h"
#include "ui_eventdialog.h"

#include <QDateTime>
#include <QLoggingCategory>
#include <QPushButton>

namespace {
Q_LOGGING_CATEGORY(lcEventDialog, "streaming.setup.event")

const QString ambient = QStringLiteral("AMBIENT");
const QString recordFormat = QStringLiteral("yyyy-MM-dd'T'HH:mm:ss.zzz'Z'");

// The chosen date and "hh:mm" are UTC; building the instant through an ISO text with
// "Z" keeps it out of the local zone (whose gaps and folds would shift it).
QDateTime utcInstant(const QDate& date, const QString& time)
{
    const QTime chosen = QTime::fromString(time, QStringLiteral("hh:mm"));
    const QString text = date.toString(QStringLiteral("yyyy-MM-dd"))
                         + QStringLiteral("T%1:%2:00.000Z")
                               .arg(chosen.hour(), 2, 10, QLatin1Char('0'))
                               .arg(chosen.minute(), 2, 10, QLatin1Char('0'));
    return QDateTime::fromString(text, Qt::ISODateWithMs);
}

// Shows a stored instant in the date and time controls, as UTC; false for no instant.
// A time off the half-hour grid is added to the list, so it goes back unchanged.
bool showInstant(const QString& text, QDateEdit* date, QComboBox* time)
{
    const QDateTime instant = QDateTime::fromString(text, Qt::ISODateWithMs).toUTC();
    if (!instant.isValid())
        return false;
    date->setDate(instant.date());
    const QString hhmm = instant.time().toString(QStringLiteral("hh:mm"));
    int index = 0;
    while (index < time->count() && time->itemText(index) < hhmm)
        ++index;
    if (index == time->count() || time->itemText(index) != hhmm)
        time->insertItem(index, hhmm);
    time->setCurrentIndex(index);
    return true;
}

void selectData(QComboBox* list, const QString& data)
{
    const int index = list->findData(data);
    if (index >= 0)
        list->setCurrentIndex(index);
}
} // namespace

EventDialog::EventDialog(QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::EventDialog>())
{
    ui->setupUi(this);
    ui->buttonBox->button(QDialogButtonBox::Ok)->setText(tr("OK"));
    ui->buttonBox->button(QDialogButtonBox::Cancel)->setText(tr("Cancel"));

    const QDate today = QDate::currentDate();
    ui->startDateTime->setDate(today);
    ui->endDateTime->setDate(today);
    for (int hour = 0; hour < 24; ++hour) {
        for (const char* minutes : {"00", "30"}) {
            const QString time = QStringLiteral("%1:%2").arg(hour, 2, 10, QLatin1Char('0')).arg(QLatin1String(minutes));
            ui->startTime->addItem(time);
            ui->endTime->addItem(time);
        }
    }
    ui->endTime->setEnabled(false);

    ui->streamtype->addItem(tr("REGULAR LIVE"), QStringLiteral("REGULAR"));
    ui->streamtype->addItem(tr("CONTINOUS LIVE"), ambient);
    ui->fbinfo->hide();
    alignLabels();

    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &EventDialog::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(ui->title, &QLineEdit::textChanged, this, &EventDialog::titleChange);
    connect(ui->enableEndTime, &QCheckBox::toggled, ui->endDateTime, &QWidget::setEnabled);
    connect(ui->enableEndTime, &QCheckBox::toggled, this, &EventDialog::endTimeChange);
    connect(ui->streamtype, qOverload<int>(&QComboBox::currentIndexChanged), this, &EventDialog::streamTypeChange);
    titleChange();
}

EventDialog::~EventDialog() = default;

void EventDialog::enableUi(Provider* provider, bool update)
{
    m_fields = provider ? provider->features(update) : allFields;
    ui->titleContainer->setVisible(m_fields & TitleField);
    ui->startTimeContainer->setVisible(m_fields & TimeField);
    ui->endTimeContainer->setVisible(m_fields & TimeField);
    ui->descriptionContainer->setVisible(m_fields & DescriptionField);
    ui->tagsContainer->setVisible(m_fields & TagsField);
    ui->privacyContainer->setVisible(m_fields & PrivacyField);
    ui->cartegoryContainer->setVisible(m_fields & CategoryField);
    ui->streamTypeContainer->setVisible(m_fields & StreamTypeField);

    ui->privacy->clear();
    ui->category->clear();
    if (!provider)
        return;
    for (const LabelPair& privacy : provider->privacies())
        ui->privacy->addItem(privacy.first, privacy.second);
    for (const LabelPair& category : provider->categories())
        ui->category->addItem(category.first, category.second);
}

void EventDialog::setEvent(const EventInfo& event)
{
    m_event = event;
    ui->title->setText(event.title);
    ui->decription->setPlainText(event.description);
    ui->tags->setText(event.tags);
    selectData(ui->streamtype, event.streamType);
    const int privacy = ui->privacy->findText(event.privacy);
    if (privacy >= 0)
        ui->privacy->setCurrentIndex(privacy);
    selectData(ui->category, event.category);
    showInstant(event.startTime, ui->startDateTime, ui->startTime);
    ui->enableEndTime->setChecked(showInstant(event.endTime, ui->endDateTime, ui->endTime));
}

const EventInfo& EventDialog::eventInfo() const
{
    return m_event;
}

void EventDialog::titleChange()
{
    qCDebug(lcEventDialog) << "titleChange";
    ui->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(!ui->title->text().isEmpty());
}

void EventDialog::endTimeChange(bool on)
{
    qCDebug(lcEventDialog) << "endTimeChange" << on;
    ui->endTime->setEnabled(on);
}

void EventDialog::streamTypeChange()
{
    qCDebug(lcEventDialog) << "streamTypeChange";
    if (ui->streamtype->currentData().toString() == ambient) {
        ui->fbinfo->setText(tr("unlimited live stream on Facebook"));
        ui->fbinfo->show();
    } else {
        ui->fbinfo->hide();
        ui->fbinfo->clear();
    }
}

void EventDialog::accept()
{
    qCDebug(lcEventDialog) << "accept";
    const QDateTime start = utcInstant(ui->startDateTime->date(), ui->startTime->currentText());
    const QDateTime end = utcInstant(ui->endDateTime->date(), ui->endTime->currentText());

    m_event.title = ui->title->text();
    m_event.description = ui->decription->toPlainText();
    m_event.privacy = ui->privacy->currentText();
    m_event.tags = ui->tags->text();
    m_event.category = ui->category->currentData().toString();
    m_event.streamType = ui->streamtype->currentData().toString();
    m_event.startTime.clear();
    m_event.endTime.clear();
    if (m_fields & TimeField) {
        m_event.startTime = start.toString(recordFormat);
        if (ui->enableEndTime->isChecked())
            m_event.endTime = end.toString(recordFormat);
    }
    QDialog::accept();
}

void EventDialog::alignLabels()
{
    const QList<QLabel*> labels{ui->label_title,       ui->label_startTime, ui->labelEndTime,
                                ui->label_description, ui->label_tags,      ui->label_streamtype,
                                ui->fbinfoIndent,      ui->label_privacy,   ui->label_cartegory};
    int width = 0;
    for (const QLabel* label : labels)
        width = qMax(width, label->fontMetrics().horizontalAdvance(label->text()));
    for (QLabel* label : labels)
        label->setMinimumWidth(width);
    ui->label_description->setAlignment(Qt::AlignLeft | Qt::AlignTop);
}
