// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Updates/UpdateWindows.h"

#include "App/Updates/ReleaseNotesView.h"
#include "App/Updates/UpdateErrorText.h"
#include "Platform/Update.h"

#include <QApplication>
#include <QDialog>
#include <QImage>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QUrl>

#include <gtest/gtest.h>

#include <stdexcept>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;
using Choice = UpdateUserInterface::Choice;

class UpdateWindowsTest : public ::testing::Test
{
protected:
    /// The names of the windows on the screen.
    static QStringList shown()
    {
        QStringList result;
        for (const QWidget *window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && qobject_cast<const QDialog *>(window) != nullptr)
                result.append(window->objectName());
        }
        return result;
    }
    static QDialog &window()
    {
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (auto *dialog = qobject_cast<QDialog *>(window); dialog != nullptr && dialog->isVisible())
                return *dialog;
        }
        throw std::logic_error("no window is open");
    }
    static QString heading() { return window().findChild<QLabel *>(u"updateHeading"_s)->text(); }
    static QString text() { return window().findChild<QLabel *>(u"updateText"_s)->text(); }
    static QPushButton *button(const QString &name) { return window().findChild<QPushButton *>(name); }
    static void press(const QString &name) { QTest::mouseClick(button(name), Qt::LeftButton); }
    static QProgressBar &bar() { return *window().findChild<QProgressBar *>(); }
    static ReleaseNotesView &notes() { return *window().findChild<ReleaseNotesView *>(); }

    void showUpdate(const Update &found)
    {
        windows.showUpdate(found, [this](Choice choice) { choices.append(choice); });
    }
    std::function<void()> count()
    {
        return [this] { ++answers; };
    }

    QStringList openedLinks;
    UpdateWindows windows{u"1.0"_s, [this](const QString &url) { openedLinks.append(url); }};
    int answers = 0;
    QList<Choice> choices;
    const Update update{.version = u"2000"_s,
                        .displayVersion = u"2.0"_s,
                        .notes = ReleaseNotes{.format = ReleaseNotes::Format::Html, .text = u"<p>Faster"_s},
                        .size = 12'345'678,
                        .isCritical = false};
};

TEST_F(UpdateWindowsTest, aCheckCanBeCancelled)
{
    windows.showChecking(count());
    EXPECT_EQ(heading(), u"Checking for updates…"_s);
    EXPECT_EQ(bar().maximum(), 0) << "nobody knows how long it takes";
    press(u"updateCancel"_s);
    EXPECT_EQ(answers, 1);
    EXPECT_EQ(shown(), QStringList());
}

TEST_F(UpdateWindowsTest, closingTheCheckCancelsIt)
{
    windows.showChecking(count());
    window().close();
    EXPECT_EQ(answers, 1);
    windows.showChecking(count());
    QTest::keyClick(&window(), Qt::Key_Escape);
    EXPECT_EQ(answers, 2);
    EXPECT_EQ(shown(), QStringList());
}

TEST_F(UpdateWindowsTest, upToDateSaysWhichVersionAndIsReadOnce)
{
    windows.showUpToDate(count());
    EXPECT_EQ(heading(), u"Roamlet is up to date"_s);
    EXPECT_EQ(text(), u"Version 1.0 is the newest there is."_s);
    QTest::keyClick(&window(), Qt::Key_Return);
    EXPECT_EQ(answers, 1);
    windows.showUpToDate(count());
    window().close();
    EXPECT_EQ(answers, 2);
}

TEST_F(UpdateWindowsTest, anErrorSaysWhatWentWrong)
{
    const UpdateError error{.code = UpdateError::Code::WrongSignature, .detail = {}};
    windows.showError(error, count());
    EXPECT_EQ(heading(), u"Roamlet could not be updated"_s);
    EXPECT_EQ(text(), updateErrorText(error));
    press(u"updateOk"_s);
    EXPECT_EQ(answers, 1);
}

TEST_F(UpdateWindowsTest, theSystemsWordsAreCutAndNoMarkup)
{
    windows.showError(
        {.code = UpdateError::Code::NetworkFailed, .detail = u"<b>\n" % QString(1'000'000, u'w')}, count());
    EXPECT_LT(text().size(), 1'000);
    EXPECT_TRUE(text().contains(u"<b>"));
    EXPECT_EQ(window().findChild<QLabel *>(u"updateText"_s)->textFormat(), Qt::PlainText);
    EXPECT_LT(window().width(), 1'200);
}

TEST_F(UpdateWindowsTest, anUpdateShowsItsVersionItsSizeAndItsNotes)
{
    showUpdate(update);
    EXPECT_EQ(heading(), u"Roamlet 2.0 is available"_s);
    EXPECT_TRUE(text().startsWith(u"You have version 1.0. The download takes 11.7")) << qPrintable(text());
    EXPECT_TRUE(notes().isVisible());
    EXPECT_TRUE(notes().isReadOnly());
    EXPECT_EQ(notes().toPlainText(), u"Faster"_s);
}

TEST_F(UpdateWindowsTest, eachButtonIsItsChoice)
{
    for (const QString &name : {u"updateSkip"_s, u"updateLater"_s, u"updateInstall"_s}) {
        showUpdate(update);
        press(name);
        EXPECT_EQ(shown(), QStringList());
    }
    EXPECT_EQ(choices, (QList{Choice::Skip, Choice::Later, Choice::Install}));
}

TEST_F(UpdateWindowsTest, theButtonsSayWhatTheyDo)
{
    showUpdate(update);
    EXPECT_EQ(button(u"updateSkip"_s)->text(), u"Skip This Version"_s);
    EXPECT_EQ(button(u"updateLater"_s)->text(), u"Remind Me Later"_s);
    EXPECT_EQ(button(u"updateInstall"_s)->text(), u"Install"_s);
    for (const QPushButton *each : window().findChildren<QPushButton *>())
        EXPECT_EQ(each->accessibleName(), each->text());
    EXPECT_FALSE(notes().accessibleName().isEmpty());
}

TEST_F(UpdateWindowsTest, returnInstallsAndClosingIsLater)
{
    showUpdate(update);
    QTest::keyClick(&window(), Qt::Key_Return);
    EXPECT_EQ(choices, QList{Choice::Install});
    showUpdate(update);
    QTest::keyClick(&window(), Qt::Key_Escape);
    showUpdate(update);
    window().close();
    EXPECT_EQ(choices, (QList{Choice::Install, Choice::Later, Choice::Later}));
}

TEST_F(UpdateWindowsTest, anImportantUpdateCannotBeSkipped)
{
    Update important = update;
    important.isCritical = true;
    showUpdate(important);
    EXPECT_EQ(button(u"updateSkip"_s), nullptr);
    EXPECT_TRUE(text().endsWith(u"This is an important update: please install it soon."));
    press(u"updateLater"_s);
    EXPECT_EQ(choices, QList{Choice::Later});
}

TEST_F(UpdateWindowsTest, notesThatComeLaterAreAddedToTheirUpdateOnly)
{
    Update without = update;
    without.notes = {};
    without.size = {};
    const ReleaseNotes late{.format = ReleaseNotes::Format::Markdown, .text = u"# New\n\n- *less* <b>"_s};
    windows.showReleaseNotes(late);
    EXPECT_EQ(shown(), QStringList()) << "there is nothing that they belong to";
    showUpdate(without);
    EXPECT_FALSE(notes().isVisible());
    EXPECT_EQ(text(), u"You have version 1.0."_s);
    windows.showReleaseNotes(late);
    EXPECT_TRUE(notes().isVisible());
    EXPECT_TRUE(notes().toPlainText().startsWith(u"New\nless"));
}

TEST_F(UpdateWindowsTest, plainNotesStayAsTheyAre)
{
    Update plain = update;
    plain.notes = ReleaseNotes{.format = ReleaseNotes::Format::Plain, .text = u"a <b>&amp;</b>\n# c"_s};
    showUpdate(plain);
    EXPECT_EQ(notes().toPlainText(), plain.notes->text);
}

TEST_F(UpdateWindowsTest, notesLoadNothing)
{
    const QTemporaryDir folder;
    const QString picture = folder.filePath(u"picture.png"_s);
    QImage image(40, 40, QImage::Format_RGB32);
    image.fill(Qt::red);
    ASSERT_TRUE(image.save(picture));
    Update noted = update;
    noted.notes->text =
        u"<img src='file://%1'><img src='%1'><link rel='stylesheet' href='%1'>text"_s.arg(picture);
    showUpdate(noted);
    const QImage drawn = notes().grab().toImage();
    for (int y = 0; y < drawn.height(); ++y) {
        for (int x = 0; x < drawn.width(); ++x)
            ASSERT_NE(drawn.pixelColor(x, y), QColor(Qt::red)) << x << ' ' << y;
    }
    EXPECT_EQ(notes().loadResource(QTextDocument::HtmlResource, QUrl::fromLocalFile(picture)), QVariant());
}

TEST_F(UpdateWindowsTest, notesHaveTheColoursOfTheirSurroundings)
{
    Update noted = update;
    noted.notes->text = u"<body bgcolor='#ffffff' text='#000000'><p style='color:#fefefe;background:#fdfdfd'>"
                        "one <span style='color:red'>two</span> <a href='https://a.example/'>three</a>"_s;
    showUpdate(noted);
    EXPECT_FALSE(notes().document()->rootFrame()->frameFormat().hasProperty(QTextFormat::BackgroundBrush));
    for (QTextBlock block = notes().document()->begin(); block.isValid(); block = block.next()) {
        EXPECT_FALSE(block.blockFormat().hasProperty(QTextFormat::BackgroundBrush));
        for (auto each = block.begin(); !each.atEnd(); ++each) {
            const QTextCharFormat format = each.fragment().charFormat();
            EXPECT_FALSE(format.hasProperty(QTextFormat::BackgroundBrush));
            if (format.isAnchor())
                EXPECT_EQ(format.foreground(), notes().palette().link());
            else
                EXPECT_FALSE(format.hasProperty(QTextFormat::ForegroundBrush));
        }
    }
    EXPECT_EQ(notes().toPlainText(), u"one two three"_s);
}

TEST_F(UpdateWindowsTest, onlyLinksToWebPagesLeadAnywhere)
{
    showUpdate(update);
    for (const QString &link : {u"https://a.example/x y"_s, u"http://b.example/"_s, u"file:///etc/passwd"_s,
                                u"javascript:alert(1)"_s, u"roamlet:x"_s, u"relative"_s})
        Q_EMIT notes().anchorClicked(QUrl(link));
    EXPECT_EQ(openedLinks, (QStringList{u"https://a.example/x%20y"_s, u"http://b.example/"_s}));
    EXPECT_EQ(notes().toPlainText(), u"Faster"_s) << "the notes stay";
}

TEST_F(UpdateWindowsTest, endlessNotesAndVersionsAreCut)
{
    Update endless = update;
    endless.displayVersion = QString(1'000'000, u'9');
    endless.notes->text = u"<p>"_s.repeated(10) % u"word "_s.repeated(400'000);
    showUpdate(endless);
    EXPECT_LT(heading().size(), 120);
    EXPECT_LT(notes().toPlainText().size(), 50'000);
    EXPECT_LT(window().width(), 1'500);
}

TEST_F(UpdateWindowsTest, markdownThatIsAllMarksIsShownAsItIs)
{
    Update marked = update;
    marked.notes = ReleaseNotes{.format = ReleaseNotes::Format::Markdown, .text = u"*a* "_s.repeated(100)};
    showUpdate(marked);
    EXPECT_FALSE(notes().toPlainText().contains(u'*'));
    for (const QString &text : {u"`a`b"_s, u"**a**b"_s, u"- a\n"_s, u"|a|b|\n|-|-|\n"_s}) {
        marked.notes->text = text.repeated(10'000);
        showUpdate(marked);
        EXPECT_TRUE(notes().toPlainText().startsWith(text)) << qPrintable(text);
    }
}

TEST_F(UpdateWindowsTest, aTableOfMarkdownIsNoTable)
{
    Update marked = update;
    marked.notes = ReleaseNotes{.format = ReleaseNotes::Format::Markdown, .text = u"|a|b|\n|-|-|\n|1|2|\n"_s};
    showUpdate(marked);
    EXPECT_TRUE(notes().document()->rootFrame()->childFrames().isEmpty());
}

TEST_F(UpdateWindowsTest, aDownloadShowsHowFarItIs)
{
    windows.showDownload(update, count());
    EXPECT_EQ(heading(), u"Downloading the update…"_s);
    EXPECT_EQ(bar().maximum(), 1000);
    EXPECT_EQ(bar().value(), 0);
    windows.setDownloadProgress(5'000'000'000, 10'000'000'000);
    EXPECT_EQ(bar().value(), 500);
    EXPECT_EQ(text(), u"4.66 GiB of 9.31 GiB"_s);
    windows.setDownloadProgress(11, 10);
    EXPECT_EQ(bar().value(), 1000);
    windows.setDownloadProgress(2048, {});
    EXPECT_EQ(bar().maximum(), 0);
    EXPECT_EQ(text(), u"2.00 KiB"_s);
    windows.setDownloadProgress(1, 0);
    EXPECT_EQ(bar().maximum(), 0) << "a length of nothing says nothing";
    press(u"updateCancel"_s);
    EXPECT_EQ(answers, 1);
}

TEST_F(UpdateWindowsTest, theCheckOfTheDownloadCanBeCancelled)
{
    windows.showDownload(update, count());
    windows.showVerifying();
    EXPECT_EQ(heading(), u"Checking the update…"_s);
    EXPECT_EQ(bar().maximum(), 0);
    QTest::keyClick(&window(), Qt::Key_Escape);
    EXPECT_EQ(answers, 1);
}

TEST_F(UpdateWindowsTest, anInstallationShowsHowFarItIs)
{
    windows.showInstalling(count());
    EXPECT_EQ(heading(), u"Installing the update…"_s);
    EXPECT_EQ(text(), u"Your system may ask for your password."_s);
    EXPECT_EQ(bar().maximum(), 0);
    windows.setInstallProgress(40);
    EXPECT_EQ(bar().maximum(), 1000);
    EXPECT_EQ(bar().value(), 400);
    windows.setInstallProgress({});
    EXPECT_EQ(bar().maximum(), 0);
    press(u"updateCancel"_s);
    EXPECT_EQ(answers, 1);
    windows.setInstallProgress(50);
}

TEST_F(UpdateWindowsTest, afterTheInstallationItSaysHowToRunTheNewVersion)
{
    windows.showInstalled(update, count());
    EXPECT_EQ(heading(), u"Roamlet 2.0 is installed"_s);
    EXPECT_EQ(text(), u"Quit Roamlet and open it again to use the new version."_s);
    press(u"updateOk"_s);
    EXPECT_EQ(answers, 1);
}

TEST_F(UpdateWindowsTest, aHandedOverUpdateIsNotCalledInstalled)
{
    windows.showHandedOver(update, count());
    EXPECT_EQ(heading(), u"Roamlet 2.0 is not installed yet"_s);
    EXPECT_TRUE(text().contains(u"Install it there")) << qPrintable(text());
    press(u"updateOk"_s);
    EXPECT_EQ(answers, 1);
}

TEST_F(UpdateWindowsTest, eachWindowTakesThePlaceOfTheOneBeforeUnanswered)
{
    windows.showChecking(count());
    showUpdate(update);
    EXPECT_EQ(shown(), QStringList{u"updateFound"_s});
    windows.showDownload(update, count());
    EXPECT_EQ(shown(), QStringList{u"updateDownload"_s});
    windows.showError({}, count());
    EXPECT_EQ(shown(), QStringList{u"updateError"_s});
    windows.close();
    EXPECT_EQ(shown(), QStringList());
    EXPECT_EQ(answers, 0);
    EXPECT_TRUE(choices.isEmpty());
    windows.close();
}

TEST_F(UpdateWindowsTest, anAnswerMayBringTheNextWindow)
{
    windows.showUpdate(update, [this](Choice) { windows.showDownload(update, count()); });
    press(u"updateInstall"_s);
    EXPECT_EQ(shown(), QStringList{u"updateDownload"_s});
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(shown(), QStringList{u"updateDownload"_s});
    windows.showChecking([this] { windows.close(); });
    press(u"updateCancel"_s);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(shown(), QStringList());
}

TEST_F(UpdateWindowsTest, focusBringsTheWindowBack)
{
    windows.focus();
    showUpdate(update);
    window().showMinimized();
    windows.focus();
    EXPECT_FALSE(window().isMinimized());
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
}

TEST_F(UpdateWindowsTest, withoutAWindowProgressAndNotesDoNothing)
{
    windows.setDownloadProgress(1, 2);
    windows.showVerifying();
    windows.showUpToDate(count());
    windows.setDownloadProgress(1, 2);
    windows.showVerifying();
    EXPECT_EQ(heading(), u"Roamlet is up to date"_s);
}

} // namespace
} // namespace roamlet::testing
