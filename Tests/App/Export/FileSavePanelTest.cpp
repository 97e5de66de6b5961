// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Export/FileSavePanel.h"

#include "App/Export/MessageAlert.h"
#include "SampleHome/PlainFiles.h"
#include "Support/Waiting.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

class FileSavePanelTest : public ::testing::Test
{
protected:
    FileSavePanelTest()
    {
        // The dialog keeps its own settings.
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
        parent.show();
    }

    void ask(const SavePanel::Request &request)
    {
        panel.ask(&parent, request, [this](const std::optional<QString> &path) {
            ++answers;
            answer = path;
        });
        dialog = parent.findChild<QFileDialog *>();
        ASSERT_NE(dialog, nullptr);
    }

    QLineEdit &name() { return *dialog->findChild<QLineEdit *>(u"fileNameEdit"_s); }
    void type(const QString &text)
    {
        name().selectAll();
        QTest::keyClicks(&name(), text);
        QTest::keyClick(&name(), Qt::Key_Return);
    }
    QMessageBox *question()
    {
        QMessageBox *box = nullptr;
        waitUntil([&] {
            box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            return box != nullptr;
        });
        return box;
    }
    QString path(const QString &file) const { return folder.filePath(file); }

    const SavePanel::Request html{u"Bookmarks"_s, u"html"_s, u"text/html"_s};
    QTemporaryDir folder;
    QTemporaryDir settings;
    QWidget parent;
    FileSavePanel panel{folder.path()};
    QFileDialog *dialog = nullptr;
    std::optional<QString> answer;
    int answers = 0;
};

TEST_F(FileSavePanelTest, suggestsTheNameWithItsExtension)
{
    ask(html);
    EXPECT_EQ(name().text(), u"Bookmarks.html"_s);
    EXPECT_EQ(dialog->directory().path(), folder.path());
    QTest::keyClick(&name(), Qt::Key_Return);
    EXPECT_EQ(answer, path(u"Bookmarks.html"_s));
    EXPECT_EQ(answers, 1);
}

TEST_F(FileSavePanelTest, escapeAnswersWithoutAPath)
{
    ask(html);
    QTest::keyClick(dialog, Qt::Key_Escape);
    EXPECT_EQ(answers, 1);
    EXPECT_EQ(answer, std::nullopt);
}

TEST_F(FileSavePanelTest, addsTheExtensionThatTheUserLeavesOut)
{
    ask(html);
    type(u"mine"_s);
    EXPECT_EQ(answer, path(u"mine.html"_s));
}

TEST_F(FileSavePanelTest, keepsExtensionsOfTheType)
{
    EXPECT_EQ(FileSavePanel::completed(u"/a/b.HTML"_s, html), u"/a/b.HTML"_s);
    EXPECT_EQ(FileSavePanel::completed(u"/a/b.htm"_s, html), u"/a/b.htm"_s);
    EXPECT_EQ(FileSavePanel::completed(u"/a/b.txt"_s, html), u"/a/b.txt.html"_s);
    EXPECT_EQ(FileSavePanel::completed(u"/a.html/b"_s, html), u"/a.html/b.html"_s);
    EXPECT_EQ(FileSavePanel::completed(u"/a/b"_s, {{}, u"md"_s, u"text/unknown-to-all"_s}), u"/a/b.md"_s);
}

TEST_F(FileSavePanelTest, asksBeforeAFileIsReplaced)
{
    sample::writeFile(path(u"old.html"_s), "old");
    ask(html);
    type(u"old.html"_s);
    QMessageBox *box = question();
    ASSERT_NE(box, nullptr);
    EXPECT_TRUE(box->text().contains(u"“old.html”")) << qPrintable(box->text());
    EXPECT_EQ(answers, 0);
    QTest::mouseClick(box->button(QMessageBox::No), Qt::LeftButton);
    EXPECT_EQ(answers, 0);
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(FileSavePanelTest, asksOnlyAboutTheFileThatIsWritten)
{
    sample::writeFile(path(u"old"_s), "old");
    ask(html);
    type(u"old"_s);
    EXPECT_EQ(answer, path(u"old.html"_s)) << "nobody asks about the other one, which stays";
    EXPECT_EQ(answers, 1);
}

TEST_F(FileSavePanelTest, asksBeforeAFileIsReplacedWhoseExtensionWasLeftOut)
{
    sample::writeFile(path(u"old.html"_s), "old");
    ask(html);
    type(u"old"_s);
    QMessageBox *first = question();
    ASSERT_NE(first, nullptr);
    EXPECT_TRUE(first->text().contains(u"“old.html”")) << qPrintable(first->text());
    EXPECT_EQ(answers, 0);
    QTest::keyClick(first, Qt::Key_Return);
    EXPECT_EQ(answers, 0) << "Return is the safe answer";
    EXPECT_TRUE(dialog->isVisible()) << "another name can be chosen";

    type(u"old"_s);
    ASSERT_TRUE(waitUntil([&] { return question() != nullptr && question() != first; }));
    QTest::mouseClick(question()->button(QMessageBox::Yes), Qt::LeftButton);
    EXPECT_EQ(answer, path(u"old.html"_s));
    EXPECT_EQ(answers, 1);
}

TEST_F(FileSavePanelTest, comesBackToTheFolderOfTheLastFile)
{
    QDir(folder.path()).mkdir(u"below"_s);
    ask(html);
    name().setText(path(u"below/file.html"_s));
    QTest::keyClick(&name(), Qt::Key_Return);
    EXPECT_EQ(answer, path(u"below/file.html"_s));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ask(html);
    EXPECT_EQ(dialog->directory().path(), path(u"below"_s));
}

TEST_F(FileSavePanelTest, suggestedNamesAreNamesThatAFileCanHave)
{
    const auto suggested = [](const QString &text) {
        return FileSavePanel::suggestedFileName({text, u"html"_s, u"text/html"_s});
    };
    EXPECT_EQ(suggested(u"Edge a/b Bookmarks"_s), u"Edge a-b Bookmarks.html"_s);
    EXPECT_EQ(suggested(u"Edge a\nb\0c Bookmarks"_s), u"Edge a-b-c Bookmarks.html"_s);
    EXPECT_EQ(suggested(QString(1'000'000, u'x')), QString(250, u'x') % u".html");
    // Two bytes each; half a character would be no text.
    EXPECT_EQ(suggested(QString(1'000, u'é')), QString(125, u'é') % u".html");
    const QString family = u"👨‍👩‍👧"_s;
    EXPECT_EQ(suggested(family.repeated(50)), QString(family.repeated(13) % u".html"));
}

TEST_F(FileSavePanelTest, aPanelWhoseWindowGoesTellsNobody)
{
    auto *window = new QWidget;
    panel.ask(window, html, [this](const std::optional<QString> &) { ++answers; });
    delete window;
    EXPECT_EQ(answers, 0);
}

TEST_F(FileSavePanelTest, anAlertSaysWhatCouldNotBeSavedAndThenWhyAsPlainText)
{
    MessageAlert alert;
    alert.show(&parent, u"<b>Permission denied</b>"_s, u"/home/<i>x</i>"_s);
    auto *box = parent.findChild<QMessageBox *>(u"alert"_s);
    ASSERT_NE(box, nullptr);
    EXPECT_TRUE(box->isVisible());
    EXPECT_EQ(box->text(), u"“/home/<i>x</i>” could not be saved."_s);
    EXPECT_EQ(box->informativeText(), u"<b>Permission denied</b>"_s);
    EXPECT_EQ(box->textFormat(), Qt::PlainText);
    EXPECT_EQ(box->icon(), QMessageBox::Critical);
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_FALSE(box->isVisible());
}

} // namespace
} // namespace roamlet::testing
