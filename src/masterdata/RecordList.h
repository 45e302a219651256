#pragma once

#include <QLatin1StringView>
#include <QString>

#include <functional>

class App;
class Listbox;
class RecordSet;

/// Connects a list to a table of the database. Each row shows a record, whose id is the row's tag.
/// A change in the list is written to the table at once, one cell at a time. Load, Add and
/// RemoveSelected first write the text typed into an open cell.
class RecordList {
public:
    /// Adds a row for the current record of the set. The row's tag is set by Load.
    using AddRow = std::function<void(RecordSet &record)>;

    /// Without a sorted column the rows are in the table's order.
    RecordList(const App &app, Listbox &list, const QString &table, AddRow addRow,
               int sortedColumn = -1);

    /// Loads the table into the list. The selected record stays selected if it still exists. If the
    /// query fails, shows a message and leaves the list unchanged.
    void Load();
    /// Writes one value into the row's record. A failure is not reported: the list shows the
    /// unsaved value until the next Load.
    void Save(int row, QLatin1StringView column, const QString &value);
    /// Executes an INSERT, reloads the list and opens the first cell of the new record. If the
    /// INSERT fails, shows a message and does nothing else.
    void Add(const QString &insert);
    /// Deletes the selected record at once, without confirmation. No other record is selected
    /// afterwards, so that a second press removes nothing. Does nothing without a selection.
    void RemoveSelected();

private:
    const App &app_;
    Listbox &list_;
    QString table_;
    AddRow addRow_;
    int sortedColumn_;
};
