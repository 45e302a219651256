#pragma once

#include "platform/controls/Control.h"

#include <QAbstractListModel>
#include <QString>

#include <vector>

/// The list model of a selection control. A row has a display text and a tag.
class RowModel : public QAbstractListModel {
    Q_OBJECT

public:
    struct Row {
        QString text;
        QString tag;

        bool operator==(const Row &) const = default;
    };

    const std::vector<Row> &Rows() const { return rows_; }
    int Count() const { return static_cast<int>(rows_.size()); }
    /// Text and Tag return an empty text for an index outside of the list.
    QString Text(int row) const;
    QString Tag(int row) const;
    void SetTag(int row, const QString &tag);
    void Append(const QString &text);
    /// Replaces all rows, with one model reset.
    void SetRows(std::vector<Row> rows);
    /// Returns the first row whose field (text or tag) equals the text, ignoring case; -1 if there
    /// is none.
    int Find(QString Row::*field, const QString &text) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    bool Has(int row) const { return row >= 0 && row < Count(); }

    std::vector<Row> rows_;
};

/// Base class of PopupMenu and ComboBox: rows with a text and a tag, at most one row is selected.
class SelectionControl : public Control {
    Q_OBJECT

public:
    using Row = RowModel::Row;

    void AddRow(const QString &text);
    /// Replaces all rows, sets ListIndex to -1 and clears Text. A pop-up menu emits no change
    /// signal, a combo box emits TextChanged if its text was not empty.
    void SetRows(std::vector<Row> rows);
    void DeleteAllRows() { SetRows({}); }
    bool HasRows(const std::vector<Row> &rows) const { return rows_.Rows() == rows; }

    int ListCount() const { return rows_.Count(); }
    /// Returns the selected row, -1 if there is none.
    int ListIndex() const { return listIndex_; }
    /// Selects a row; an invalid index clears the selection. Emits the control's change signal on a
    /// change.
    virtual void SetListIndex(int index) = 0;

    QString List(int row) const { return rows_.Text(row); }
    QString RowTag(int row) const { return rows_.Tag(row); }
    void SetRowTag(int row, const QString &tag) { rows_.SetTag(row, tag); }

    /// Return the first row with the text or tag, ignoring case; -1 if there is none.
    int FindText(const QString &text) const { return rows_.Find(&Row::text, text); }
    int FindTag(const QString &tag) const { return rows_.Find(&Row::tag, tag); }

    virtual QString Text() const = 0;

    /// Returns the model for the view.
    QAbstractItemModel *Rows() { return &rows_; }

protected:
    using Control::Control;

    int ValidIndex(int index) const { return index >= 0 && index < ListCount() ? index : -1; }
    virtual void ClearSelection() { listIndex_ = -1; }

    int listIndex_ = -1;

private:
    RowModel rows_;
};
