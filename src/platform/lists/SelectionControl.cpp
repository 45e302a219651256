#include "platform/lists/SelectionControl.h"

#include "platform/values/Text.h"

#include <algorithm>
#include <utility>

QString RowModel::Text(int row) const {
    return Has(row) ? rows_[static_cast<size_t>(row)].text : QString();
}

QString RowModel::Tag(int row) const {
    return Has(row) ? rows_[static_cast<size_t>(row)].tag : QString();
}

void RowModel::SetTag(int row, const QString &tag) {
    if (Has(row)) {
        rows_[static_cast<size_t>(row)].tag = tag;
    }
}

void RowModel::Append(const QString &text) {
    beginInsertRows({}, Count(), Count());
    rows_.push_back({text, {}});
    endInsertRows();
}

void RowModel::SetRows(std::vector<Row> rows) {
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

int RowModel::Find(QString Row::*field, const QString &text) const {
    const auto found = std::find_if(rows_.begin(), rows_.end(), [field, &text](const Row &row) {
        return SameText(row.*field, text);
    });
    return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

int RowModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : Count();
}

QVariant RowModel::data(const QModelIndex &index, int role) const {
    if (role == Qt::DisplayRole || role == Qt::EditRole) {
        return Text(index.row());
    }
    return {};
}

void SelectionControl::AddRow(const QString &text) {
    rows_.Append(text);
    Q_EMIT Updated();
}

void SelectionControl::SetRows(std::vector<Row> rows) {
    rows_.SetRows(std::move(rows));
    ClearSelection();
    Q_EMIT Updated();
}
