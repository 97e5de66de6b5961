// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QItemSelectionModel>

namespace roamlet
{

/// Selects whole rows, also of thousands of sections at once. Qt's own way compares each range with all
/// before it when it widens them to rows.
class RowSelectionModel final : public QItemSelectionModel
{
    Q_OBJECT

public:
    using QItemSelectionModel::QItemSelectionModel;

    using QItemSelectionModel::select;
    void select(const QItemSelection &selection, SelectionFlags command) override;
};

} // namespace roamlet
