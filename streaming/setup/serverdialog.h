#pragma once

#include "stores/channel.h"
#include "stores/oauth.h"

#include <QDialog>

#include <memory>

namespace Ui {
class ServerDialog;
}

// Edits one server of the user's own: title, URL, stream key, SRT options and
// credentials. The records follow every edit; the caller copies them once accepted.
class ServerDialog : public QDialog
{
    Q_OBJECT
public:
    explicit ServerDialog(QWidget* parent = nullptr);
    ~ServerDialog() override;

    using QDialog::exec;
    // Fills the form from both records when both are given, then runs the dialog.
    int exec(const Channel* channel, const OAuth* oauth);
    void load(const Channel& channel, const OAuth& oauth);

    // The server part: title, url, key, mode, filter, port, latency, keyLength,
    // passphrase, streamId.
    Channel& channel();
    // The credentials: username, password, and authorized = "Use authentication".
    OAuth& oauth();

public slots:
    void titleChange();
    void showPassword(bool on);
    void showStreamKey(bool on);
    void accept() override;

private:
    void alignLabels();

    std::unique_ptr<Ui::ServerDialog> ui;
    Channel m_channel;
    OAuth m_oauth;
};
