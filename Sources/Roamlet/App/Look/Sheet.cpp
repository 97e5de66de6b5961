// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/Sheet.h"

#include "App/Look/Hairline.h"
#include "App/Look/Look.h"
#include "App/Look/Motion.h"
#include "App/Look/Painting.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QPainter>
#include <QPushButton>

namespace roamlet
{

namespace
{

/// The round corners are at the bottom: the upper edge lies under the window's frame.
QRectF cardOutline(const QRectF &rect, qreal radius)
{
    return rect.adjusted(0, -2 * radius, 0, 0);
}

/// The part of the sheet that comes down.
class SheetCard final : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        const Look look = Look::of(*this);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const qreal half = hairline(painter) / 2;
        painter.setPen(QPen(look.outline, 2 * half));
        painter.setBrush(look.page.base);
        const qreal radius = look.measures.boxRadius;
        painter.drawRoundedRect(cardOutline(QRectF(rect()).adjusted(half, half, -half, -half), radius),
                                radius, radius);
    }
};

/// Read out as a dialog, which it is.
QAccessibleInterface *makeAccessibleSheet(const QString & /*className*/, QObject *object)
{
    auto *sheet = qobject_cast<Sheet *>(object);
    return sheet == nullptr ? nullptr : new QAccessibleWidget(sheet, QAccessible::Dialog);
}

} // namespace

Sheet::Sheet(QWidget *window)
    : QWidget(window), m_card(new SheetCard(this)), m_before(window->window()->focusWidget())
{
    static const bool isKnown = [] {
        QAccessible::installFactory(makeAccessibleSheet);
        return true;
    }();
    Q_UNUSED(isKnown)
    hide();
    setAttribute(Qt::WA_DeleteOnClose);
    // Where nothing in it can have the keyboard, such as while it is busy.
    setFocusPolicy(Qt::ClickFocus);
    m_coming.setStartValue(0.0);
    m_coming.setEndValue(1.0);
    m_coming.setEasingCurve(QEasingCurve::OutCubic);
    connect(&m_coming, &QVariantAnimation::valueChanged, this, [this] {
        place();
        update();
    });
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget * /*before*/, QWidget *now) { keepFocus(now); });
    m_card->installEventFilter(this);
    window->installEventFilter(this);
}

Sheet::~Sheet()
{
    // A widget gives up the keyboard when it is no sheet any more.
    disconnect(qApp, nullptr, this, nullptr);
}

void Sheet::open()
{
    const QWidget &window = *parentWidget();
    QWidget *const first = focusWidget();
    constexpr int milliseconds = 180;
    if (const int time = motionTime(*this, milliseconds); time > 0) {
        m_coming.setDuration(time);
        m_coming.start();
    }
    if (const int missing = cardSize(window.width()).height() - window.height(); missing > 0)
        window.window()->resize(window.window()->size() + QSize(0, missing));
    setGeometry(window.rect());
    place();
    raise();
    show();
    (first != nullptr ? first : this)->setFocus();
    QAccessibleEvent opened(this, QAccessible::DialogStart);
    QAccessible::updateAccessibility(&opened);
}

void Sheet::accept()
{
    close();
}

void Sheet::reject()
{
    close();
}

bool Sheet::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::ToolTip:
        // What is not for the sheet is for nobody: the window below has to wait.
        event->accept();
        return true;
    default:
        return QWidget::event(event);
    }
}

bool Sheet::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize) {
        setGeometry(parentWidget()->rect());
    } else if (watched == m_card && event->type() == QEvent::LayoutRequest) {
        place();
    } else if (watched == window() && event->type() == QEvent::Close && isVisible()) {
        // The sheet closes first, and one that cannot do so now keeps its window.
        reject();
        if (isVisible()) {
            event->ignore();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

bool Sheet::focusNextPrevChild(bool next)
{
    QWidget *const from = focusWidget() != nullptr ? focusWidget() : this;
    for (QWidget *widget = from;;) {
        widget = next ? widget->nextInFocusChain() : widget->previousInFocusChain();
        if (widget == from || widget == nullptr) {
            // The keyboard stays in the sheet also while nothing in it can be used.
            if (!from->isEnabled())
                setFocus();
            return true;
        }
        if (isAncestorOf(widget) && widget->isVisibleTo(this) && widget->isEnabled() &&
            widget->focusProxy() == nullptr && (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus) {
            widget->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
    }
}

void Sheet::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Cancel)) {
        reject();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        for (QPushButton *button : findChildren<QPushButton *>()) {
            if (button->isDefault() && button->isEnabled()) {
                button->click();
                break;
            }
        }
    }
    event->accept();
}

void Sheet::paintEvent(QPaintEvent * /*event*/)
{
    const Look look = Look::of(*this);
    QPainter painter(this);
    QColor scrim = look.scrim;
    scrim.setAlphaF(static_cast<float>(scrim.alphaF() * progress()));
    painter.fillRect(rect(), scrim);
    const qreal radius = look.measures.boxRadius;
    drawShadow(painter, cardOutline(m_card->geometry(), radius), radius, look);
}

void Sheet::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    place();
}

void Sheet::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (event->spontaneous())
        return;
    m_coming.stop();
    if (m_before != nullptr)
        m_before->setFocus();
    QAccessibleEvent closed(this, QAccessible::DialogEnd);
    QAccessible::updateAccessibility(&closed);
}

QSize Sheet::cardSize(int room) const
{
    // In some languages, and in some fonts, the words need more.
    const int width = qMin(qMax(Look::of(*this).measures.sheetWidth, m_card->sizeHint().width()), room);
    return {width, m_card->hasHeightForWidth() ? m_card->heightForWidth(width) : m_card->sizeHint().height()};
}

void Sheet::place()
{
    const QSize card = cardSize(width()).boundedTo(size());
    m_card->setGeometry((width() - card.width()) / 2, qRound(card.height() * (progress() - 1)), card.width(),
                        card.height());
}

void Sheet::keepFocus(QWidget *focused)
{
    if (!isVisible() || focused == nullptr || focused->window() != window() || focused == this ||
        isAncestorOf(focused))
        return;
    focusNextPrevChild(true);
}

double Sheet::progress() const
{
    return m_coming.state() == QAbstractAnimation::Running ? m_coming.currentValue().toDouble() : 1;
}

} // namespace roamlet
