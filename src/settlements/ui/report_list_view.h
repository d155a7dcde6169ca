#pragma once

#include "settlements/report_table.h"

#include <QTableView>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace wayscribe {

class ReportListModel;

// A report-style list: a table with a header row, rows selected whole and
// one at a time, sorted by a click on a column header. Screen readers meet
// it as a table with column headers, under the name the window gives.
class ReportListView : public QTableView {
    Q_OBJECT
public:
    ReportListView(ReportTable table, const QString &accessibleName, QWidget *parent = nullptr);

    const ReportTable &table() const;
    ReportListModel *listModel() const { return model_; }
    // Every change of the rows goes through here (see ReportListModel).
    void refill(const std::function<void(ReportTable &)> &fill);

    // Wide enough for every column and the scroll bar.
    QSize sizeHint() const override;

    // The selected row in display order, none when nothing is selected.
    std::optional<std::size_t> selectedRow() const;
    std::optional<std::uint32_t> selectedReference() const;
    // A cell of the selected row (column 1-based); empty with no selection.
    std::string selectedText(int column) const;

signals:
    // A row was double-clicked, or Enter was pressed on it.
    void rowActivated(int row);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void headerClicked(int section);

    ReportListModel *model_ = nullptr;
};

} // namespace wayscribe
