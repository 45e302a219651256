#pragma once

#include "platform/controls/Control.h"

#include <QAbstractListModel>
#include <QString>

#include <vector>

/// The rows of a selection control: a text to show and a tag to find the row by.
class RowModel : public QAbstractListModel {
    Q_OBJECT

public:
    struct Row {
        QString text;
        QString tag;
    };

    int Count() const { return static_cast<int>(rows_.size()); }
    /// Empty for an index outside the list; so is Tag.
    QString Text(int row) const;
    QString Tag(int row) const;
    void SetTag(int row, const QString &tag);
    void Append(const QString &text);
    /// Puts these in the place of all rows, in one change for the view.
    void SetRows(std::vector<Row> rows);
    /// Returns the first row whose text or tag equals this one, without regard to case; -1 if there
    /// is none.
    int Find(QString Row::*field, const QString &text) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    bool Has(int row) const { return row >= 0 && row < Count(); }

    std::vector<Row> rows_;
};

/// What PopupMenu and ComboBox share: rows with a text and a tag, one of them selected or none.
class SelectionControl : public Control {
    Q_OBJECT

public:
    using Row = RowModel::Row;

    void AddRow(const QString &text);
    /// Puts these in the place of all rows, at once, and leaves ListIndex -1 and Text empty. A
    /// pop-up menu fires nothing, a combo box TextChanged if it had a text.
    void SetRows(std::vector<Row> rows);
    void DeleteAllRows() { SetRows({}); }

    int ListCount() const { return rows_.Count(); }
    /// The selected row, -1 for none.
    int ListIndex() const { return listIndex_; }
    /// An index without a row selects none. Fires the control's change event on a change.
    virtual void SetListIndex(int index) = 0;

    QString List(int row) const { return rows_.Text(row); }
    QString RowTag(int row) const { return rows_.Tag(row); }
    void SetRowTag(int row, const QString &tag) { rows_.SetTag(row, tag); }

    /// Both return the first such row, compared without regard to case; -1 if there is none.
    int FindText(const QString &text) const { return rows_.Find(&Row::text, text); }
    int FindTag(const QString &tag) const { return rows_.Find(&Row::tag, tag); }

    virtual QString Text() const = 0;

    /// The rows, for the view.
    QAbstractItemModel *Rows() { return &rows_; }

protected:
    using Control::Control;

    int ValidIndex(int index) const { return index >= 0 && index < ListCount() ? index : -1; }
    virtual void ForgetSelection() { listIndex_ = -1; }

    int listIndex_ = -1;

private:
    RowModel rows_;
};
