#pragma once

#include "platform/Date.h"
#include "platform/Graphics.h"

#include <QAbstractTableModel>
#include <QString>

#include <variant>
#include <vector>

class MenuItem;

/// A list of rows with a text in each cell, at most one row selected. It is the model that its view
/// shows. Rows and columns count from 0, -1 is none; outside the list cells and tags read as empty.
class Listbox : public QAbstractTableModel {
    Q_OBJECT

public:
    /// A value stored with a cell, which the list does not show.
    using Tag = std::variant<std::monostate, QString, Date>;
    enum class Alignment { Default = 0, Right = 3 };

    Listbox(const QString &name, int columnCount);

    /// While it lives, the view waits: rows may be deleted and added, and are shown as a whole
    /// after.
    class Refill {
    public:
        explicit Refill(Listbox &list);
        ~Refill();
        Refill(const Refill &) = delete;
        Refill &operator=(const Refill &) = delete;

    private:
        Listbox &list_;
    };

    /// Adds a row with the text in column 0; it is LastIndex then.
    void AddRow(const QString &text);
    /// Leaves no rows and no selection.
    void DeleteAllRows();
    int ListCount() const { return static_cast<int>(rows_.size()); }
    int LastIndex() const { return ListCount() - 1; }

    int ListIndex() const { return listIndex_; }
    void SetListIndex(int row);

    /// Row -1 stands for all rows, column -1 for all columns: cells are then joined by a Tab, rows
    /// by a line feed.
    QString Cell(int row, int column) const;
    void SetCell(int row, int column, const QString &text);
    /// Writes one column from the first row on, and shows it at once.
    void SetColumn(int column, const std::vector<QString> &texts);
    const Tag &CellTag(int row, int column) const;
    void SetCellTag(int row, int column, Tag tag);
    QString RowTag(int row) const;
    void SetRowTag(int row, const QString &tag);
    /// The first row with the tag, -1 if there is none.
    int FindRow(const QString &tag) const;

    int ColumnCount() const { return columnCount_; }
    void SetColumnAlignment(int column, Alignment alignment);

    void SetSortedColumn(int column) { sortedColumn_ = column; }
    /// Sorts ascending by the sorted column, asking CompareRows, else by the texts without regard
    /// to case. Rows that compare as equal keep their order; the selection stays with its row.
    void Sort();

    /// Brings the row into view.
    void ScrollTo(int row);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

Q_SIGNALS:
    /// A click in a cell, before the selection moves on.
    void CellClick(int row, int column);
    void DoubleClick();
    void LostFocus();
    /// Asks for the background of a cell, also of the empty rows below the last one.
    void CellBackgroundPaint(Graphics &graphics, int row, int column);
    /// Asks how two rows compare: the handler sets the result to -1, 0 or 1 and handled to true.
    void CompareRows(int first, int second, int column, int &result, bool &handled);

    /// Asks for a context menu: the handler appends its entries to the base.
    void ConstructContextualMenu(MenuItem &base);
    void ContextualMenuAction(const MenuItem &chosen);

    /// For the view: the selected row is another. Follows every end of a Refill too.
    void SelectionMoved();
    /// For the view: bring the row into view.
    void ScrollRequested(int row);

private:
    struct Row {
        std::vector<QString> cells;
        std::vector<Tag> tags;
        QString tag;
    };

    bool Has(int row) const { return row >= 0 && row < ListCount(); }
    const Row &At(int row) const { return rows_[static_cast<size_t>(row)]; }
    Row &At(int row) { return rows_[static_cast<size_t>(row)]; }
    bool Less(int first, int second);
    QString Joined(const Row &row) const;

    int columnCount_;
    std::vector<Row> rows_;
    std::vector<Alignment> alignments_;
    int listIndex_ = -1;
    int sortedColumn_ = 0;
    int refills_ = 0;
};
