#include "recording/encoderrows.h"

#include "recording/encoderitem.h"
#include "widgets/messagebox.h"
#include "widgets/qmessageboxex.h"

#include <QListWidget>

namespace {

EncoderItem* rowWidget(const QListWidget* list, QListWidgetItem* item)
{
    return qobject_cast<EncoderItem*>(list->itemWidget(item));
}

} // namespace

EncoderRows::EncoderRows(QListWidget* list, OutputInterface* host, int kind)
    : m_list(list), m_host(host), m_kind(kind)
{
}

CodecPreset EncoderRows::presetOf(const QListWidgetItem* item)
{
    return item ? item->data(Qt::UserRole).value<CodecPreset>() : CodecPreset();
}

int EncoderRows::count() const
{
    return m_list->count();
}

QList<CodecPreset> EncoderRows::presets() const
{
    QList<CodecPreset> presets;
    for (int row = 0; row < m_list->count(); ++row)
        presets.append(presetOf(m_list->item(row)));
    return presets;
}

QListWidgetItem* EncoderRows::add(const CodecPreset& preset)
{
    auto* item = new QListWidgetItem(m_list);
    item->setData(Qt::UserRole, QVariant::fromValue(preset));
    auto* row = new EncoderItem(nullptr, m_host, m_kind);
    row->setPreset(item, &preset);
    item->setSizeHint(row->size());
    m_list->setItemWidget(item, row);
    return item;
}

bool EncoderRows::setEncoding(bool on)
{
    if (on && m_list->count() == 0)
        return false;
    for (int row = 0; row < m_list->count(); ++row)
        if (EncoderItem* item = rowWidget(m_list, m_list->item(row)))
            item->setChecked(on);
    return true;
}

bool EncoderRows::isEncoding() const
{
    for (int row = 0; row < m_list->count(); ++row) {
        const EncoderItem* item = rowWidget(m_list, m_list->item(row));
        if (item && item->isChecked())
            return true;
    }
    return false;
}

bool EncoderRows::removeCurrent(QWidget* parent, const QString& title, const QString& busyText, const QString& question)
{
    QListWidgetItem* item = m_list->currentItem();
    if (!item)
        return false;
    const EncoderItem* row = rowWidget(m_list, item);
    if (row && row->isChecked()) {
        MessageBox::warning(parent, title, busyText);
        return false;
    }
    if (QMessageBoxEx::question(parent, title, question, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes)
        != QMessageBox::Yes)
        return false;
    m_list->removeItemWidget(item);
    delete item;
    return true;
}
