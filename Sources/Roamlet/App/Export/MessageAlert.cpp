// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Export/MessageAlert.h"

#include <QMessageBox>

namespace roamlet
{

using namespace Qt::StringLiterals;

void MessageAlert::show(QWidget *parent, const QString &problem, const QString &subject)
{
    auto *box = new QMessageBox(QMessageBox::Critical, tr("Export Bookmarks"),
                                tr("“%1” could not be saved.").arg(subject), QMessageBox::Ok, parent);
    box->setObjectName(u"alert"_s);
    box->setAttribute(Qt::WA_DeleteOnClose);
    // A file's name is no markup.
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(problem);
    box->open();
}

} // namespace roamlet
