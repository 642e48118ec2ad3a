#include "recording/isosourceitem.h"

#include "ui_isosourceitem.h"

#include "records/media.h"

namespace {

const char* const mediaBins[] = {QT_TRANSLATE_NOOP("IsoSourceItem", "None"), QT_TRANSLATE_NOOP("IsoSourceItem", "CLIP 1"),
                                 QT_TRANSLATE_NOOP("IsoSourceItem", "CLIP 2")};

} // namespace

IsoSourceItem::IsoSourceItem(QWidget* parent) : QWidget(parent), ui(std::make_unique<Ui::IsoSourceItem>())
{
    ui->setupUi(this);
    for (const char* bin : mediaBins)
        ui->mediaBin->addItem(tr(bin), QString::fromLatin1(bin));
    ui->mediaBin->setCurrentIndex(0);
}

IsoSourceItem::~IsoSourceItem() = default;

void IsoSourceItem::setSource(const QString& name, Media* media)
{
    m_name = name;
    m_media = media;
    ui->cameraName->setText(name);
    ui->deviceName->setText(media ? media->mediaPreset().videoDevice() : QString());
}

QString IsoSourceItem::deviceText() const
{
    return ui->deviceName->text();
}

QString IsoSourceItem::mediaBin() const
{
    return ui->mediaBin->currentData().toString();
}

void IsoSourceItem::selectMediaBin(const QString& bin)
{
    const int index = ui->mediaBin->findData(bin);
    if (index >= 0)
        ui->mediaBin->setCurrentIndex(index);
}

void IsoSourceItem::resetMediaBin()
{
    ui->mediaBin->setCurrentIndex(0);
}
