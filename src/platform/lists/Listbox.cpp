#include "platform/lists/Listbox.h"

#include "platform/values/Text.h"

#include <algorithm>
#include <numeric>
#include <utility>

Listbox::Listbox(const QString &name, int columnCount) : CellModel(columnCount) {
    setObjectName(name);
}

void Listbox::Refill(const std::function<void()> &fill) {
    CloseOpenCell();
    BeginRefill();
    fill();
    EndRefill();
    if (!IsRefilling()) {
        Q_EMIT SelectionChanged();
    }
}

void Listbox::SetRows(Rows rows) {
    Refill([this, &rows] {
        ReplaceRows(std::move(rows));
        listIndex_ = -1;
    });
}

void Listbox::SetListIndex(int row) {
    if (row != edit_.row) {
        CloseOpenCell();
    }
    row = Has(row) ? row : -1;
    if (row == listIndex_) {
        return;
    }
    listIndex_ = row;
    if (!IsRefilling()) {
        Q_EMIT SelectionChanged();
    }
}

void Listbox::ScrollTo(int row) {
    if (Has(row)) {
        Q_EMIT ScrollRequested(row);
    }
}

void Listbox::SetOrder(int column, bool descending) {
    sortedColumn_ = column;
    descending_ = descending;
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount() - 1);
}

bool Listbox::Less(int first, int second) {
    int result = 0;
    bool handled = false;
    Q_EMIT CompareRows(first, second, sortedColumn_, result, handled);
    if (handled) {
        return result < 0;
    }
    return CompareTexts(Cell(first, sortedColumn_), Cell(second, sortedColumn_)) < 0;
}

void Listbox::Sort() {
    CloseOpenCell();
    if (!HasColumn(sortedColumn_)) {
        return;
    }
    std::vector<int> order(static_cast<size_t>(ListCount()));
    std::iota(order.begin(), order.end(), 0);
    const auto less = [this](int first, int second) {
        return descending_ ? Less(second, first) : Less(first, second);
    };
    if (std::is_sorted(order.begin(), order.end(), less)) {
        return;
    }
    std::stable_sort(order.begin(), order.end(), less);
    Refill([this, &order] {
        ReorderRows(order);
        const auto selected = std::find(order.begin(), order.end(), listIndex_);
        listIndex_ = selected == order.end() ? -1 : static_cast<int>(selected - order.begin());
    });
}

void Listbox::PressHeading(int column) {
    if (sortsByHeading_ && HasColumn(column)) {
        SetOrder(column, column == sortedColumn_ && !descending_);
        Sort();
    }
}

bool Listbox::IsCheckBox(int row, int column) const {
    return Has(row) && TypeOfColumn(column) == ColumnType::CheckBox;
}

bool Listbox::CanEdit(int row, int column) const {
    return Has(row, column) && !IsCheckBox(row, column) && !IsRefilling();
}

void Listbox::EditCell(int row, int column) {
    CloseOpenCell();
    if (!CanEdit(row, column)) {
        return;
    }
    SetListIndex(row);
    ScrollTo(row);
    edit_ = {row, column, Cell(row, column), Cell(row, column)};
    Q_EMIT EditOpened();
}

void Listbox::SetEditText(const QString &text) {
    if (edit_.row >= 0) {
        edit_.text = text;
    }
}

void Listbox::EndEdit() {
    if (edit_.row < 0) {
        return;
    }
    const Edit edit = std::exchange(edit_, {});
    const bool isChanged = edit.text != edit.originalText;
    if (isChanged) {
        SetCell(edit.row, edit.column, edit.text);
    }
    Q_EMIT EditClosed();
    if (isChanged) {
        Q_EMIT CellAction(edit.row, edit.column);
    }
}

void Listbox::CancelEdit() {
    edit_.text = edit_.originalText;
    EndEdit();
}

void Listbox::CloseOpenCell() {
    EndEdit();
    CancelEdit();
}

void Listbox::ToggleCheck(int row, int column) {
    CloseOpenCell();
    if (IsCheckBox(row, column)) {
        SetCellCheck(row, column, !CellCheck(row, column));
        Q_EMIT CellAction(row, column);
    }
}
