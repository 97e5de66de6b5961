// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

// How long does it take from a letter typed into the search field until its rows are painted, what does that
// cost in memory, and does the window stand still meanwhile? Runs over the Chrome of the home that it finds
// and prints a number in each line, after its name.

#include "App/RoamletApp.h"
#include "App/Tables/LinkTable.h"
#include "Library/LibraryReading.h"
#include "Platform/Linux/LinuxPlatform.h"
#include "Readers/BrowserReader.h"

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStringList>
#include <QTimer>
#include <QTreeView>

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace
{

using namespace roamlet;
using namespace Qt::StringLiterals;

/// Whether a few letters are enough.
bool isShort = false;

constexpr double nanosecondsInMillisecond = 1e6;

double milliseconds(const QElapsedTimer &timer)
{
    return static_cast<double>(timer.nsecsElapsed()) / nanosecondsInMillisecond;
}

struct Memory {
    double resident = 0;
    /// What of it is pages of files: those of fonts for another script, for instance, once a row has its
    /// letters.
    double ofFiles = 0;
};

/// In MiB.
Memory memory()
{
    std::ifstream status("/proc/self/statm");
    Memory pages;
    double size = 0;
    status >> size >> pages.resident >> pages.ofFiles;
    const double page = static_cast<double>(sysconf(_SC_PAGESIZE)) / (1 << 20);
    return {.resident = pages.resident * page, .ofFiles = pages.ofFiles * page};
}

/// What the program has written itself, in MiB.
double ownMemory()
{
    const Memory now = memory();
    return now.resident - now.ofFiles;
}

void print(const char *name, double value)
{
    std::printf("%s %.3f\n", name, value);
    std::fflush(stdout);
}

void wait(std::chrono::milliseconds duration)
{
    QEventLoop loop;
    QTimer::singleShot(duration, &loop, &QEventLoop::quit);
    loop.exec();
}

double part(std::vector<double> values, double share)
{
    std::ranges::sort(values);
    return values[static_cast<std::size_t>(share * static_cast<double>(values.size() - 1))];
}

/// The longest time in which the main thread does not come back to its events.
class Stalls
{
public:
    Stalls()
    {
        m_sinceLast.start();
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
            m_longest = std::max(m_longest, milliseconds(m_sinceLast));
            m_sinceLast.restart();
        });
        m_timer.start(0);
    }
    double longest() const { return m_longest; }

private:
    QTimer m_timer;
    QElapsedTimer m_sinceLast;
    double m_longest = 0;
};

/// Notes when a view has painted what a table shows next.
class NextPicture final : public QObject
{
public:
    explicit NextPicture(LinkTable &table) : m_viewport(*table.view().viewport())
    {
        m_time.start();
        connect(&table, &LinkTable::rowCountChanged, this, [this] { m_isThere = true; });
        m_viewport.installEventFilter(this);
    }

    double awaitIt()
    {
        QTimer::singleShot(std::chrono::seconds(30), &m_loop, &QEventLoop::quit);
        if (!m_painted)
            m_loop.exec();
        return m_painted.value_or(std::numeric_limits<double>::infinity());
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::Paint || !m_isThere || m_painted)
            return false;
        // The view paints first.
        m_viewport.removeEventFilter(this);
        QCoreApplication::sendEvent(watched, event);
        m_painted = milliseconds(m_time);
        m_loop.quit();
        return true;
    }

private:
    QWidget &m_viewport;
    QElapsedTimer m_time;
    QEventLoop m_loop;
    bool m_isThere = false;
    std::optional<double> m_painted;
};

void type(QLineEdit &field, QChar letter)
{
    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(letter));
    QCoreApplication::sendEvent(&field, &press);
}

/// What a plain program would do: one pass over as many bytes, for one that is not among them, and a picture.
void measurePlainWay(LinkTable &table, std::size_t bytes)
{
    const std::string text(bytes, 'x');
    std::vector<double> passes;
    std::vector<double> pictures;
    const Stalls stalls;
    for (int i = 0; i < 50; ++i) {
        QElapsedTimer time;
        time.start();
        if (text.find('\x07') == std::string::npos)
            passes.push_back(milliseconds(time));
        time.restart();
        table.view().viewport()->repaint();
        pictures.push_back(milliseconds(time));
        QCoreApplication::processEvents();
    }
    print("plain_ms", part(passes, 0.5) + part(pictures, 0.5));
    print("plain_99_ms", part(passes, 0.99) + part(pictures, 0.99));
    print("plain_stall_ms", part(pictures, 1));
}

/// The main window and what is measured in it.
struct Shown {
    QWidget *window = nullptr;
    LinkTable *table = nullptr;
    QLineEdit *field = nullptr;
};

/// The window once it shows rows.
std::optional<Shown> shown()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        auto *field = window->findChild<QLineEdit *>(u"searchField"_s);
        auto *view = window->findChild<QTreeView *>(u"historyTable"_s);
        if (field != nullptr && view != nullptr && view->isVisible() && view->model()->rowCount() > 0)
            return Shown{window, qobject_cast<LinkTable *>(view->parentWidget()), field};
    }
    return {};
}

/// A new window, as the tray's menu opens it.
Shown opened()
{
    for (QWidget *menu : QApplication::topLevelWidgets()) {
        if (menu->objectName() == u"menuBarMenu")
            menu->findChild<QAction *>(u"open"_s)->trigger();
    }
    std::optional<Shown> result;
    for (result = shown(); !result; result = shown())
        wait(std::chrono::milliseconds(10));
    return *result;
}

/// What the program keeps once its window is closed.
double memoryInTray(QWidget &window)
{
    window.close();
    wait(std::chrono::seconds(3));
    return memory().resident;
}

void measure(QWidget &firstWindow)
{
    wait(std::chrono::seconds(2));
    print("tray_before_mb", memoryInTray(firstWindow));
    const Shown now = opened();
    QWidget &window = *now.window;
    LinkTable &table = *now.table;
    QLineEdit &field = *now.field;
    wait(std::chrono::seconds(1));
    const double before = ownMemory();

    LinuxPlatform platform;
    const ReadContext context = LibraryReading::readContext(platform.services());
    std::size_t bytes = 0;
    {
        const Source source = BrowserReader::profiles(Source::Kind::Chrome, context).value(0);
        QElapsedTimer time;
        time.start();
        const auto text = BrowserReader::historyText(source, context, std::size_t{1} << 32);
        print("build_ms", milliseconds(time));
        bytes = text && *text ? (*text)->textSize() : 0;
        print("text_mb", static_cast<double>(bytes) / (1 << 20));
    }

    field.setFocus();
    wait(std::chrono::seconds(4));
    const QStringList words{u"weather"_s, u"repair 12"_s, u"trains"_s, u"garden"_s, u"maps"_s,
                            u"example"_s, u"article"_s,   u"news"_s,   u"recipe"_s, u"https"_s};
    std::vector<double> letters;
    double longest = 0;
    while (letters.size() < (isShort ? 10 : 200)) {
        for (const QString &word : words) {
            for (const QChar letter : word) {
                const Stalls stalls;
                NextPicture picture(table);
                type(field, letter);
                letters.push_back(picture.awaitIt());
                wait(std::chrono::milliseconds(20));
                longest = std::max(longest, stalls.longest());
            }
            NextPicture picture(table);
            field.clear();
            picture.awaitIt();
        }
    }
    print("letter_ms", part(letters, 0.5));
    print("letter_99_ms", part(letters, 0.99));
    print("stall_ms", longest);
    if (isShort)
        _exit(0);
    type(field, u'e');
    wait(std::chrono::seconds(1));
    print("memory_searching_mb", ownMemory() - before);
    measurePlainWay(table, bytes);
    field.clear();
    table.setFocus();
    // A little more than the minute for which everything is kept.
    wait(std::chrono::seconds(63));
    print("tray_after_mb", memoryInTray(window));
    _exit(0);
}

void begin()
{
    auto *look = new QTimer(QCoreApplication::instance());
    QObject::connect(look, &QTimer::timeout, look, [look] {
        const std::optional<Shown> first = shown();
        if (!first)
            return;
        look->stop();
        measure(*first->window);
    });
    look->start(std::chrono::milliseconds(50));
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(begin)

int main(int argc, char **argv)
{
    isShort = argc > 1 && std::string_view(argv[1]) == "--short";
    return RoamletApp::run(1, argv);
}
