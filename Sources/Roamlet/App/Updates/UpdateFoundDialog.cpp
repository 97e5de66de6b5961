// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Updates/UpdateFoundDialog.h"

#include "App/Look/ForeignText.h"
#include "App/Updates/ReleaseNotesView.h"
#include "Platform/Update.h"

#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;
using Choice = UpdateUserInterface::Choice;

UpdateFoundDialog::UpdateFoundDialog(const Update &update, const QString &currentVersion,
                                     const Choose &choose, std::function<void(const QString &url)> openLink,
                                     QWidget *parent)
    : UpdateDialog(
          u"updateFound"_s, [choose] { choose(Choice::Later); }, parent),
      m_notes(new ReleaseNotesView(std::move(openLink)))
{
    const QString version = ForeignText::oneLine(update.displayVersion, ForeignText::longestMenuText);
    setHeading(tr("Roamlet %1 is available").arg(version));
    QStringList sentences{tr("You have version %1.").arg(currentVersion)};
    if (update.size)
        sentences.append(tr("The download takes %1.").arg(locale().formattedDataSize(*update.size)));
    if (update.isCritical)
        sentences.append(tr("This is an important update: please install it soon."));
    setText(sentences.join(u' '));

    m_notes->setObjectName(u"updateNotes"_s);
    m_notes->setAccessibleName(tr("Release notes"));
    m_notes->setMinimumHeight(180);
    m_notes->hide();
    contents().addWidget(m_notes, 1);
    if (update.notes)
        showNotes(*update.notes);

    if (!update.isCritical)
        addButton(u"updateSkip"_s, tr("Skip This Version"), Role::Other, [choose] { choose(Choice::Skip); });
    addButtonSpace();
    addButton(u"updateLater"_s, tr("Remind Me Later"), Role::Other, [choose] { choose(Choice::Later); });
    addButton(u"updateInstall"_s, tr("Install"), Role::Default, [choose] { choose(Choice::Install); });
}

void UpdateFoundDialog::showNotes(const ReleaseNotes &notes)
{
    if (notes.text.isEmpty())
        return;
    m_notes->show(notes);
    m_notes->setVisible(true);
    constexpr QSize sizeWithNotes(560, 420);
    resize(isVisible() ? size().expandedTo(sizeWithNotes) : sizeWithNotes);
}

} // namespace roamlet
