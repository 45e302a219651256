#include "platform/lists/CellModel.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Returns an iterator to the value of a row, after growing the container if it is too short.
template <typename Values>
auto ElementAt(Values &values, int row) {
    const auto index = static_cast<size_t>(row);
    if (index >= values.size()) {
        values.resize(index + 1);
    }
    return values.begin() + row;
}

template <typename Values>
bool Contains(const Values &values, int row) {
    return static_cast<size_t>(row) < values.size();
}

template <typename Values>
void Reorder(Values &values, const std::vector<int> &order) {
    if (values.empty()) {
        return;
    }
    values.resize(order.size());
    Values ordered(order.size());
    auto target = ordered.begin();
    for (const int row : order) {
        *target++ = std::move(values[static_cast<size_t>(row)]);
    }
    values = std::move(ordered);
}

void Reorder(TextColumn &texts, const std::vector<int> &order) {
    TextColumn ordered;
    for (const int row : order) {
        ordered.Add(texts.At(row));
    }
    texts = std::move(ordered);
}

} // namespace

void CellModel::BeginRefill() {
    if (refillDepth_++ == 0) {
        beginResetModel();
    }
}

void CellModel::EndRefill() {
    if (--refillDepth_ == 0) {
        endResetModel();
    }
}

void CellModel::ReplaceRows(Rows rows) {
    rowTags_ = std::move(rows.tags);
    rows.cells.resize(columns_.size());
    rows.cellTags.resize(columns_.size());
    for (size_t column = 0; column < columns_.size(); ++column) {
        columns_[column].cells = std::move(rows.cells[column]);
        columns_[column].cells.SetCount(ListCount());
        columns_[column].tags = std::move(rows.cellTags[column]);
        columns_[column].checks.clear();
    }
}

void CellModel::ReorderRows(const std::vector<int> &order) {
    for (Column &column : columns_) {
        Reorder(column.cells, order);
        Reorder(column.tags, order);
        Reorder(column.checks, order);
    }
    Reorder(rowTags_, order);
}

void CellModel::AddRow(const QString &text) {
    const bool isRefilling = IsRefilling();
    if (!isRefilling) {
        beginInsertRows({}, ListCount(), ListCount());
    }
    for (Column &column : columns_) {
        column.cells.Add({});
    }
    columns_.front().cells.Set(ListCount(), text);
    rowTags_.Add({});
    if (!isRefilling) {
        endInsertRows();
    }
}

QString CellModel::Cell(int row, int column) const {
    if (row >= 0 && column >= 0) {
        return Has(row, column) ? ColumnAt(column).cells.At(row).toString() : QString();
    }
    if (row >= ListCount() || column >= ColumnCount()) {
        return {};
    }
    return row < 0 ? JoinedCells(0, ListCount(), column) : JoinedCells(row, row + 1, column);
}

QString CellModel::JoinedCells(int begin, int end, int column) const {
    const int first = std::max(column, 0);
    const int last = column < 0 ? ColumnCount() - 1 : column;
    // The text of a year is several megabytes, so allocate it only once.
    qsizetype size = qsizetype(end - begin) * (last - first + 1);
    for (int current = first; current <= last; ++current) {
        size += ColumnAt(current).cells.LengthOf(begin, end);
    }
    QString joined(size, Qt::Uninitialized);
    QChar *target = joined.data();
    for (int row = begin; row < end; ++row) {
        for (int current = first; current <= last; ++current) {
            const QStringView cell = ColumnAt(current).cells.At(row);
            target = std::copy(cell.begin(), cell.end(), target);
            *target++ = current == last ? u'\n' : u'\t';
        }
    }
    joined.chop(1);
    return joined;
}

void CellModel::NotifyCellChanged(int row, int column) {
    if (!IsRefilling()) {
        Q_EMIT dataChanged(index(row, column), index(row, column));
    }
}

void CellModel::SetCell(int row, int column, const QString &text) {
    if (Has(row, column)) {
        ColumnAt(column).cells.Set(row, text);
        NotifyCellChanged(row, column);
    }
}

void CellModel::SetColumn(int column, TextColumn texts) {
    if (!HasColumn(column)) {
        return;
    }
    texts.SetCount(ListCount());
    ColumnAt(column).cells = std::move(texts);
    if (!IsRefilling() && ListCount() > 0) {
        Q_EMIT dataChanged(index(0, column), index(LastIndex(), column));
    }
}

bool CellModel::CellCheck(int row, int column) const {
    return Has(row, column) && Contains(ColumnAt(column).checks, row) &&
           ColumnAt(column).checks[static_cast<size_t>(row)];
}

void CellModel::SetCellCheck(int row, int column, bool checked) {
    if (Has(row, column)) {
        *ElementAt(ColumnAt(column).checks, row) = checked;
        NotifyCellChanged(row, column);
    }
}

const CellModel::Tag &CellModel::CellTag(int row, int column) const {
    static const Tag none;
    return Has(row, column) && Contains(ColumnAt(column).tags, row)
               ? ColumnAt(column).tags[static_cast<size_t>(row)]
               : none;
}

QString CellModel::RowTag(int row) const {
    return Has(row) ? rowTags_.At(row).toString() : QString();
}

void CellModel::SetRowTag(int row, const QString &tag) {
    if (Has(row)) {
        rowTags_.Set(row, tag);
    }
}

int CellModel::FindRow(const QString &tag) const {
    for (int row = 0; row < ListCount(); ++row) {
        if (rowTags_.At(row) == tag) {
            return row;
        }
    }
    return -1;
}

void CellModel::SetColumnAlignment(int column, Alignment alignment) {
    if (HasColumn(column)) {
        ColumnAt(column).alignment = alignment;
    }
}

void CellModel::SetColumnType(int column, ColumnType type) {
    if (HasColumn(column)) {
        ColumnAt(column).type = type;
    }
}

QString CellModel::Heading(int column) const {
    if (column >= 0) {
        return HasColumn(column) ? ColumnAt(column).heading : QString();
    }
    QString headings;
    for (const Column &current : columns_) {
        headings += current.heading + u'\t';
    }
    headings.chop(1);
    return headings;
}

void CellModel::SetHeading(int column, const QString &text) {
    if (HasColumn(column)) {
        ColumnAt(column).heading = text;
        Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
    }
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
    if (role == Qt::AccessibleTextRole) {
        return SpokenText(index.row(), index.column());
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

QString CellModel::SpokenText(int row, int column) const {
    const bool isCheckBox = TypeOfColumn(column) == ColumnType::CheckBox;
    const QString checked = CellCheck(row, column) ? u"ja"_s : u"nein"_s;
    const QString text = isCheckBox ? checked : Cell(row, column);
    return text.isEmpty() ? text : Heading(column) + u' ' + text;
}

QVariant CellModel::AlignmentOf(int column) const {
    const bool right = ColumnAt(column).alignment == Alignment::Right;
    return {Qt::AlignVCenter | (right ? Qt::AlignRight : Qt::AlignLeft)};
}
