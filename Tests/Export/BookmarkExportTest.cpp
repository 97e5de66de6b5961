// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Export/BookmarkExport.h"

#include "Export/Nodes.h"
#include "Platform/FileSizeLimit.h"
#include "Platform/WithoutPrivileges.h"
#include "SampleHome/PlainFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>
#include <utility>
#include <vector>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;
using BookmarkExport::Format;

namespace
{

QString fileName(Source::Kind kind, const QString &name)
{
    return BookmarkExport::fileName(source(kind, name));
}

} // namespace

TEST(BookmarkExport, formatsHaveStoredNamesInTheirOrder)
{
    QStringList names;
    for (const Format format : BookmarkExport::formats) {
        names.append(BookmarkExport::rawValue(format));
        EXPECT_EQ(BookmarkExport::format(names.last()), format);
    }
    EXPECT_EQ(names, (QStringList{u"html"_s, u"markdown"_s, u"csv"_s}));
    EXPECT_LT(Format::Html, Format::Markdown);
    EXPECT_LT(Format::Markdown, Format::Csv);
}

TEST(BookmarkExport, noOtherNameGivesAFormat)
{
    for (const QString &name : {u""_s, u"HTML"_s, u"md"_s, u"Markdown"_s, u"csv "_s, u" csv"_s,
                                u"text/html"_s, u"json"_s, u"--search"_s})
        EXPECT_FALSE(BookmarkExport::format(name).has_value()) << qPrintable(name);
}

TEST(BookmarkExport, aFileThatWouldBeLittleButBlanksIsTooDeep)
{
    const auto nested = [](int depth) {
        QList<BookmarkNode> nodes;
        for (int i = 0; i < depth; ++i) {
            BookmarkNode folder;
            folder.children = std::exchange(nodes, {});
            nodes.append(std::move(folder));
        }
        return nodes;
    };
    for (const Format format : {Format::Html, Format::Markdown}) {
        EXPECT_FALSE(BookmarkExport::isTooDeep(format, nested(1'000)));
        EXPECT_TRUE(BookmarkExport::isTooDeep(format, nested(200'000)));
    }
    EXPECT_FALSE(BookmarkExport::isTooDeep(Format::Csv, nested(200'000))) << "it has no blanks";
    BookmarkNode wide;
    wide.children = QList<BookmarkNode>(1'000'000);
    EXPECT_FALSE(BookmarkExport::isTooDeep(Format::Html, {wide})) << "many bookmarks are no depth";
}

TEST(BookmarkExport, formatsHaveTheirTypeAndExtension)
{
    EXPECT_EQ(BookmarkExport::type(Format::Html), u"text/html"_s);
    EXPECT_EQ(BookmarkExport::type(Format::Csv), u"text/csv"_s);
    const QString markdown = BookmarkExport::type(Format::Markdown);
    EXPECT_TRUE(markdown == u"text/markdown" || markdown == u"text/plain") << qPrintable(markdown);
    EXPECT_EQ(BookmarkExport::fileNameExtension(Format::Html), u"html"_s);
    EXPECT_EQ(BookmarkExport::fileNameExtension(Format::Markdown), u"md"_s);
    EXPECT_EQ(BookmarkExport::fileNameExtension(Format::Csv), u"csv"_s);
}

TEST(BookmarkExport, htmlAndMarkdownShowTheTreeAndCsvTheList)
{
    const QList<BookmarkNode> tree{bookmark(u"tree"_s, u"https://tree/"_s)};
    const QList<Bookmark> flat = bookmark(u"flat"_s, u"https://flat/"_s).flattened();
    const auto text = [&](Format format) { return BookmarkExport::render(format, tree, flat).toStdString(); };
    EXPECT_NE(text(Format::Html).find("    <DT><A HREF=\"https://tree/\">tree</A>\n"), std::string::npos);
    EXPECT_EQ(text(Format::Html).find("flat"), std::string::npos);
    EXPECT_EQ(text(Format::Markdown), "# Bookmarks\n- [tree](<https://tree/>)\n");
    EXPECT_EQ(text(Format::Csv),
              "Browser,Profile,Folder,Title,URL,Added\r\nSafari,,,flat,https://flat/,\r\n");
}

TEST(BookmarkExport, withoutASourceTheFileIsNamedBookmarks)
{
    EXPECT_EQ(BookmarkExport::fileName({}), u"Bookmarks"_s);
}

TEST(BookmarkExport, theFileIsNamedAfterBrowserAndProfile)
{
    EXPECT_EQ(fileName(Source::Kind::Safari, u"Safari"_s), u"Safari Bookmarks"_s);
    EXPECT_EQ(fileName(Source::Kind::Chrome, u"Work"_s), u"Chrome Work Bookmarks"_s);
    EXPECT_EQ(fileName(Source::Kind::Chrome, u"Chrome"_s), u"Chrome Bookmarks"_s);
    EXPECT_EQ(fileName(Source::Kind::Edge, u"Edge"_s), u"Edge Bookmarks"_s);
    EXPECT_EQ(fileName(Source::Kind::Edge, u"edge"_s), u"Edge edge Bookmarks"_s);
    EXPECT_EQ(fileName(Source::Kind::Safari, u"Chrome"_s), u"Safari Chrome Bookmarks"_s);
    EXPECT_EQ(fileName(Source::Kind::Edge, u""_s), u"Edge  Bookmarks"_s);
    EXPECT_EQ(fileName(Source::Kind::Edge, u"a/b %1"_s), u"Edge a/b %1 Bookmarks"_s);
}

TEST(BookmarkExport, theFileIsNotNamedAfterTheInstallation)
{
    Source beta = source(Source::Kind::Chrome, u"Work"_s);
    beta.installation = u"beta"_s;
    beta.namesInstallation = true;
    EXPECT_EQ(BookmarkExport::fileName(beta), u"Chrome Work Bookmarks"_s);
    beta.name = u"Chrome"_s;
    EXPECT_EQ(BookmarkExport::fileName(beta), u"Chrome Bookmarks"_s);
}

class BookmarkExportWriting : public ::testing::Test
{
protected:
    QString path(const QString &name) const { return m_folder.filePath(name); }

    QByteArray content(const QString &name) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(name);
        return file.readAll();
    }

    QStringList names() const
    {
        return QDir(m_folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

private:
    QTemporaryDir m_folder;
};

TEST_F(BookmarkExportWriting, aNewFileHoldsTheTextAsUtf8)
{
    EXPECT_TRUE(BookmarkExport::write(u"Ü 日本 😀\r\n\n"_s, path(u"file.csv"_s)));
    EXPECT_EQ(content(u"file.csv"_s), "Ü 日本 😀\r\n\n") << "without a mark, line ends as they are";
    EXPECT_EQ(names(), QStringList{u"file.csv"_s});
    EXPECT_TRUE(BookmarkExport::write({}, path(u"empty"_s)));
    EXPECT_EQ(content(u"empty"_s), "");
}

TEST_F(BookmarkExportWriting, anOldFileIsReplacedWhole)
{
    sample::writeFile(path(u"file"_s), QByteArray(100'000, 'x'));
    EXPECT_TRUE(BookmarkExport::write(u"short"_s, path(u"file"_s)));
    EXPECT_EQ(content(u"file"_s), "short");
    EXPECT_EQ(names(), QStringList{u"file"_s});
}

TEST_F(BookmarkExportWriting, whoeverReadsTheOldFileKeepsIt)
{
    sample::writeFile(path(u"file"_s), "old");
    QFile reader(path(u"file"_s));
    ASSERT_TRUE(reader.open(QIODevice::ReadOnly));
    EXPECT_TRUE(BookmarkExport::write(u"new"_s, path(u"file"_s)));
    EXPECT_EQ(reader.readAll(), "old") << "the file was replaced, not rewritten";
    EXPECT_EQ(content(u"file"_s), "new");
}

TEST_F(BookmarkExportWriting, aLargeTextArrivesWhole)
{
    const QString text(3'000'001, u'é');
    EXPECT_TRUE(BookmarkExport::write(text, path(u"file"_s)));
    EXPECT_EQ(content(u"file"_s).size(), 6'000'002);
}

TEST_F(BookmarkExportWriting, aPlaceThatCannotBeWrittenToIsToldAndNothingIsLeft)
{
    sample::writeFile(path(u"file"_s), "old");
    sample::makeFolder(path(u"folder"_s));
    for (const QString &place : {u"missing/file"_s, u"file/below"_s, u"folder"_s}) {
        const auto written = BookmarkExport::write(u"new"_s, path(place));
        ASSERT_FALSE(written) << qPrintable(place);
        EXPECT_FALSE(written.error().isEmpty()) << qPrintable(place);
    }
    EXPECT_FALSE(BookmarkExport::write(u"new"_s, {}));
    EXPECT_EQ(content(u"file"_s), "old");
    EXPECT_EQ(names(), (QStringList{u"file"_s, u"folder"_s}));
}

TEST_F(BookmarkExportWriting, withoutPermissionTheOldFileStays)
{
    sample::writeFile(path(u"closed/file"_s), "old");
    ASSERT_TRUE(QFile::setPermissions(path({}), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                                    QFile::ReadOther | QFile::ExeOther));
    ASSERT_TRUE(QFile::setPermissions(path(u"closed"_s), QFile::ReadOwner | QFile::ExeOwner |
                                                             QFile::ReadOther | QFile::ExeOther));
    {
        const WithoutPrivileges guard;
        if (!guard.arePermissionsChecked())
            GTEST_SKIP() << "root may write everywhere";
        const auto written = BookmarkExport::write(u"new"_s, path(u"closed/file"_s));
        ASSERT_FALSE(written);
        EXPECT_FALSE(written.error().isEmpty());
    }
    EXPECT_EQ(content(u"closed/file"_s), "old");
    EXPECT_EQ(QDir(path(u"closed"_s)).entryList(QDir::Files | QDir::Hidden), QStringList{u"file"_s});
}

TEST_F(BookmarkExportWriting, whatIsNoFileIsLeftInItsPlace)
{
    ASSERT_EQ(::mkfifo(qPrintable(path(u"pipe"_s)), 0600), 0);
    ASSERT_TRUE(QFile::link(path(u"circle"_s), path(u"circle"_s)));
    ASSERT_TRUE(QFile::link(u"/dev/null"_s, path(u"device"_s)));
    for (const QString &name : {u"pipe"_s, u"circle"_s, u"device"_s}) {
        const auto written = BookmarkExport::write(u"new"_s, path(name));
        ASSERT_FALSE(written) << qPrintable(name);
        EXPECT_FALSE(written.error().isEmpty());
    }
    EXPECT_EQ(names(), (QStringList{u"circle"_s, u"device"_s, u"pipe"_s}));
    EXPECT_TRUE(QFileInfo(path(u"circle"_s)).isSymLink());
    EXPECT_EQ(QFileInfo(path(u"device"_s)).symLinkTarget(), u"/dev/null");
}

TEST_F(BookmarkExportWriting, withoutRoomTheOldFileStays)
{
    sample::writeFile(path(u"file"_s), "old");
    // One that does not fit at all, and one whose last bytes do not.
    for (const qsizetype size : {4 << 20, (64 << 10) + 1}) {
        const auto written = [&] {
            const FileSizeLimit limit(64 << 10);
            return BookmarkExport::write(QString(size, u'x'), path(u"file"_s));
        }();
        ASSERT_FALSE(written) << size;
        EXPECT_EQ(written.error(), qt_error_string(EFBIG)) << size;
        EXPECT_EQ(content(u"file"_s), "old") << size;
        EXPECT_EQ(names(), QStringList{u"file"_s}) << size;
    }
}

} // namespace roamlet::testing
