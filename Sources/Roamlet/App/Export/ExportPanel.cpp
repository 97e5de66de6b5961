// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Export/ExportPanel.h"

#include "App/Export/Alert.h"
#include "App/Export/SavePanel.h"
#include "App/Look/Look.h"
#include "App/Look/NoteLabel.h"
#include "App/Look/Symbol.h"
#include "App/Tables/CellText.h"
#include "Library/Library.h"
#include "Platform/ActivationPolicy.h"
#include "Platform/UserDefaults.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStyle>
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

ExportPanel::ExportPanel(const ExportRequest &request, const Services &services, QWidget *parent)
    : QDialog(parent),
      m_services(services),
      m_sourceID(request.sourceID),
      m_sources(new QComboBox),
      m_icons(services.library, services.opener, *this),
      m_progress(new QProgressBar),
      m_cancel(new QPushButton(tr("Cancel"))),
      m_export(new QPushButton(tr("Export…")))
{
    setObjectName(u"exportPanel"_s);
    setWindowTitle(tr("Export Bookmarks"));
    setWindowModality(Qt::WindowModal);
    setAttribute(Qt::WA_DeleteOnClose);
    auto *layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->setContentsMargins(20, 20, 20, 20);

    auto *heading = new QLabel(tr("Export Bookmarks"));
    heading->setObjectName(u"exportHeading"_s);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    layout->addWidget(heading);
    layout->addSpacing(8);

    m_sources->setObjectName(u"exportSource"_s);
    m_sources->setAccessibleName(tr("From"));
    m_sources->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_sources->setPlaceholderText(tr("No bookmarks"));
    updateColors();
    auto *from = new QLabel(tr("From:"));
    from->setBuddy(m_sources);
    auto *fromRow = new QHBoxLayout;
    fromRow->addWidget(from);
    fromRow->addWidget(m_sources);
    fromRow->addStretch();
    layout->addLayout(fromRow);
    layout->addSpacing(8);

    buildFormats(layout);
    layout->addSpacing(12);

    m_progress->setObjectName(u"exportProgress"_s);
    m_progress->setAccessibleName(tr("Exporting"));
    m_progress->setRange(0, 0);
    m_progress->setTextVisible(false);
    m_progress->setMaximumWidth(120);
    // The sheet keeps its size.
    QSizePolicy policy = m_progress->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_progress->setSizePolicy(policy);
    m_progress->hide();
    m_cancel->setObjectName(u"exportCancel"_s);
    m_cancel->setAccessibleName(m_cancel->text());
    // Return always exports, wherever the focus is.
    m_cancel->setAutoDefault(false);
    m_export->setObjectName(u"exportButton"_s);
    m_export->setAccessibleName(m_export->text());
    m_export->setDefault(true);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_progress);
    buttons->addStretch();
    buttons->addWidget(m_cancel);
    buttons->addWidget(m_export);
    layout->addLayout(buttons);

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

void ExportPanel::updateColors()
{
    setPaletteColor(*m_sources, QPalette::PlaceholderText, Look::of(*this).button.quiet);
}

void ExportPanel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        updateColors();
    QDialog::changeEvent(event);
}

void ExportPanel::buildFormats(QVBoxLayout *layout)
{
    auto *label = new QLabel(tr("Format:"));
    label->setObjectName(u"exportFormatLabel"_s);
    layout->addWidget(label);
    const int indent = style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, this) +
                       style()->pixelMetric(QStyle::PM_RadioButtonLabelSpacing, nullptr, this);
    for (const Format format : BookmarkExport::formats) {
        const QString name = BookmarkExport::rawValue(format);
        auto *button = new QRadioButton(title(format));
        button->setObjectName(u"exportFormat."_s + name);
        button->setAccessibleName(button->text());
        button->setAccessibleDescription(description(format));
        button->setChecked(format == storedFormat());
        connect(button, &QRadioButton::toggled, this, [this, name](bool isChosen) {
            if (isChosen)
                m_services.defaults.setString(formatKey.toString(), name);
        });
        m_formats.at(static_cast<std::size_t>(format)) = button;

        auto *note = new NoteLabel;
        note->setObjectName(u"exportFormatNote."_s + name);
        note->setText(description(format));
        note->setWordWrap(false);
        note->setContentsMargins(indent, 0, 0, 0);
        // The words belong to the button: a click on them chooses it.
        note->installEventFilter(this);

        auto *choice = new QVBoxLayout;
        choice->setSpacing(1);
        choice->addWidget(button);
        choice->addWidget(note);
        layout->addLayout(choice);
    }
}

bool ExportPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton && !m_isBusy) {
        for (QRadioButton *button : m_formats) {
            if (watched->objectName() == button->objectName().replace("Format."_L1, "FormatNote."_L1)) {
                button->setFocus();
                button->click();
            }
        }
    }
    return QDialog::eventFilter(watched, event);
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
            icon, u"%1 (%2)"_s.arg(CellText::oneLine(label, longestLabel), locale().toString(count)));
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
            const QString text =
                BookmarkExport::render(job.format, job.tree, ofSource(job.bookmarks, job.sourceID));
            return BookmarkExport::write(text, path);
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
        QDialog::reject();
}

void ExportPanel::setBusy(bool isBusy)
{
    m_isBusy = isBusy;
    m_progress->setVisible(isBusy);
    m_sources->setDisabled(isBusy);
    for (QRadioButton *button : m_formats)
        button->setDisabled(isBusy);
    m_cancel->setDisabled(isBusy);
    m_export->setDisabled(isBusy);
    if (!isBusy)
        m_export->setFocus();
}

} // namespace roamlet
