#include "widgets/tabwidget.h"

TabWidget::TabWidget(QWidget* parent) : QTabWidget(parent)
{
    setDocumentMode(true);
}
