#pragma once

#include "core/database/DatabaseField.h"
#include "core/database/Statement.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <memory>
#include <vector>

/// The rows of a query, one after the other. It streams: only the current row is in memory. It ends
/// the query when it is let go. A failure on the way ends the rows and sets the database's Error.
class RecordSet {
public:
    /// Takes a statement that stands on its first row, or after its last.
    RecordSet(std::unique_ptr<Statement> statement, bool hasRow);
    RecordSet(const RecordSet &) = delete;
    RecordSet &operator=(const RecordSet &) = delete;

    /// Whether the rows have been walked to their end.
    bool AtEnd() const { return !hasRow_; }
    void MoveNext();
    /// A column by name. One that the query lacks reads as empty, and lets Update fail.
    DatabaseField Field(QAnyStringView name);
    /// A column by position, from 1.
    DatabaseField IdxField(int position) { return {*this, position - 1}; }

    /// Begins a change of the current row. The query must select from one table and name its id.
    /// Without a current row, Error is set.
    void Edit();
    /// Writes the fields set since Edit into the row, and ends the walk through the rows. A row
    /// that has gone meanwhile sets Error.
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
