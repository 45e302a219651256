#pragma once

#include "core/database/DatabaseField.h"
#include "core/database/Statement.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <memory>
#include <vector>

/// A forward-only cursor over the rows of a query: only the current row is in memory. The
/// destructor ends the query. A failure while reading ends the rows and sets the database's Error.
class RecordSet {
public:
    /// The statement is at its first row (`hasRow`), or has no rows.
    RecordSet(std::unique_ptr<Statement> statement, bool hasRow);
    Q_DISABLE_COPY_MOVE(RecordSet)

    /// Returns true if there is no current row.
    bool AtEnd() const { return !hasRow_; }
    void MoveNext();
    /// Returns a column by its case-insensitive name. A column that is not in the query reads as
    /// empty; if it is set, Update fails.
    DatabaseField Field(QAnyStringView name);
    /// Returns a column by position, from 1.
    DatabaseField IdxField(int position) { return {*this, position - 1}; }

    /// Begins a change of the current row. The query must select from one table and include its id.
    /// Sets Error if there is no current row.
    void Edit();
    /// Writes the fields set since Edit into the row, and ends the query: there is no current row
    /// afterwards. Sets Error if the row has been deleted in the meantime.
    void Update();

private:
    friend class DatabaseField;

    struct Column {
        QByteArray name;
        bool isBoolean;
    };

    bool HasColumn(int column) const {
        return column >= 0 && column < static_cast<int>(columns_.size());
    }
    bool CanRead(int column) const { return hasRow_ && HasColumn(column); }
    bool IsBoolean(int column) const { return columns_[static_cast<size_t>(column)].isBoolean; }
    QString UpdateText() const;

    std::unique_ptr<Statement> statement_;
    std::vector<Column> columns_;
    std::map<int, QString> changes_;
    bool hasRow_;
};
