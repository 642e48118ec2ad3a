#pragma once

#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>

// Answers the next modal dialog from inside its exec(): once the event loop runs,
// the active modal widget of type T is handed to act (which accepts or rejects it).
// found() tells afterwards whether such a dialog came up at all.
template <typename T>
class ModalDriver
{
public:
    explicit ModalDriver(std::function<void(T*)> act) : m_found(std::make_shared<bool>(false))
    {
        auto found = m_found;
        QTimer::singleShot(0, [found, act] {
            QPointer<T> dialog = qobject_cast<T*>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            *found = true;
            act(dialog);
            if (dialog && dialog->isVisible())
                dialog->close(); // never leave a test hanging in exec()
        });
    }

    bool found() const { return *m_found; }

private:
    std::shared_ptr<bool> m_found;
};
