// SPDX-License-Identifier: MIT
// KRunner's list without its window: types what Scripts/desktop-search-driver.py puts into "steps", one after the
// other, runs a row or an action of it where a step says so, and prints what is listed, a line of JSON for each step.
import QtQml 2.15
import QtQuick 2.15
import org.kde.milou 0.3 as Milou
import org.kde.plasma.core 2.0 as PlasmaCore

Item {
    id: page

    property var steps: STEPS
    property int at: -1
    property int quiet: 0

    function shown(row) {
        const index = model.index(row, 0);
        icon.source = model.data(index, Qt.DecorationRole);
        return {
            text: model.data(index, Qt.DisplayRole),
            subtext: model.data(index, Milou.ResultsModel.SubtextRole),
            category: model.data(index, Milou.ResultsModel.CategoryRole),
            hasIcon: icon.valid,
            actions: (model.data(index, Milou.ResultsModel.ActionsRole) || []).length
        };
    }

    function next() {
        if (at >= 0) {
            const step = steps[at];
            const rows = [];
            for (let row = 0; row < model.rowCount(); ++row)
                rows.push(shown(row));
            console.log("ROWS " + JSON.stringify(rows));
            if (step.run) {
                const wanted = rows.findIndex(row => row.text === step.run || row.subtext === step.run);
                if (wanted >= 0 && step.action !== undefined)
                    model.runAction(model.index(wanted, 0), step.action);
                else if (wanted >= 0)
                    model.run(model.index(wanted, 0));
            }
        }
        quiet = 0;
        if (++at < steps.length)
            model.queryString = steps[at].query;
        else
            end.start();
    }

    Milou.ResultsModel {
        id: model
        limit: 20
        onRowsInserted: page.quiet = 0
        onRowsRemoved: page.quiet = 0
        onDataChanged: page.quiet = 0
    }

    PlasmaCore.IconItem {
        id: icon
        width: 32
        height: 32
    }

    // A step is over when the list has not changed for a while.
    Timer {
        running: true
        repeat: true
        interval: 100
        onTriggered: {
            if (model.querying || ++page.quiet < 8)
                return;
            page.next();
        }
    }

    Timer {
        id: end
        interval: 500
        onTriggered: Qt.quit()
    }
}
