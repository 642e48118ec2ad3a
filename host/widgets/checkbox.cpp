#include "widgets/checkbox.h"

CheckBox::CheckBox(QWidget* parent) : QCheckBox(parent)
{
}

CheckBox::CheckBox(const QString& text, QWidget* parent) : QCheckBox(text, parent)
{
}
