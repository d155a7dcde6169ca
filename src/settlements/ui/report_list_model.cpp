#include "settlements/ui/report_list_model.h"

#include "settlements/sort_list.h"
#include "shared/ui/qt_text.h"

namespace wayscribe {
namespace {

QVariant alignmentOf(const ReportColumn &column)
{
    const Qt::Alignment horizontal =
        column.alignment == ColumnAlignment::Right ? Qt::AlignRight : Qt::AlignLeft;
    return QVariant::fromValue(horizontal | Qt::AlignVCenter);
}

} // namespace

ReportListModel::ReportListModel(ReportTable table, QObject *parent)
    : QAbstractTableModel(parent), table_(std::move(table))
{
}

void ReportListModel::refill(const std::function<void(ReportTable &)> &fill)
{
    beginResetModel();
    fill(table_);
    endResetModel();
}

bool ReportListModel::sortByHeader(int section)
{
    if (section < 0 || section >= table_.columnCount())
        return false;
    emit layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    const std::vector<std::uint32_t> newOrder = sortByHeaderClick(table_, section + 1);
    std::vector<int> newRow(newOrder.size());
    for (std::size_t p = 0; p < newOrder.size(); ++p)
        newRow[newOrder[p]] = static_cast<int>(p);
    const QModelIndexList before = persistentIndexList();
    for (const QModelIndex &old : before)
        changePersistentIndex(old, index(newRow[static_cast<std::size_t>(old.row())], old.column()));
    emit layoutChanged({}, QAbstractItemModel::VerticalSortHint);
    return true;
}

int ReportListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(table_.rowCount());
}

int ReportListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : table_.columnCount();
}

bool ReportListModel::isCell(const QModelIndex &index) const
{
    return index.isValid() && !index.parent().isValid() && index.row() >= 0 &&
           static_cast<std::size_t>(index.row()) < table_.rowCount() && index.column() >= 0 &&
           index.column() < table_.columnCount();
}

QVariant ReportListModel::data(const QModelIndex &index, int role) const
{
    if (!isCell(index))
        return {};
    const auto row = static_cast<std::size_t>(index.row());
    const int column = index.column() + 1;
    switch (role) {
    case Qt::DisplayRole:
        return toQString(table_.cellText(row, column));
    case Qt::TextAlignmentRole:
        return alignmentOf(table_.column(column));
    default:
        return {};
    }
}

QVariant ReportListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= table_.columnCount())
        return QAbstractTableModel::headerData(section, orientation, role);
    const ReportColumn &column = table_.column(section + 1);
    switch (role) {
    case Qt::DisplayRole:
        return toQString(column.title);
    case Qt::TextAlignmentRole:
        return alignmentOf(column);
    default:
        return {};
    }
}

} // namespace wayscribe
