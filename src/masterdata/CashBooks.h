#pragma once

#include "masterdata/RecordList.h"
#include "platform/controls/TLXPlusMinusButton.h"
#include "platform/lists/Listbox.h"

#include <QObject>

class App;

/// The cash books, edited in their list. The first row is the main cash book, which can't be
/// removed; the list is therefore always in the table's order.
class CashBooks : public QObject {
    Q_OBJECT

public:
    enum Column { Name, Account, OpeningBalance, OpeningDate };

    explicit CashBooks(const App &app);

    Listbox CashbookList;
    TLXPlusMinusButton CashBookAdd;

    /// Fills the list from the database. An open cell is written first. The selected cash book
    /// stays selected. A failure is shown in a message and leaves the list unchanged.
    void LoadCashBook() { records_.Load(); }

private:
    void CashbookList_CellAction(int row, int column);
    void CashbookList_DoubleClick();
    void CashbookList_CellKeyDown(int row, int column, QChar key);
    void CashBookAdd_PlusPressed();
    void CashBookAdd_MinusPressed();
    void AddRow(RecordSet &record);

    const App &app_;
    RecordList records_;
};
