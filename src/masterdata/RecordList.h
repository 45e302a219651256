#pragma once

#include <QLatin1StringView>
#include <QString>

#include <functional>

class App;
class Listbox;
class RecordSet;

/// Ties a list to a table of the book. Each row shows a record, whose id is the row's tag. What
/// changes in the list goes into the table at once, one cell at a time, and each operation first
/// writes what the user has typed into an open cell.
class RecordList {
public:
    /// Adds a row for the record that the set stands on. The tag is not its concern.
    using AddRow = std::function<void(RecordSet &record)>;

    /// Without a sorted column the rows stand in the table's order.
    RecordList(const App &app, Listbox &list, const QString &table, AddRow addRow,
               int sortedColumn = -1);

    /// Reads the table into the list. The selected record stays selected if it is still there. A
    /// failure is told and leaves the list as it was.
    void Load();
    /// Writes one value into the row's record. A failure is not told: the list keeps showing what
    /// it shows until the next Load.
    void Save(int row, QLatin1StringView column, const QString &value);
    /// Runs an INSERT, loads the list and opens the first cell of the new record. A failed INSERT
    /// is told, and nothing else happens.
    void Add(const QString &insert);
    /// Deletes the selected record at once, without a question. No other is selected after it, so
    /// that a second press removes nothing. Without a selection it does nothing.
    void RemoveSelected();

private:
    const App &app_;
    Listbox &list_;
    QString table_;
    AddRow addRow_;
    int sortedColumn_;
};
