#include "platform/Listbox.h"

#include "platform/Text.h"

#include <QStringList>

#include <algorithm>
#include <numeric>

Listbox::Refill::Refill(Listbox &list) : list_(list) {
    if (list_.refills_++ == 0) {
        list_.beginResetModel();
    }
}

Listbox::Refill::~Refill() {
    if (--list_.refills_ == 0) {
        list_.endResetModel();
        Q_EMIT list_.SelectionMoved();
    }
}

Listbox::Listbox(const QString &name, int columnCount)
    : columnCount_(columnCount), alignments_(static_cast<size_t>(columnCount), Alignment::Default) {
    setObjectName(name);
}

void Listbox::AddRow(const QString &text) {
    const bool told = refills_ > 0;
    if (!told) {
        beginInsertRows({}, ListCount(), ListCount());
    }
    Row &row = rows_.emplace_back();
    row.cells.resize(static_cast<size_t>(columnCount_));
    row.cells.front() = text;
    if (!told) {
        endInsertRows();
    }
}

void Listbox::DeleteAllRows() {
    const Refill refill(*this);
    rows_.clear();
    listIndex_ = -1;
}

void Listbox::SetListIndex(int row) {
    row = Has(row) ? row : -1;
    if (row == listIndex_) {
        return;
    }
    listIndex_ = row;
    Q_EMIT SelectionMoved();
}

QString Listbox::Cell(int row, int column) const {
    if (row >= 0) {
        if (!Has(row) || column >= columnCount_) {
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

QString Listbox::Joined(const Row &row) const {
    return QStringList(row.cells.begin(), row.cells.end()).join(u'\t');
}

void Listbox::SetCell(int row, int column, const QString &text) {
    if (!Has(row)) {
        return;
    }
    At(row).cells[static_cast<size_t>(column)] = text;
    if (refills_ == 0) {
        Q_EMIT dataChanged(index(row, column), index(row, column));
    }
}

void Listbox::SetColumn(int column, const std::vector<QString> &texts) {
    const int count = std::min(ListCount(), static_cast<int>(texts.size()));
    for (int row = 0; row < count; ++row) {
        At(row).cells[static_cast<size_t>(column)] = texts[static_cast<size_t>(row)];
    }
    if (refills_ == 0 && count > 0) {
        Q_EMIT dataChanged(index(0, column), index(count - 1, column));
    }
}

const Listbox::Tag &Listbox::CellTag(int row, int column) const {
    static const Tag none;
    const auto place = static_cast<size_t>(column);
    return Has(row) && place < At(row).tags.size() ? At(row).tags[place] : none;
}

void Listbox::SetCellTag(int row, int column, Tag tag) {
    if (!Has(row)) {
        return;
    }
    auto &tags = At(row).tags;
    if (const auto needed = static_cast<size_t>(column) + 1; tags.size() < needed) {
        tags.resize(needed);
    }
    tags[static_cast<size_t>(column)] = std::move(tag);
}

QString Listbox::RowTag(int row) const {
    return Has(row) ? At(row).tag : QString();
}

void Listbox::SetRowTag(int row, const QString &tag) {
    if (Has(row)) {
        At(row).tag = tag;
    }
}

int Listbox::FindRow(const QString &tag) const {
    const auto found =
        std::find_if(rows_.begin(), rows_.end(), [&tag](const Row &row) { return row.tag == tag; });
    return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

void Listbox::SetColumnAlignment(int column, Alignment alignment) {
    alignments_[static_cast<size_t>(column)] = alignment;
}

bool Listbox::Less(int first, int second) {
    int result = 0;
    bool handled = false;
    Q_EMIT CompareRows(first, second, sortedColumn_, result, handled);
    if (handled) {
        return result < 0;
    }
    const auto column = static_cast<size_t>(sortedColumn_);
    return At(first).cells[column].compare(At(second).cells[column], Qt::CaseInsensitive) < 0;
}

void Listbox::Sort() {
    std::vector<int> order(rows_.size());
    std::iota(order.begin(), order.end(), 0);
    const auto less = [this](int first, int second) { return Less(first, second); };
    if (std::is_sorted(order.begin(), order.end(), less)) {
        return;
    }
    std::stable_sort(order.begin(), order.end(), less);
    const Refill refill(*this);
    std::vector<Row> sorted;
    sorted.reserve(rows_.size());
    for (const int row : order) {
        sorted.push_back(std::move(At(row)));
    }
    rows_ = std::move(sorted);
    const auto selected = std::find(order.begin(), order.end(), listIndex_);
    listIndex_ = selected == order.end() ? -1 : static_cast<int>(selected - order.begin());
}

void Listbox::ScrollTo(int row) {
    if (Has(row)) {
        Q_EMIT ScrollRequested(row);
    }
}

int Listbox::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : ListCount();
}

int Listbox::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : columnCount_;
}

QVariant Listbox::data(const QModelIndex &index, int role) const {
    if (role == Qt::DisplayRole) {
        return Cell(index.row(), index.column());
    }
    if (role == Qt::TextAlignmentRole) {
        const bool right = alignments_[static_cast<size_t>(index.column())] == Alignment::Right;
        return {Qt::AlignVCenter | (right ? Qt::AlignRight : Qt::AlignLeft)};
    }
    return {};
}
