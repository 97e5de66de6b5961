// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Look/Fade.h"

#include <QPoint>
#include <QString>
#include <QWidget>

#include <optional>

namespace roamlet
{

/// Shows the whole address and date of a row at the lower edge of a list. It lies over the list and is no
/// obstacle to the mouse.
class RowBubble final : public QWidget
{
public:
    /// Lies in the list's viewport.
    explicit RowBubble(QWidget *viewport);

    /// Tells of a row, in the lower leading corner, or in the other one where the pointer is near.
    void showRow(const QString &address, const QString &date);
    /// There is nothing more to tell.
    void dismiss();
    /// Goes out of the pointer's way: into the other corner, and where that is near, too, out of sight.
    /// Without a pointer nothing is in the way.
    void avoid(const std::optional<QPoint> &pointer);
    /// The viewport has another size, or was scrolled with all that lies in it.
    void place();

    const QString &address() const { return m_address; }
    const QString &date() const { return m_date; }

protected:
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString shownAddress(int width) const;
    QRect placeAt(bool isTheEnd) const;

    QString m_address;
    QString m_date;
    std::optional<QPoint> m_pointer;
    bool m_isWanted = false;
    bool m_isAtTheEnd = false;
    Fade m_coming;
};

} // namespace roamlet
