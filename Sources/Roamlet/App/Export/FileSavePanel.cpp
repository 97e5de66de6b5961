// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Export/FileSavePanel.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QMimeDatabase>
#include <QTextBoundaryFinder>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// The beginning of a text that takes at most so many bytes in UTF-8, cut between characters.
QString shortened(const QString &text, qsizetype bytes)
{
    if (text.toUtf8().size() <= bytes)
        return text;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype end = 0;
    for (qsizetype next = finder.toNextBoundary(); next >= 0; next = finder.toNextBoundary()) {
        if (QStringView(text).left(next).toUtf8().size() > bytes)
            break;
        end = next;
    }
    return text.left(end);
}

} // namespace

FileSavePanel::FileSavePanel(const QString &folder) : m_folder(folder) {}

void FileSavePanel::ask(QWidget *parent, const Request &request, Answer answer)
{
    auto *dialog = new QFileDialog(parent, tr("Export Bookmarks"), m_folder);
    dialog->setObjectName(u"savePanel"_s);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setMimeTypeFilters({request.type});
    // A dialog asks whether to replace the file that was typed. With the extension it can be another one, so
    // the question is asked here.
    dialog->setOption(QFileDialog::DontConfirmOverwrite);
    dialog->selectFile(suggestedFileName(request));
    QObject::connect(dialog, &QFileDialog::accepted, dialog,
                     [this, dialog, request, answer] { accept(dialog, request, answer); });
    QObject::connect(dialog, &QFileDialog::rejected, dialog, [dialog, answer = std::move(answer)] {
        dialog->deleteLater();
        answer({});
    });
    dialog->open();
}

void FileSavePanel::accept(QFileDialog *dialog, const Request &request, const Answer &answer)
{
    const QString path = completed(dialog->selectedFiles().value(0), request);
    const auto finish = [this, dialog, answer](const QString &chosen) {
        m_folder = QFileInfo(chosen).path();
        dialog->deleteLater();
        answer(chosen);
    };
    // Anything of that name counts, a link to nowhere as well.
    const QFileInfo existing(path);
    if (!existing.exists() && !existing.isSymLink()) {
        finish(path);
        return;
    }
    auto *question =
        new QMessageBox(QMessageBox::Warning, tr("Export Bookmarks"),
                        tr("“%1” already exists. Do you want to replace it?").arg(existing.fileName()),
                        QMessageBox::Yes | QMessageBox::No, dialog->parentWidget());
    question->setObjectName(u"replaceQuestion"_s);
    question->setAttribute(Qt::WA_DeleteOnClose);
    question->setTextFormat(Qt::PlainText);
    question->setDefaultButton(QMessageBox::No);
    QObject::connect(question, &QMessageBox::finished, dialog, [dialog, path, finish](int button) {
        if (button == QMessageBox::Yes)
            finish(path);
        else
            dialog->open();
    });
    question->open();
}

QString FileSavePanel::suggestedFileName(const Request &request)
{
    QString name = request.name;
    for (QChar &character : name) {
        if (character == u'/' || character.category() == QChar::Other_Control)
            character = u'-';
    }
    constexpr qsizetype longestName = 255;
    const QString ending = u'.' % request.extension;
    return shortened(name, longestName - ending.toUtf8().size()) % ending;
}

QString FileSavePanel::completed(const QString &path, const Request &request)
{
    QStringList extensions = QMimeDatabase().mimeTypeForName(request.type).suffixes();
    extensions.append(request.extension);
    if (extensions.contains(QFileInfo(path).suffix(), Qt::CaseInsensitive))
        return path;
    return path % u'.' % request.extension;
}

} // namespace roamlet
