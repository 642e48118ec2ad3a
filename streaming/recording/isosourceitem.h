#pragma once

#include <QString>
#include <QWidget>

#include <memory>

class Media;

namespace Ui {
class IsoSourceItem;
}

// One source row of the ISO dialog: the source's name, the device it comes from and the
// media bin its file goes to.
class IsoSourceItem : public QWidget
{
    Q_OBJECT
public:
    explicit IsoSourceItem(QWidget* parent = nullptr);
    ~IsoSourceItem() override;

    // Shows the name and the media's video device description (none without media).
    void setSource(const QString& name, Media* media);
    QString sourceName() const { return m_name; }
    Media* media() const { return m_media; }
    QString deviceText() const;

    QString mediaBin() const;
    // No bin of that name leaves the choice as it is.
    void selectMediaBin(const QString& bin);
    void resetMediaBin();

private:
    std::unique_ptr<Ui::IsoSourceItem> ui;
    QString m_name;
    Media* m_media = nullptr;
};
