// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Window/Strip.h"

#include <QImage>

#include <optional>

class QLabel;

namespace roamlet
{

class ElidedLabel;

/// Says that the list shows one site only, and lets the user see all again.
class SiteFilterBar final : public Strip
{
    Q_OBJECT

public:
    explicit SiteFilterBar(QWidget *parent = nullptr);

    /// The site, and its icon if it has one.
    void setSite(const QString &site, const std::optional<QImage> &image);

Q_SIGNALS:
    void clearRequested();

protected:
    void updateLook() override;

private:
    QLabel *m_icon;
    ElidedLabel *m_text;
};

} // namespace roamlet
