// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Updates/UpdateProgressDialog.h"

#include <QLocale>
#include <QProgressBar>
#include <QVBoxLayout>

#include <algorithm>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// The bar counts in ints, and a file can be larger.
constexpr int barLength = 1000;

} // namespace

UpdateProgressDialog::UpdateProgressDialog(const QString &name, const QString &heading, const Answer &cancel,
                                           QWidget *parent)
    : UpdateDialog(name, cancel, parent), m_bar(new QProgressBar)
{
    setHeading(heading);
    m_bar->setObjectName(u"updateProgress"_s);
    m_bar->setAccessibleName(heading);
    m_bar->setTextVisible(false);
    contents().addWidget(m_bar);
    setProgress({}, {});
    addButtonSpace();
    addButton(u"updateCancel"_s, tr("Cancel"), Role::Default, cancel);
}

void UpdateProgressDialog::setProgress(std::optional<std::int64_t> received,
                                       std::optional<std::int64_t> total)
{
    const bool isKnown = received && total && *total > 0;
    m_bar->setRange(0, isKnown ? barLength : 0);
    if (isKnown) {
        const double share = static_cast<double>(*received) / static_cast<double>(*total);
        m_bar->setValue(static_cast<int>(std::clamp(share, 0.0, 1.0) * barLength));
    }
    const auto size = [this](std::int64_t bytes) { return locale().formattedDataSize(bytes); };
    if (isKnown)
        setText(tr("%1 of %2").arg(size(std::min(*received, *total)), size(*total)));
    else
        setText(received ? size(*received) : QString());
}

} // namespace roamlet
