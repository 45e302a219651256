#include "masterdata/RecordList.h"

#include "core/App.h"
#include "platform/lists/Listbox.h"

using namespace Qt::StringLiterals;

RecordList::RecordList(const App &app, Listbox &list, const QString &table, AddRow addRow,
                       int sortedColumn)
    : app_(app), list_(list), table_(table), addRow_(std::move(addRow)),
      sortedColumn_(sortedColumn) {}

void RecordList::Load() {
    list_.EndEdit();
    const auto records = app_.kvoDB().SQLSelect(u"SELECT * FROM "_s + table_);
    if (app_.ReportError()) {
        return;
    }
    list_.Refill([this, &records] {
        const QString selected = list_.RowTag(list_.ListIndex());
        list_.DeleteAllRows();
        for (const auto id = records->Field("id"_L1); !records->AtEnd(); records->MoveNext()) {
            addRow_(*records);
            list_.SetRowTag(list_.LastIndex(), id.StringValue());
        }
        list_.SetListIndex(list_.FindRow(selected));
        list_.SetSortedColumn(sortedColumn_);
        list_.Sort();
    });
    // A damaged page sets the error only while the rows are read.
    app_.ReportError();
}

void RecordList::Save(int row, QLatin1StringView column, const QString &value) {
    SQLitePreparedStatement update =
        app_.kvoDB().Prepare(u"UPDATE %1 SET %2 = ? WHERE id = ?"_s.arg(table_, column));
    update.Bind(0, value);
    update.Bind(1, list_.RowTag(row));
    update.SQLExecute();
}

void RecordList::Add(const QString &insert) {
    list_.EndEdit();
    SQLiteDatabase &database = app_.kvoDB();
    database.SQLExecute(insert);
    if (app_.ReportError()) {
        return;
    }
    const QString id = QString::number(database.LastRowID());
    Load();
    list_.EditCell(list_.FindRow(id), 0);
}

void RecordList::RemoveSelected() {
    list_.EndEdit();
    const int row = list_.ListIndex();
    if (row < 0) {
        return;
    }
    app_.kvoDB().SQLExecute(u"DELETE FROM %1 WHERE id = %2"_s.arg(table_, list_.RowTag(row)));
    Load();
}
