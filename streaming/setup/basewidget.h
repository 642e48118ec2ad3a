#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class BaseWidget;
}

// The provider panel of the streaming dialog: service, account buttons, ingest
// server, channel, page and stream key. The dialog drives it; the panel only
// owns its form and the key's echo mode.
class BaseWidget : public QWidget
{
    Q_OBJECT
public:
    explicit BaseWidget(QWidget* parent = nullptr);
    ~BaseWidget() override;

    // The generated form, for the dialog and its helpers.
    Ui::BaseWidget* form() const { return ui.get(); }

public slots:
    // Shows the stream key as plain text while `on`.
    void showStreamKey(bool on);

private:
    std::unique_ptr<Ui::BaseWidget> ui;
};
