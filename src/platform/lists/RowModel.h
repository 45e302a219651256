#pragma once

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
