#include "settlements/ui/report_list_view.h"

#include "settlements/ui/report_list_model.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace wayscribe {
namespace {

// Column widths are kept in 1/1440 inch: 15 of them to a logical pixel.
int widthInPixels(int units)
{
    return static_cast<int>(std::lround(units / 15.0));
}

// Room for a column's title and the header's own margins.
int titleWidth(const QHeaderView &header, const QString &title)
{
    return header.fontMetrics().horizontalAdvance(title) + 2 * header.fontMetrics().averageCharWidth() + 4;
}

} // namespace

ReportListView::ReportListView(ReportTable table, const QString &accessibleName, QWidget *parent)
    : QTableView(parent), model_(new ReportListModel(std::move(table), this))
{
    setModel(model_);
    setAccessibleName(accessibleName);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    // Tab leaves the list for the window's next control instead of walking
    // its cells.
    setTabKeyNavigation(false);
    setShowGrid(false);
    setWordWrap(false);
    setAlternatingRowColors(false);

    QHeaderView *rows = verticalHeader();
    rows->hide();
    rows->setSectionResizeMode(QHeaderView::Fixed);
    rows->setDefaultSectionSize(fontMetrics().height() + 4);

    QHeaderView *header = horizontalHeader();
    header->setSectionsClickable(true);
    header->setHighlightSections(false);
    header->setStretchLastSection(false);
    // No order arrow: in the narrow number columns it would hide the title.
    header->setSortIndicatorShown(false);
    // The described widths were measured for another system's font: a
    // column is never narrower than its own title, so no title is cut.
    for (int c = 1; c <= model_->table().columnCount(); ++c)
        header->resizeSection(
            c - 1, std::max(widthInPixels(model_->table().column(c).width),
                            titleWidth(*header, model_->headerData(c - 1, Qt::Horizontal).toString())));
    connect(header, &QHeaderView::sectionClicked, this, &ReportListView::headerClicked);
    connect(this, &QAbstractItemView::doubleClicked, this,
            [this](const QModelIndex &index) { emit rowActivated(index.row()); });
}

QSize ReportListView::sizeHint() const
{
    const int width =
        horizontalHeader()->length() + verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
    return {width, QTableView::sizeHint().height()};
}

const ReportTable &ReportListView::table() const
{
    return model_->table();
}

void ReportListView::refill(const std::function<void(ReportTable &)> &fill)
{
    model_->refill(fill);
}

void ReportListView::headerClicked(int section)
{
    // Every cell of the column is read once: with the longest lists that
    // takes a moment, so show that the list is busy and draw it once after.
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    setUpdatesEnabled(false);
    const bool sorted = model_->sortByHeader(section);
    setUpdatesEnabled(true);
    QGuiApplication::restoreOverrideCursor();
    if (const QModelIndex current = currentIndex(); sorted && current.isValid())
        scrollTo(current);
}

std::optional<std::size_t> ReportListView::selectedRow() const
{
    const QModelIndexList rows = selectionModel()->selectedRows();
    if (rows.isEmpty())
        return std::nullopt;
    return static_cast<std::size_t>(rows.front().row());
}

std::optional<std::uint32_t> ReportListView::selectedReference() const
{
    const std::optional<std::size_t> row = selectedRow();
    if (!row)
        return std::nullopt;
    return table().reference(*row);
}

std::string ReportListView::selectedText(int column) const
{
    const std::optional<std::size_t> row = selectedRow();
    if (!row || column < 1 || column > table().columnCount())
        return {};
    return table().cellText(*row, column);
}

void ReportListView::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && currentIndex().isValid()) {
        emit rowActivated(currentIndex().row());
        return;
    }
    QTableView::keyPressEvent(event);
}

} // namespace wayscribe
