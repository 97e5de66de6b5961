// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QWidget>

namespace roamlet
{

/// Shows the whole address and date of a row at the lower edge of a list. It lies over the list and is no
/// obstacle to the mouse.
class RowBubble final : public QWidget
{
public:
    /// Lies in the list's viewport.
    explicit RowBubble(QWidget *viewport);

    /// Shows these in the lower leading corner, or in the other one where the pointer is near.
    void showRow(const QString &address, const QString &date);
    /// Goes out of the pointer's way.
    void avoid(const QPoint &pointer);
    /// The viewport has another size.
    void place();

    const QString &address() const { return m_address; }
    const QString &date() const { return m_date; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString shownAddress(int width) const;

    QString m_address;
    QString m_date;
    bool m_isAtTheEnd = false;
};

} // namespace roamlet
