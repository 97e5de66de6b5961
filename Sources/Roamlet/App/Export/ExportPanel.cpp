// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Export/ExportPanel.h"

#include "App/Export/Alert.h"
#include "App/Export/SavePanel.h"
#include "App/Look/BoxedComboBox.h"
#include "App/Look/BoxedList.h"
#include "App/Look/ChoiceRow.h"
#include "App/Look/ForeignText.h"
#include "App/Look/Look.h"
#include "App/Look/Painting.h"
#include "App/Look/RoamletStyle.h"
#include "App/Look/Symbol.h"
#include "Library/Library.h"
#include "Platform/ActivationPolicy.h"
#include "Platform/UserDefaults.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace roamlet
{

using namespace Qt::StringLiterals;
using BookmarkExport::Format;

namespace
{

constexpr QStringView formatKey = u"export.format";

QString title(Format format)
{
    switch (format) {
    case Format::Html:
        return ExportPanel::tr("Bookmark File");
    case Format::Markdown:
        return ExportPanel::tr("Markdown");
    case Format::Csv:
        return ExportPanel::tr("CSV");
    }
    Q_UNREACHABLE();
}

QString description(Format format)
{
    switch (format) {
    case Format::Html:
        return ExportPanel::tr("HTML that Safari, Chrome, Edge and most other browsers can import.");
    case Format::Markdown:
        return ExportPanel::tr("Headings and lists, for notes and documents.");
    case Format::Csv:
        return ExportPanel::tr("One row per bookmark, for Numbers or Excel.");
    }
    Q_UNREACHABLE();
}

/// How many bookmarks each source has. They come source by source, so most of them only need a comparison.
QHash<Source, qsizetype> counts(const QList<Bookmark> &bookmarks)
{
    QHash<Source, qsizetype> result;
    for (auto first = bookmarks.begin(); first != bookmarks.end();) {
        const auto end = std::find_if(first, bookmarks.end(), [&](const Bookmark &bookmark) {
            return bookmark.source != first->source;
        });
        result[first->source] += end - first;
        first = end;
    }
    return result;
}

QList<Bookmark> ofSource(const QList<Bookmark> &bookmarks, const std::optional<QString> &sourceID)
{
    if (!sourceID)
        return bookmarks;
    QList<Bookmark> result;
    std::ranges::copy_if(bookmarks, std::back_inserter(result),
                         [&](const Bookmark &bookmark) { return bookmark.source.id() == sourceID; });
    return result;
}

} // namespace

ExportPanel::ExportPanel(const ExportRequest &request, const Services &services, QWidget *window)
    : Sheet(window),
      m_services(services),
      m_sourceID(request.sourceID),
      m_heading(new QLabel(tr("Export Bookmarks"))),
      m_from(new QLabel(tr("From:"))),
      m_sources(new BoxedComboBox),
      m_icons(services.library, services.opener, *this),
      m_format(new QLabel(tr("Format:"))),
      m_progress(new QProgressBar),
      m_cancel(new QPushButton(tr("Cancel"))),
      m_export(new QPushButton(tr("Export…")))
{
    setObjectName(u"exportPanel"_s);
    setAccessibleName(m_heading->text());
    m_heading->setObjectName(u"exportHeading"_s);
    m_sources->setObjectName(u"exportSource"_s);
    m_sources->setAccessibleName(tr("From"));
    m_sources->setPlaceholderText(tr("No bookmarks"));
    m_from->setBuddy(m_sources);
    m_format->setObjectName(u"exportFormatLabel"_s);

    auto *layout = new QVBoxLayout(&card());
    layout->addWidget(m_heading);
    layout->addWidget(m_from);
    layout->addWidget(m_sources);
    layout->addWidget(m_format);
    buildFormats(layout);
    buildButtons(layout);
    RoamletStyle::applyTo(*this);
    followWindow();

    fillSources();
    connect(m_sources, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (index >= 0)
            m_sourceID = m_choices[index];
    });
    connect(&m_services.library, &Library::snapshotChanged, this, &ExportPanel::fillSources);
    connect(&m_services.library, &Library::sourceOrderChanged, this, &ExportPanel::fillSources);
    connect(m_cancel, &QPushButton::clicked, this, &ExportPanel::reject);
    connect(m_export, &QPushButton::clicked, this, &ExportPanel::askWhereToSave);
    // On some desktops Return opens the list of sources while that has the keyboard.
    m_export->setFocus();
}

void ExportPanel::buildFormats(QVBoxLayout *layout)
{
    auto *choices = new BoxedList;
    for (const Format format : BookmarkExport::formats) {
        const QString name = BookmarkExport::rawValue(format);
        auto *choice = new ChoiceRow(title(format), description(format));
        choice->setObjectName(u"exportFormat."_s + name);
        choice->setChecked(format == storedFormat());
        connect(choice, &ChoiceRow::toggled, this, [this, name](bool isChosen) {
            if (isChosen)
                m_services.defaults.setString(formatKey.toString(), name);
        });
        m_formats.at(static_cast<std::size_t>(format)) = choice;
        choices->addRow(choice);
    }
    layout->addWidget(choices);
}

void ExportPanel::buildButtons(QVBoxLayout *layout)
{
    m_progress->setObjectName(u"exportProgress"_s);
    m_progress->setAccessibleName(tr("Exporting"));
    m_progress->setRange(0, 0);
    m_progress->setTextVisible(false);
    // The sheet keeps its size.
    QSizePolicy policy = m_progress->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_progress->setSizePolicy(policy);
    m_progress->hide();
    m_cancel->setObjectName(u"exportCancel"_s);
    m_cancel->setAccessibleName(m_cancel->text());
    m_export->setObjectName(u"exportButton"_s);
    m_export->setAccessibleName(m_export->text());
    // Return always exports, wherever the focus is.
    m_export->setDefault(true);
    auto *buttons = new QHBoxLayout;
    buttons->setContentsMargins(0, Look::of(*this).measures.gapAroundGroups, 0, 0);
    buttons->setSpacing(Look::of(*this).measures.gapAfterIcon);
    buttons->addWidget(m_progress);
    buttons->addStretch();
    buttons->addWidget(m_cancel);
    buttons->addWidget(m_export);
    layout->addLayout(buttons);
}

void ExportPanel::followWindow()
{
    const Look look = Look::of(*this);
    const Measures &measures = look.measures;
    m_heading->setFont(look.titleFont);
    m_from->setFont(look.headingFont);
    m_format->setFont(look.headingFont);
    m_sources->setIconSize({measures.iconSide, measures.iconSide});
    m_progress->setMaximumWidth(measures.sidebarWidth / 2);
    for (QPushButton *button : {m_cancel, m_export})
        button->setMinimumWidth(measures.buttonWidth);
    QLayout &layout = *card().layout();
    const int padding = measures.sheetPadding;
    layout.setContentsMargins(padding, padding, padding, padding);
    layout.setSpacing(measures.gapAroundGroups);
    for (QLabel *label : {m_from, m_format})
        label->setContentsMargins(0, measures.gapAroundGroups, 0, 0);
    for (QLabel *label : {m_heading, m_from, m_format})
        alignToLine(*label);
}

void ExportPanel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange)
        followWindow();
    Sheet::changeEvent(event);
}

void ExportPanel::fillSources()
{
    const Library::Snapshot &snapshot = m_services.library.snapshot();
    const QHash<Source, qsizetype> sizes = counts(snapshot.bookmarks);
    const QSignalBlocker blocker(m_sources);
    m_sources->clear();
    m_choices.clear();
    const int iconSide = Look::of(*this).measures.iconSide;
    m_sources->setIconSize({iconSide, iconSide});
    const auto add = [this](const QIcon &icon, const QString &label, qsizetype count,
                            const std::optional<QString> &id) {
        // A profile's name has no limit; the list has.
        constexpr qsizetype longestLabel = 80;
        m_sources->addItem(
            //: A browser or a profile, and how many bookmarks it has.
            icon, tr("%1 (%2)").arg(ForeignText::oneLine(label, longestLabel), locale().toString(count)));
        m_choices.append(id);
        if (id == m_sourceID)
            m_sources->setCurrentIndex(m_sources->count() - 1);
    };
    add(symbolIcon(u"globe"_s), tr("All Browsers"), snapshot.bookmarks.size(), {});
    for (const Source &source : m_services.library.ordered(snapshot.sources)) {
        if (const qsizetype count = sizes.value(source); count > 0)
            add(m_icons.of(source), source.label(), count, source.id());
    }
    if (m_sourceID && m_choices.value(m_sources->currentIndex()) != m_sourceID)
        m_sources->setCurrentIndex(-1);
}

Format ExportPanel::storedFormat() const
{
    return BookmarkExport::format(m_services.defaults.string(formatKey.toString()).value_or(QString()))
        .value_or(Format::Html);
}

void ExportPanel::askWhereToSave()
{
    const Library &library = m_services.library;
    const Job job{.format = storedFormat(),
                  .tree = library.bookmarkTree(m_sourceID),
                  .bookmarks = library.snapshot().bookmarks,
                  .sourceID = m_sourceID};
    m_services.activation.bringToFront();
    m_services.savePanel.ask(this,
                             {.name = BookmarkExport::fileName(library.source(m_sourceID)),
                              .extension = BookmarkExport::fileNameExtension(job.format),
                              .type = BookmarkExport::type(job.format)},
                             [self = QPointer(this), job](const std::optional<QString> &path) {
                                 if (self && path)
                                     self->write(job, *path);
                             });
}

void ExportPanel::write(const Job &job, const QString &path)
{
    setBusy(true);
    m_tasks.run(
        this,
        [job, path](const std::stop_token & /*stop*/) -> std::expected<void, QString> {
            if (BookmarkExport::isTooDeep(job.format, job.tree))
                return std::unexpected(tr("The folders are nested too deeply for this format."));
            try {
                const QString text =
                    BookmarkExport::render(job.format, job.tree, ofSource(job.bookmarks, job.sourceID));
                return BookmarkExport::write(text, path);
            } catch (const std::bad_alloc &) {
                return std::unexpected(tr("There is not enough memory for this export."));
            }
        },
        [this, path](const std::expected<void, QString> &written) {
            setBusy(false);
            if (written)
                accept();
            else
                m_services.alert.show(this, written.error(), path);
        });
}

void ExportPanel::reject()
{
    if (!m_isBusy)
        Sheet::reject();
}

void ExportPanel::setBusy(bool isBusy)
{
    m_isBusy = isBusy;
    m_progress->setVisible(isBusy);
    m_sources->setDisabled(isBusy);
    for (ChoiceRow *choice : m_formats)
        choice->setDisabled(isBusy);
    m_cancel->setDisabled(isBusy);
    m_export->setDisabled(isBusy);
    if (!isBusy)
        m_export->setFocus();
}

} // namespace roamlet
