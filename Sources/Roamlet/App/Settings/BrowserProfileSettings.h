// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace roamlet
{

class Library;
class NoteLabel;
class Opener;
class ProfileList;

/// The tab in which the user turns browser profiles on and off and puts them in order.
class BrowserProfileSettings final : public QWidget
{
    Q_OBJECT

public:
    BrowserProfileSettings(Library &library, Opener &opener, QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    void followWindow();
    void updatePlaceholder();
    void updateWatchNote();

    Library &m_library;
    ProfileList *m_list;
    NoteLabel *m_note;
    /// Shown only where changes are seen late.
    NoteLabel *m_watchNote;
};

} // namespace roamlet
