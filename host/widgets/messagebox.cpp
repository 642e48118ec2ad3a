#include "widgets/messagebox.h"

#include <QQueue>

namespace {
struct Script {
    bool scripted = false;
    QQueue<QMessageBox::StandardButton> answers;
    QList<MessageBox::Shown> shown;
};
Script& script()
{
    static Script s;
    return s;
}

QMessageBox::StandardButton firstButton(QMessageBox::StandardButtons buttons)
{
    for (int bit = QMessageBox::FirstButton; bit <= QMessageBox::LastButton; bit <<= 1)
        if (buttons & bit)
            return QMessageBox::StandardButton(bit);
    return QMessageBox::NoButton;
}
} // namespace

QMessageBox::StandardButton MessageBox::information(QWidget* parent, const QString& title, const QString& text,
                                                    QMessageBox::StandardButtons buttons,
                                                    QMessageBox::StandardButton defaultButton)
{
    return show(Kind::Information, parent, title, text, buttons, defaultButton);
}

QMessageBox::StandardButton MessageBox::question(QWidget* parent, const QString& title, const QString& text,
                                                 QMessageBox::StandardButtons buttons,
                                                 QMessageBox::StandardButton defaultButton)
{
    return show(Kind::Question, parent, title, text, buttons, defaultButton);
}

QMessageBox::StandardButton MessageBox::warning(QWidget* parent, const QString& title, const QString& text,
                                                QMessageBox::StandardButtons buttons,
                                                QMessageBox::StandardButton defaultButton)
{
    return show(Kind::Warning, parent, title, text, buttons, defaultButton);
}

QMessageBox::StandardButton MessageBox::critical(QWidget* parent, const QString& title, const QString& text,
                                                 QMessageBox::StandardButtons buttons,
                                                 QMessageBox::StandardButton defaultButton)
{
    return show(Kind::Critical, parent, title, text, buttons, defaultButton);
}

void MessageBox::setScripted(bool scripted)
{
    script().scripted = scripted;
}

bool MessageBox::isScripted()
{
    return script().scripted;
}

void MessageBox::setNextAnswer(QMessageBox::StandardButton answer)
{
    script().answers.enqueue(answer);
}

QList<MessageBox::Shown> MessageBox::shown()
{
    return script().shown;
}

MessageBox::Shown MessageBox::lastShown()
{
    return script().shown.isEmpty() ? Shown{Kind::Information, QString(), QString()} : script().shown.last();
}

void MessageBox::clear()
{
    script().answers.clear();
    script().shown.clear();
}

QMessageBox::StandardButton MessageBox::show(Kind kind, QWidget* parent, const QString& title, const QString& text,
                                             QMessageBox::StandardButtons buttons,
                                             QMessageBox::StandardButton defaultButton)
{
    Script& s = script();
    s.shown.append(Shown{kind, title, text});
    if (!s.answers.isEmpty())
        return s.answers.dequeue();
    if (s.scripted)
        return defaultButton != QMessageBox::NoButton ? defaultButton : firstButton(buttons);

    const QMessageBox::Icon icon = kind == Kind::Warning ? QMessageBox::Warning
        : kind == Kind::Critical                         ? QMessageBox::Critical
        : kind == Kind::Question                         ? QMessageBox::Question
                                                         : QMessageBox::Information;
    QMessageBox box(icon, title, text, buttons, parent);
    box.setDefaultButton(defaultButton);
    const int answer = box.exec();
    return QMessageBox::StandardButton(answer);
}
