#include "platform/controls/RowModel.h"

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

int RowModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : Count();
}

QVariant RowModel::data(const QModelIndex &index, int role) const {
    if (role == Qt::DisplayRole || role == Qt::EditRole) {
        return Text(index.row());
    }
    return {};
}
