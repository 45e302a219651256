#pragma once

#include "masterdata/RecordList.h"
#include "platform/controls/TLXPlusMinusButton.h"
#include "platform/lists/Listbox.h"

#include <QObject>

class App;
class MenuItem;

/// The booking accounts, edited in their list. Bookings contain copies of an account's name and
/// number, so changes to the accounts do not affect them.
class BookingAccounts : public QObject {
    Q_OBJECT

public:
    /// Kind is "E" for receipts or "A" for expenses. Active is a check box; only active accounts
    /// can be selected for bookings.
    enum Column { Name, Account, Kind, Active };

    explicit BookingAccounts(const App &app);

    Listbox CashaccountList;
    TLXPlusMinusButton AccountsAdd;

    /// Fills the list from the database, sorted by name. An open cell is written first. The
    /// selected account stays selected. A failure is shown in a message and leaves the list
    /// unchanged.
    void LoadCashAccounts() { records_.Load(); }
    /// Writes one cell into the database. A failure is not reported.
    void SaveAccount(int row, int column);

private:
    void CashaccountList_Open();
    void CashaccountList_CellClick(int row, int column, bool &handled);
    void CashaccountList_CellAction(int row, int column) { SaveAccount(row, column); }
    void CashaccountList_CellKeyDown(int row, int column, QChar key);
    void CashaccountList_MouseDown(int row, int column, bool &handled) const;
    void CashaccountList_MouseUp(int row, int column);
    void CashaccountList_CompareRows(int first, int second, int column, int &result,
                                     bool &handled) const;
    /// Fills the menu of the kinds. It opens on a click on a cell of the column Kind and, for
    /// keyboard users, as the list's context menu.
    void AppendKinds(MenuItem &base);
    void SetKind(const MenuItem &chosen);
    void AccountsAdd_PlusPressed();
    void AccountsAdd_MinusPressed() { records_.RemoveSelected(); }
    void AddRow(RecordSet &record);
    void ConnectList();

    const App &app_;
    RecordList records_;
};
