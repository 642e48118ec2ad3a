#include "widgets/listwidget.h"

ListWidget::ListWidget(QWidget* parent) : QListWidget(parent)
{
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
}
