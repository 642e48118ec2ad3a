#include "setup/serverdialog.h"

#include "ui_serverdialog.h"
#include "widgets/messagebox.h"

#include <QCompleter>
#include <QIntValidator>
#include <QPushButton>

namespace {
enum class Scheme { Unknown, Rtmp, Srt, Plain };

Scheme schemeOf(const QString& url)
{
    const auto has = [&url](const char* scheme) { return url.contains(QLatin1String(scheme), Qt::CaseInsensitive); };
    if (has("rtmp://") || has("rtmps://"))
        return Scheme::Rtmp;
    if (has("srt://"))
        return Scheme::Srt;
    if (has("rtsp://") || has("tcp://") || has("udp://"))
        return Scheme::Plain;
    return Scheme::Unknown;
}

constexpr int minimumLabelWidth = 60;
constexpr int minimumPassphraseLength = 10;
} // namespace

ServerDialog::ServerDialog(QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::ServerDialog>())
{
    ui->setupUi(this);
    ui->buttonBox->button(QDialogButtonBox::Ok)->setText(tr("OK"));
    ui->buttonBox->button(QDialogButtonBox::Cancel)->setText(tr("Cancel"));
    ui->srtFilter->addItem(tr("none"), QString(QLatin1String("")));
    ui->srtFilter->addItem(tr("fec"), QStringLiteral("fec,cols:20,rows:20"));
    ui->srtFilter->setCurrentIndex(0);

    auto* completer = new QCompleter(
        QStringList{QStringLiteral("rtmp://"), QStringLiteral("rtmps://"), QStringLiteral("rtsp://"),
                    QStringLiteral("srt://"), QStringLiteral("tcp://"), QStringLiteral("udp://")},
        this);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    ui->streamUrlInput->setCompleter(completer);
    ui->srtPort->setValidator(new QIntValidator(0, 2147483647, this));
    ui->srtLatency->setValidator(new QIntValidator(0, 2147483647, this));

    ui->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(false);
    ui->streamKeyContainer->hide();
    ui->useAuthContainer->hide();
    ui->authContainer->hide();
    ui->srtModeContainer->hide();
    alignLabels();

    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &ServerDialog::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(ui->showStreamKey, &QToolButton::toggled, this, &ServerDialog::showStreamKey);
    connect(ui->showPassword, &QToolButton::toggled, this, &ServerDialog::showPassword);
    // Shown before titleChange runs, so titleChange has the last word for SRT and plain URLs.
    connect(ui->useAuth, &QCheckBox::toggled, ui->authContainer, &QWidget::setVisible);
    for (QLineEdit* edit : {ui->title, ui->streamUrlInput, ui->streamKeyInput, ui->username, ui->password,
                            ui->srtPort, ui->srtLatency, ui->srtPassphrase, ui->srtStreamID})
        connect(edit, &QLineEdit::textChanged, this, &ServerDialog::titleChange);
    connect(ui->useAuth, &QCheckBox::toggled, this, &ServerDialog::titleChange);
    for (QComboBox* combo : {ui->srtMode, ui->srtFilter, ui->srtKeyLength})
        connect(combo, qOverload<int>(&QComboBox::currentIndexChanged), this, &ServerDialog::titleChange);

    titleChange();
}

ServerDialog::~ServerDialog() = default;

int ServerDialog::exec(const Channel* channel, const OAuth* oauth)
{
    if (channel && oauth)
        load(*channel, *oauth);
    titleChange();
    return QDialog::exec();
}

void ServerDialog::load(const Channel& channel, const OAuth& oauth)
{
    ui->title->setText(channel.title);
    ui->streamUrlInput->setText(channel.url);
    ui->streamKeyInput->setText(channel.key);
    ui->useAuth->setChecked(oauth.authorized);
    ui->username->setText(oauth.username);
    ui->password->setText(oauth.password);
    ui->srtMode->setCurrentText(channel.mode);
    ui->srtFilter->setCurrentIndex(channel.filter.contains(QLatin1String("fec")) ? 1 : 0);
    ui->srtPort->setText(QString::number(channel.port));
    ui->srtLatency->setText(QString::number(channel.latency));
    ui->srtKeyLength->setCurrentText(QString::number(channel.keyLength));
    ui->srtPassphrase->setText(channel.passphrase);
    ui->srtStreamID->setText(channel.streamId);
    titleChange();
}

Channel& ServerDialog::channel()
{
    return m_channel;
}

OAuth& ServerDialog::oauth()
{
    return m_oauth;
}

void ServerDialog::titleChange()
{
    m_oauth.authorized = ui->useAuth->isChecked();
    m_oauth.username = ui->username->text();
    m_oauth.password = ui->password->text();
    m_channel.title = ui->title->text();
    m_channel.url = ui->streamUrlInput->text();
    m_channel.key = ui->streamKeyInput->text();
    m_channel.mode = ui->srtMode->currentText();
    m_channel.filter = ui->srtFilter->currentData().toString();
    m_channel.port = ui->srtPort->text().toInt();
    m_channel.latency = ui->srtLatency->text().toInt();
    m_channel.keyLength = ui->srtKeyLength->currentText().toInt();
    m_channel.passphrase = ui->srtPassphrase->text();
    m_channel.streamId = ui->srtStreamID->text();

    const Scheme scheme = schemeOf(m_channel.url);
    if (scheme == Scheme::Unknown)
        return;

    const bool named = !m_channel.title.isEmpty() && !m_channel.url.isEmpty();
    QPushButton* ok = ui->buttonBox->button(QDialogButtonBox::Ok);
    switch (scheme) {
    case Scheme::Rtmp:
        ok->setEnabled(named && !m_channel.key.isEmpty());
        ui->streamKeyContainer->show();
        ui->useAuthContainer->show();
        // A box ticked while the URL was SRT must bring its fields back.
        ui->authContainer->setVisible(m_oauth.authorized);
        ui->srtModeContainer->hide();
        break;
    case Scheme::Srt: {
        ok->setEnabled(named);
        ui->streamKeyContainer->hide();
        ui->useAuthContainer->hide();
        ui->authContainer->hide();
        ui->srtModeContainer->show();
        const bool caller = m_channel.mode == QLatin1String("caller");
        ui->srtStreamID->setVisible(caller);
        ui->srtStreamIDLabel->setVisible(caller);
        break;
    }
    case Scheme::Plain:
        ok->setEnabled(named);
        ui->streamKeyContainer->hide();
        ui->useAuthContainer->hide();
        ui->authContainer->hide();
        ui->srtModeContainer->hide();
        break;
    case Scheme::Unknown:
        break;
    }
}

void ServerDialog::showPassword(bool on)
{
    ui->srtPassphrase->setEchoMode(on ? QLineEdit::Normal : QLineEdit::Password);
}

void ServerDialog::showStreamKey(bool on)
{
    ui->streamKeyInput->setEchoMode(on ? QLineEdit::Normal : QLineEdit::Password);
}

void ServerDialog::accept()
{
    const QString passphrase = ui->srtPassphrase->text();
    // Only too short a passphrase is refused here; the upper bound is left to the engine.
    if (!passphrase.isEmpty() && passphrase.size() < minimumPassphraseLength) {
        MessageBox::warning(this, tr("warning"), tr("Encryption characters must be between 10 and 79 characters."));
        return;
    }
    QDialog::accept();
}

void ServerDialog::alignLabels()
{
    const QList<QLabel*> labels{ui->titleLabel,       ui->streamUrlLabel,   ui->typeIndent,
                                ui->streamKeyLabel,   ui->srtModeLabel,     ui->srtPortLabel,
                                ui->srtLatencyLabel,  ui->srtPassphraseLabel, ui->srtKeyLengthLabel,
                                ui->srtStreamIDLabel, ui->srtFilterLabel,   ui->useAuthIndent,
                                ui->usernameLabel,    ui->passwordLabel};
    int width = minimumLabelWidth;
    for (const QLabel* label : labels)
        width = qMax(width, label->fontMetrics().horizontalAdvance(label->text()));
    for (QLabel* label : labels)
        label->setMinimumWidth(width);
}
