#pragma once

#include "platform/lists/TextColumn.h"
#include "platform/values/Date.h"

#include <QAbstractTableModel>
#include <QString>

#include <deque>
#include <variant>
#include <vector>

/// The rows and columns of a list: what stands in the cells and over them. Rows and columns count
/// from 0, -1 is none; outside the list cells and tags read as empty, and nothing can be written.
class CellModel : public QAbstractTableModel {
    Q_OBJECT

public:
    /// A value stored with a cell, which the list does not show.
    using Tag = std::variant<std::monostate, QString, Date>;
    enum class Alignment { Default = 0, Right = 3 };
    enum class ColumnType { Default = 0, CheckBox = 2 };

    /// Whole rows, column by column. A column of cells or tags that is too short reads as empty
    /// beyond its end.
    struct Rows {
        explicit Rows(int columnCount)
            : cells(static_cast<size_t>(columnCount)), cellTags(static_cast<size_t>(columnCount)) {}

        /// One for each row.
        TextColumn tags;
        std::vector<TextColumn> cells;
        std::vector<std::deque<Tag>> cellTags;
    };

    explicit CellModel(int columnCount) : columns_(static_cast<size_t>(columnCount)) {}

    /// Adds a row with the text in column 0; it is LastIndex then.
    void AddRow(const QString &text);
    int ListCount() const { return rowTags_.Count(); }
    int LastIndex() const { return ListCount() - 1; }

    /// Row -1 stands for all rows, column -1 for all columns: cells are then joined by a Tab, rows
    /// by a line feed.
    QString Cell(int row, int column) const;
    /// All texts of a column that exists, as they lie there.
    const TextColumn &CellsOf(int column) const { return ColumnAt(column).cells; }
    void SetCell(int row, int column, const QString &text);
    /// Writes one column from the first row to the last, one text to a row, and shows it at once.
    void SetColumn(int column, TextColumn texts);
    bool CellCheck(int row, int column) const;
    void SetCellCheck(int row, int column, bool checked);
    const Tag &CellTag(int row, int column) const;
    QString RowTag(int row) const;
    const TextColumn &RowTags() const { return rowTags_; }
    void SetRowTag(int row, const QString &tag);
    /// The first row with the tag, -1 if there is none.
    int FindRow(const QString &tag) const;

    int ColumnCount() const { return static_cast<int>(columns_.size()); }
    void SetColumnAlignment(int column, Alignment alignment);
    ColumnType TypeOfColumn(int column) const {
        return HasColumn(column) ? ColumnAt(column).type : ColumnType::Default;
    }
    /// A check box column shows a box in each cell, and no text.
    void SetColumnType(int column, ColumnType type);
    bool HasHeading() const { return hasHeading_; }
    /// To be set before the list shows.
    void SetHasHeading(bool hasHeading) { hasHeading_ = hasHeading; }
    /// Column -1 stands for all headings, joined by a Tab.
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

    /// Between the outermost of these calls the view waits, and is then shown all rows anew.
    void BeginRefill();
    void EndRefill();
    bool IsRefilling() const { return refills_ > 0; }
    /// Both only in a refill.
    void ReplaceRows(Rows rows);
    /// Puts the row of the first index first, and so on; each index stands once.
    void ReorderRows(const std::vector<int> &order);

private:
    /// Column by column instead of row by row: thousands of rows then cost no memory of their own.
    struct Column {
        QString heading;
        Alignment alignment = Alignment::Default;
        ColumnType type = ColumnType::Default;
        TextColumn cells;
        /// These two reach to the last row that has one.
        std::deque<Tag> tags;
        std::vector<bool> checks;
    };

    const Column &ColumnAt(int column) const { return columns_[static_cast<size_t>(column)]; }
    Column &ColumnAt(int column) { return columns_[static_cast<size_t>(column)]; }
    QString JoinedCells(int begin, int end, int column) const;
    QVariant AlignmentOf(int column) const;
    void ShowCell(int row, int column);

    std::vector<Column> columns_;
    TextColumn rowTags_;
    int refills_ = 0;
    bool hasHeading_ = false;
};
