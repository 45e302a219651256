#include "platform/CellModel.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The place of a column among values that few rows have; they exist only up to the last in use.
template <typename Values>
auto Place(Values &values, int column) {
    const auto place = static_cast<size_t>(column);
    if (place >= values.size()) {
        values.resize(place + 1);
    }
    return values.begin() + column;
}

} // namespace

void CellModel::BeginRefill() {
    if (refills_++ == 0) {
        beginResetModel();
    }
}

void CellModel::EndRefill() {
    if (--refills_ == 0) {
        endResetModel();
    }
}

void CellModel::ReorderRows(const std::vector<int> &order) {
    std::vector<Row> ordered;
    ordered.reserve(rows_.size());
    for (const int row : order) {
        ordered.push_back(std::move(At(row)));
    }
    rows_ = std::move(ordered);
}

void CellModel::AddRow(const QString &text) {
    const bool told = IsRefilling();
    if (!told) {
        beginInsertRows({}, ListCount(), ListCount());
    }
    Row &row = rows_.emplace_back();
    row.cells.resize(columns_.size());
    row.cells.front() = text;
    if (!told) {
        endInsertRows();
    }
}

QString CellModel::Cell(int row, int column) const {
    if (row >= 0) {
        if (!Has(row) || column >= ColumnCount()) {
            return {};
        }
        return column < 0 ? Joined(At(row)) : At(row).cells[static_cast<size_t>(column)];
    }
    QStringList lines;
    lines.reserve(ListCount());
    for (int each = 0; each < ListCount(); ++each) {
        lines.append(Cell(each, column));
    }
    return lines.join(u'\n');
}

QString CellModel::Joined(const Row &row) const {
    return QStringList(row.cells.begin(), row.cells.end()).join(u'\t');
}

void CellModel::ShowCell(int row, int column) {
    if (!IsRefilling()) {
        Q_EMIT dataChanged(index(row, column), index(row, column));
    }
}

void CellModel::SetCell(int row, int column, const QString &text) {
    if (Has(row)) {
        At(row).cells[static_cast<size_t>(column)] = text;
        ShowCell(row, column);
    }
}

void CellModel::SetColumn(int column, const std::vector<QString> &texts) {
    const int count = std::min(ListCount(), static_cast<int>(texts.size()));
    for (int row = 0; row < count; ++row) {
        At(row).cells[static_cast<size_t>(column)] = texts[static_cast<size_t>(row)];
    }
    if (!IsRefilling() && count > 0) {
        Q_EMIT dataChanged(index(0, column), index(count - 1, column));
    }
}

bool CellModel::CellCheck(int row, int column) const {
    const auto place = static_cast<size_t>(column);
    return Has(row) && place < At(row).checks.size() && At(row).checks[place];
}

void CellModel::SetCellCheck(int row, int column, bool checked) {
    if (Has(row)) {
        *Place(At(row).checks, column) = checked;
        ShowCell(row, column);
    }
}

const CellModel::Tag &CellModel::CellTag(int row, int column) const {
    static const Tag none;
    const auto place = static_cast<size_t>(column);
    return Has(row) && place < At(row).tags.size() ? At(row).tags[place] : none;
}

void CellModel::SetCellTag(int row, int column, Tag tag) {
    if (Has(row)) {
        *Place(At(row).tags, column) = std::move(tag);
    }
}

QString CellModel::RowTag(int row) const {
    return Has(row) ? At(row).tag : QString();
}

void CellModel::SetRowTag(int row, const QString &tag) {
    if (Has(row)) {
        At(row).tag = tag;
    }
}

int CellModel::FindRow(const QString &tag) const {
    const auto found =
        std::find_if(rows_.begin(), rows_.end(), [&tag](const Row &row) { return row.tag == tag; });
    return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

void CellModel::SetColumnAlignment(int column, Alignment alignment) {
    ColumnAt(column).alignment = alignment;
}

QString CellModel::Heading(int column) const {
    if (column >= 0) {
        return HasColumn(column) ? ColumnAt(column).heading : QString();
    }
    QStringList headings;
    for (const Column &each : columns_) {
        headings.append(each.heading);
    }
    return headings.join(u'\t');
}

void CellModel::SetHeading(int column, const QString &text) {
    ColumnAt(column).heading = text;
    Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
}

int CellModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : ListCount();
}

int CellModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : ColumnCount();
}

QVariant CellModel::data(const QModelIndex &index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const bool isCheckBox = TypeOfColumn(index.column()) == ColumnType::CheckBox;
    if (role == Qt::DisplayRole && !isCheckBox) {
        return Cell(index.row(), index.column());
    }
    if (role == Qt::CheckStateRole && isCheckBox) {
        return static_cast<int>(CellCheck(index.row(), index.column()) ? Qt::Checked
                                                                       : Qt::Unchecked);
    }
    if (role == Qt::AccessibleTextRole && isCheckBox) {
        return CellCheck(index.row(), index.column()) ? u"ja"_s : u"nein"_s;
    }
    return role == Qt::TextAlignmentRole ? AlignmentOf(index.column()) : QVariant();
}

QVariant CellModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || !HasColumn(section)) {
        return {};
    }
    if (role == Qt::DisplayRole) {
        return Heading(section);
    }
    return role == Qt::TextAlignmentRole ? AlignmentOf(section) : QVariant();
}

QVariant CellModel::AlignmentOf(int column) const {
    const bool right = ColumnAt(column).alignment == Alignment::Right;
    return {Qt::AlignVCenter | (right ? Qt::AlignRight : Qt::AlignLeft)};
}
