#pragma once

#include "settlements/report_table.h"

#include <QAbstractTableModel>

#include <functional>

namespace wayscribe {

// The table of a report list as Qt's views see it. Cell texts are converted
// only for the cells a view asks for, that is the rows on screen.
class ReportListModel : public QAbstractTableModel {
    Q_OBJECT
public:
    ReportListModel(ReportTable table, QObject *parent = nullptr);

    const ReportTable &table() const { return table_; }

    // Every change of the rows goes through here, so that the views are
    // told before and after: `fill` may clear, add rows, stop sorting.
    void refill(const std::function<void(ReportTable &)> &fill);

    // A click on the header of a column (0-based, as Qt counts); the
    // selection stays on the same rows. Returns whether the rows were sorted.
    bool sortByHeader(int section);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    bool isCell(const QModelIndex &index) const;

    ReportTable table_;
};

} // namespace wayscribe
