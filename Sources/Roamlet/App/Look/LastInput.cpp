// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/LastInput.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QWidget>

#include <utility>

namespace roamlet
{

namespace
{

/// Sees all that is pressed before whoever it is meant for.
class InputWatch final : public QObject
{
public:
    using QObject::QObject;

    bool isKey() const { return m_isKey; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::ShortcutOverride:
        case QEvent::KeyPress: {
            const auto &key = *static_cast<QKeyEvent *>(event);
            // Nobody who copies looks for a ring.
            if (!isModifier(key) && !key.matches(QKeySequence::Copy))
                note(true);
            break;
        }
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::TouchBegin:
        case QEvent::TabletPress:
            note(false);
            break;
        default:
            break;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void note(bool isKey)
    {
        if (std::exchange(m_isKey, isKey) == isKey)
            return;
        // Some rings are drawn by what is around the widget.
        if (QWidget *focused = QApplication::focusWidget(); focused != nullptr) {
            QWidget *around = focused->isWindow() ? focused : focused->parentWidget();
            around->update();
        }
    }

    bool m_isKey = false;
};

QPointer<const InputWatch> inputWatch;

/// With the application, so that nothing is pressed before.
void watchInput()
{
    auto *watch = new InputWatch(qApp);
    qApp->installEventFilter(watch);
    inputWatch = watch;
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watchInput)

bool isKeyboardUsed()
{
    return inputWatch && inputWatch->isKey();
}

bool isModifier(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Meta:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
        return true;
    default:
        return false;
    }
}

} // namespace roamlet
