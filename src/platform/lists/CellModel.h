#pragma once

#include "platform/lists/TextColumn.h"
#include "platform/values/Date.h"

#include <QAbstractTableModel>
#include <QString>

#include <deque>
#include <variant>
#include <vector>

/// The table model of a list: cells, tags and column headings. Rows and columns count from 0, -1 is
/// none. Outside of the list, cells and tags read as empty, and writing has no effect.
class CellModel : public QAbstractTableModel {
    Q_OBJECT

public:
    /// A value stored with a cell and not displayed.
    using Tag = std::variant<std::monostate, QString, Date>;
    enum class Alignment { Default = 0, Right = 3 };
    enum class ColumnType { Default = 0, CheckBox = 2 };

    /// The contents of a list, by column. A column of cells or tags that is too short reads as
    /// empty beyond its end.
    struct Rows {
        explicit Rows(int columnCount)
            : cells(static_cast<size_t>(columnCount)), cellTags(static_cast<size_t>(columnCount)) {}

        /// One tag per row; their number is the number of rows.
        TextColumn tags;
        std::vector<TextColumn> cells;
        std::vector<std::deque<Tag>> cellTags;
    };

    explicit CellModel(int columnCount) : columns_(static_cast<size_t>(columnCount)) {}

    /// Appends a row with the text in column 0; LastIndex is then its index.
    void AddRow(const QString &text);
    int ListCount() const { return rowTags_.Count(); }
    int LastIndex() const { return ListCount() - 1; }

    /// Returns the text of a cell. Row -1 means all rows, column -1 all columns: the cells of a row
    /// are then joined by a tab, the rows by a line feed.
    QString Cell(int row, int column) const;
    /// Returns all texts of a column, which must exist.
    const TextColumn &ColumnTexts(int column) const { return ColumnAt(column).cells; }
    void SetCell(int row, int column, const QString &text);
    /// Replaces all texts of a column, with one update of the view.
    void SetColumn(int column, TextColumn texts);
    bool CellCheck(int row, int column) const;
    void SetCellCheck(int row, int column, bool checked);
    const Tag &CellTag(int row, int column) const;
    QString RowTag(int row) const;
    const TextColumn &RowTags() const { return rowTags_; }
    void SetRowTag(int row, const QString &tag);
    /// Returns the first row with the tag, -1 if there is none.
    int FindRow(const QString &tag) const;

    int ColumnCount() const { return static_cast<int>(columns_.size()); }
    void SetColumnAlignment(int column, Alignment alignment);
    ColumnType TypeOfColumn(int column) const {
        return HasColumn(column) ? ColumnAt(column).type : ColumnType::Default;
    }
    /// A check box column displays a check box in each cell instead of text.
    void SetColumnType(int column, ColumnType type);
    bool HasHeading() const { return hasHeading_; }
    /// Call this before the list is shown.
    void SetHasHeading(bool hasHeading) { hasHeading_ = hasHeading; }
    /// Returns a column heading. Column -1 means all headings, joined by a tab.
    QString Heading(int column) const;
    void SetHeading(int column, const QString &text);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

protected:
    bool Has(int row) const { return row >= 0 && row < ListCount(); }
    bool Has(int row, int column) const { return Has(row) && HasColumn(column); }
    bool HasColumn(int column) const { return column >= 0 && column < ColumnCount(); }

    /// Begin and end a model reset. Calls can be nested; only the outermost pair resets the model.
    void BeginRefill();
    void EndRefill();
    bool IsRefilling() const { return refillDepth_ > 0; }
    /// Call ReplaceRows and ReorderRows only during a refill.
    void ReplaceRows(Rows rows);
    /// Moves the row with index order[i] to index i. The order contains each index once.
    void ReorderRows(const std::vector<int> &order);

private:
    /// Cells are stored by column, so that thousands of rows need no allocations of their own.
    struct Column {
        QString heading;
        Alignment alignment = Alignment::Default;
        ColumnType type = ColumnType::Default;
        TextColumn cells;
        /// Tags and checks may be shorter than the list; missing elements are empty.
        std::deque<Tag> tags;
        std::vector<bool> checks;
    };

    const Column &ColumnAt(int column) const { return columns_[static_cast<size_t>(column)]; }
    Column &ColumnAt(int column) { return columns_[static_cast<size_t>(column)]; }
    QString JoinedCells(int begin, int end, int column) const;
    /// Returns the heading and the content of a cell: screen readers read a row cell by cell.
    QString SpokenText(int row, int column) const;
    QVariant AlignmentOf(int column) const;
    void NotifyCellChanged(int row, int column);

    std::vector<Column> columns_;
    TextColumn rowTags_;
    int refillDepth_ = 0;
    bool hasHeading_ = false;
};
