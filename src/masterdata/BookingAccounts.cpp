#include "masterdata/BookingAccounts.h"

#include "core/App.h"
#include "platform/menus/MenuItem.h"
#include "platform/values/Text.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// The table's columns in the order of the list's columns.
constexpr std::array columns = {"name"_L1, "account"_L1, "type"_L1, "active"_L1};

} // namespace

BookingAccounts::BookingAccounts(const App &app)
    : CashaccountList(u"CashaccountList"_s, 4), AccountsAdd(u"AccountsAdd"_s), app_(app),
      records_(
          app, CashaccountList, u"cash_accounts"_s, [this](RecordSet &record) { AddRow(record); },
          Name) {
    CashaccountList.SetHasHeading(true);
    CashaccountList.SetHeading(Name, u"Bezeichnung"_s);
    CashaccountList.SetHeading(Account, u"Kontonummer"_s);
    CashaccountList.SetHeading(Kind, u"Art"_s);
    CashaccountList.SetHeading(Active, u"Aktiv"_s);
    CashaccountList.SetRequiresSelection(true);
    AccountsAdd.FillColor = Color{0xC0C0C0};
    AccountsAdd.HoverColor = Color{0xEBEBEB};
    ConnectList();
    connect(&AccountsAdd, &TLXPlusMinusButton::PlusPressed, this,
            &BookingAccounts::AccountsAdd_PlusPressed);
    connect(&AccountsAdd, &TLXPlusMinusButton::MinusPressed, this,
            &BookingAccounts::AccountsAdd_MinusPressed);
    CashaccountList_Open();
}

void BookingAccounts::ConnectList() {
    const Listbox *list = &CashaccountList;
    connect(list, &Listbox::CellClick, this, &BookingAccounts::CashaccountList_CellClick);
    connect(list, &Listbox::CellAction, this, &BookingAccounts::CashaccountList_CellAction);
    connect(list, &Listbox::CellKeyDown, this, &BookingAccounts::CashaccountList_CellKeyDown);
    connect(list, &Listbox::MouseDown, this, &BookingAccounts::CashaccountList_MouseDown);
    connect(list, &Listbox::MouseUp, this, &BookingAccounts::CashaccountList_MouseUp);
    connect(list, &Listbox::ConstructContextualMenu, this, &BookingAccounts::AppendKinds);
    connect(list, &Listbox::ContextualMenuAction, this, &BookingAccounts::SetKind);
    connect(list, &Listbox::CompareRows, this, &BookingAccounts::CashaccountList_CompareRows);
}

void BookingAccounts::CashaccountList_Open() {
    CashaccountList.SetColumnType(Active, Listbox::ColumnType::CheckBox);
}

void BookingAccounts::AddRow(RecordSet &record) {
    CashaccountList.AddRow(record.Field("name"_L1).StringValue());
    const int row = CashaccountList.LastIndex();
    CashaccountList.SetCell(row, Account, record.Field("account"_L1).StringValue());
    CashaccountList.SetCell(row, Kind, record.Field("type"_L1).StringValue());
    const QString active = record.Field("active"_L1).StringValue();
    CashaccountList.SetCellCheck(row, Active, SameText(active, u"True"));
}

void BookingAccounts::SaveAccount(int row, int column) {
    const QString value = column != Active ? CashaccountList.Cell(row, column)
                          : CashaccountList.CellCheck(row, Active) ? u"1"_s
                                                                   : u"0"_s;
    records_.Save(row, columns[static_cast<size_t>(column)], value);
}

void BookingAccounts::CashaccountList_CellClick(int row, int column, bool &handled) {
    if (column != Active) {
        CashaccountList.EditCell(row, column);
        handled = true;
    }
}

void BookingAccounts::CashaccountList_CellKeyDown(int row, int column, QChar key) {
    if (key == u'\t') {
        CashaccountList.EditCell(row, (column + 1) % 2);
    }
}

void BookingAccounts::CashaccountList_MouseDown(int /*row*/, int column, bool &handled) const {
    handled = column == Kind;
}

void BookingAccounts::CashaccountList_MouseUp(int row, int column) {
    if (row < 0 || column != Kind) {
        return;
    }
    CashaccountList.SetListIndex(row);
    MenuItem base;
    AppendKinds(base);
    if (const std::optional<int> chosen = app_.GetDesktop().PopUp(base)) {
        SetKind(base.Item(*chosen));
    }
}

void BookingAccounts::AppendKinds(MenuItem &base) {
    // Write typed text now, not after the user closes the menu.
    CashaccountList.EndEdit();
    if (CashaccountList.ListIndex() >= 0) {
        base.Append(u"Einnahme"_s);
        base.Append(u"Ausgabe"_s);
    }
}

void BookingAccounts::SetKind(const MenuItem &chosen) {
    const int row = CashaccountList.ListIndex();
    CashaccountList.SetCell(row, Kind, chosen.Text().left(1));
    SaveAccount(row, Kind);
}

void BookingAccounts::CashaccountList_CompareRows(int first, int second, int column, int &result,
                                                  bool &handled) const {
    if (column == Active) {
        result = int(CashaccountList.CellCheck(first, Active)) -
                 int(CashaccountList.CellCheck(second, Active));
        handled = true;
    }
}

void BookingAccounts::AccountsAdd_PlusPressed() {
    records_.Add(u"INSERT INTO cash_accounts (name,type,active) VALUES ('Neues Konto','E','1')"_s);
}
