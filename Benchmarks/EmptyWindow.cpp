// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

// What a window with an empty table costs before a program does anything with it: the measure for how fast
// ours may show its first rows, and for what it may keep while it waits in the tray.

#include "WindowMeasure.h"

#include <QMainWindow>
#include <QStandardItemModel>
#include <QSystemTrayIcon>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const roamlet::WindowMeasure measure(roamlet::WindowMeasure::askedFor(argc, argv),
                                         [](const QTreeView &) { return true; });
    QMainWindow window;
    QTreeView table;
    QStandardItemModel model(0, 4);
    table.setModel(&model);
    window.setCentralWidget(&table);
    window.resize(1100, 700);
    window.show();
    QSystemTrayIcon icon(QIcon::fromTheme(QStringLiteral("folder")));
    icon.show();
    return QApplication::exec();
}
