#pragma once

#include "provider/eventinfo.h"

#include <QDialog>

#include <memory>

class Provider;
namespace Ui {
class EventDialog;
}

// Collects a live event for a provider: title, start and optional end, description,
// tags, stream type, privacy and category. It sends nothing; the provider does.
class EventDialog : public QDialog
{
    Q_OBJECT
public:
    // Bits of Provider::features(bool) that show the dialog's rows.
    enum Field : quint32 {
        TitleField = 1u << 24,
        TimeField = 1u << 25, // start and end rows; also whether the times are written
        DescriptionField = 1u << 26,
        TagsField = 1u << 27,
        PrivacyField = 1u << 28,
        CategoryField = 1u << 29,
        StreamTypeField = 1u << 30
    };
    static constexpr quint32 allFields = 0x7F000000;

    explicit EventDialog(QWidget* parent = nullptr);
    ~EventDialog() override;

    // Shows the rows the provider asks for (`update`: the dialog edits an existing
    // event) and fills privacy and category from the provider's lists.
    void enableUi(Provider* provider, bool update);
    // Fills the form from an existing event (after enableUi), so an update starts from the
    // service's values; its id goes back with the result.
    void setEvent(const EventInfo& event);
    // Filled when the dialog is accepted.
    const EventInfo& eventInfo() const;

public slots:
    void titleChange();
    void endTimeChange(bool on);
    void streamTypeChange();
    void accept() override;

private:
    void alignLabels();

    std::unique_ptr<Ui::EventDialog> ui;
    quint32 m_fields = allFields;
    EventInfo m_event;
};
