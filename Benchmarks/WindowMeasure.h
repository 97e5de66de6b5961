// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QTreeView>

#include <unistd.h>

#include <cstdio>
#include <functional>
#include <string_view>

namespace roamlet
{

/// Ends a program with windows at the moment to be measured: when a list was painted first, or, with
/// "--memory" among the arguments, some time after its windows were closed then; the memory in use is printed
/// in kB.
class WindowMeasure final : public QObject
{
public:
    /// `isReady` says whether what was painted in a view is what is waited for.
    WindowMeasure(bool measuresMemory, std::function<bool(const QTreeView &)> isReady)
        : m_measuresMemory(measuresMemory), m_isReady(std::move(isReady))
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

    static bool isAskedForMemory(int argc, char **argv)
    {
        return argc > 1 && std::string_view(argv[1]) == "--memory";
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
        // What is measured is the start; how a program ends is its own affair.
        if (!m_measuresMemory)
            _exit(0);
        QApplication::setQuitOnLastWindowClosed(false);
        QApplication::closeAllWindows();
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

    bool m_measuresMemory;
    std::function<bool(const QTreeView &)> m_isReady;
    bool m_isOver = false;
};

} // namespace roamlet
