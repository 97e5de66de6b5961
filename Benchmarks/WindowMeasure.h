// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QTreeView>

#include <unistd.h>

#include <chrono>
#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <string_view>

namespace roamlet
{

/// Ends a program with windows at the moment to be measured.
class WindowMeasure final : public QObject
{
public:
    enum class Mode : std::uint8_t {
        Start,  ///< Ends when a list was painted first, and prints when that was, in microseconds since 1970.
        Memory, ///< "--memory": then closes the windows, and some time later prints the memory in use, in kB.
        Stay    ///< "--stay": then closes the windows and stays in the tray.
    };

    /// `isReady` says whether what was painted in a view is what is waited for.
    WindowMeasure(Mode mode, std::function<bool(const QTreeView &)> isReady)
        : m_mode(mode), m_isReady(std::move(isReady))
    {
        QCoreApplication::instance()->installEventFilter(this);
        constexpr int patience = 60'000;
        QTimer::singleShot(patience, this, [this] {
            if (m_isOver)
                return;
            std::fputs("nothing was painted\n", stderr);
            _exit(1);
        });
    }

    /// What the arguments of the program ask for.
    static Mode askedFor(int argc, char **argv)
    {
        const std::string_view argument = argc > 1 ? argv[1] : "";
        if (argument == "--memory")
            return Mode::Memory;
        return argument == "--stay" ? Mode::Stay : Mode::Start;
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const auto *view =
            event->type() == QEvent::Paint ? qobject_cast<const QTreeView *>(watched->parent()) : nullptr;
        if (view != nullptr && !m_isOver && m_isReady(*view)) {
            m_isOver = true;
            QTimer::singleShot(0, this, &WindowMeasure::end);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void end()
    {
        if (m_mode == Mode::Start) {
            const auto now = std::chrono::system_clock::now().time_since_epoch();
            std::printf("%" PRId64 "\n",
                        std::int64_t{std::chrono::duration_cast<std::chrono::microseconds>(now).count()});
            std::fflush(stdout);
            // How a program ends is its own affair.
            _exit(0);
        }
        QApplication::setQuitOnLastWindowClosed(false);
        QApplication::closeAllWindows();
        if (m_mode == Mode::Stay)
            return;
        constexpr int settling = 2000;
        QTimer::singleShot(settling, this, [] {
            std::FILE *status = std::fopen("/proc/self/statm", "re");
            long size = 0;
            long resident = 0;
            if (status != nullptr && std::fscanf(status, "%ld %ld", &size, &resident) == 2)
                std::printf("%ld\n", resident * (sysconf(_SC_PAGESIZE) / 1024));
            if (status != nullptr)
                static_cast<void>(std::fclose(status));
            QCoreApplication::quit();
        });
    }

    Mode m_mode;
    std::function<bool(const QTreeView &)> m_isReady;
    bool m_isOver = false;
};

} // namespace roamlet
