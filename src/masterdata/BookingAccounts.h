#pragma once

#include "masterdata/RecordList.h"
#include "platform/controls/TLXPlusMinusButton.h"
#include "platform/lists/Listbox.h"

#include <QObject>

class App;
class MenuItem;

/// The booking accounts, edited in their list. Bookings keep their own copies of an account's name
/// and number, so nothing here alters them.
class BookingAccounts : public QObject {
    Q_OBJECT

public:
    /// The kind is "E" for receipts or "A" for expenses. Active is a check box; only active
    /// accounts are offered to bookings.
    enum Column { Name, Account, Kind, Active };

    explicit BookingAccounts(const App &app);

    Listbox CashaccountList;
    TLXPlusMinusButton AccountsAdd;

    /// Fills the list from the book, sorted by name; an open cell is written first. The selected
    /// account stays selected. A failure is told and leaves the list as it was.
    void LoadCashAccounts();
    /// Writes one cell into the book. A failure is not told.
    void SaveAccount(int row, int column);

private:
    void CashaccountList_Open();
    void CashaccountList_CellClick(int row, int column, bool &handled);
    void CashaccountList_CellAction(int row, int column);
    void CashaccountList_CellKeyDown(int row, int column, QChar key);
    void CashaccountList_MouseDown(int row, int column, bool &handled) const;
    void CashaccountList_MouseUp(int row, int column);
    void CashaccountList_CompareRows(int first, int second, int column, int &result,
                                     bool &handled) const;
    /// The menu of the kinds, which opens from the cell of the kind and as the list's context menu,
    /// for the keys.
    void AppendKinds(MenuItem &base);
    void SetKind(const MenuItem &chosen);
    void AccountsAdd_PlusPressed();
    void AccountsAdd_MinusPressed();
    void AddRow(RecordSet &record);
    void ConnectList();

    const App &app_;
    RecordList records_;
};
