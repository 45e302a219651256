#include "masterdata/CashBooks.h"

#include "core/App.h"
#include "core/TLXModule.h"
#include "platform/values/Text.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// The columns that the user can edit, in the order of the list's columns.
constexpr std::array editableColumns = {"name"_L1, "account"_L1, "opening_balance"_L1};

constexpr int editableCount = static_cast<int>(editableColumns.size());

} // namespace

CashBooks::CashBooks(const App &app)
    : CashbookList(u"CashbookList"_s, 4), CashBookAdd(u"CashBookAdd"_s), app_(app),
      records_(app, CashbookList, u"cash_book"_s, [this](RecordSet &record) { AddRow(record); }) {
    CashbookList.SetHasHeading(true);
    CashbookList.SetHeading(Name, u"Kassen"_s);
    CashbookList.SetHeading(Account, u"Konto"_s);
    CashbookList.SetHeading(OpeningBalance, u"Anfangsbetsand"_s);
    CashbookList.SetHeading(OpeningDate, u"Datum"_s);
    CashbookList.SetRequiresSelection(true);
    CashbookList.SetSortsByHeading(false);
    CashBookAdd.FillColor = Color{0xC0C0C0};
    CashBookAdd.HoverColor = Color{0xEBEBEB};
    connect(&CashbookList, &Listbox::CellAction, this, &CashBooks::CashbookList_CellAction);
    connect(&CashbookList, &Listbox::DoubleClick, this, &CashBooks::CashbookList_DoubleClick);
    connect(&CashbookList, &Listbox::CellKeyDown, this, &CashBooks::CashbookList_CellKeyDown);
    connect(&CashbookList, &Listbox::HintRequested, this,
            [this](int column, const QString &text, QString &hint) {
                hint = column == OpeningBalance ? TLXModule::AmountHint(text, app_.Locale())
                                                : QString();
            });
    connect(&CashBookAdd, &TLXPlusMinusButton::PlusPressed, this,
            &CashBooks::CashBookAdd_PlusPressed);
    connect(&CashBookAdd, &TLXPlusMinusButton::MinusPressed, this,
            &CashBooks::CashBookAdd_MinusPressed);
}

void CashBooks::AddRow(RecordSet &record) {
    CashbookList.AddRow(record.Field("name"_L1).StringValue());
    const int row = CashbookList.LastIndex();
    CashbookList.SetCell(row, Account, record.Field("account"_L1).StringValue());
    CashbookList.SetCell(row, OpeningBalance, record.Field("opening_balance"_L1).StringValue());
    const DatabaseField date = record.Field("opening_balance_date"_L1);
    const std::optional<Date> day = date.DateValue();
    CashbookList.SetCell(row, OpeningDate,
                         day ? app_.Locale().ShortDate(*day) : date.StringValue());
}

void CashBooks::CashbookList_CellAction(int row, int column) {
    if (column < editableCount) {
        records_.Save(row, editableColumns[static_cast<size_t>(column)],
                      CashbookList.Cell(row, column));
    }
}

void CashBooks::CashbookList_DoubleClick() {
    CashbookList.EditCell(CashbookList.ListIndex(), Name);
}

void CashBooks::CashbookList_CellKeyDown(int row, int column, QChar key) {
    if (key == u'\t') {
        CashbookList.EditCell(row, (column + 1) % editableCount);
    }
}

void CashBooks::CashBookAdd_PlusPressed() {
    // Write an open cell first: it may be the account of the last row, which is read below.
    CashbookList.EndEdit();
    const int last = CashbookList.LastIndex();
    const double account = Val(CashbookList.Cell(last, Account)) + 10.0;
    records_.Add(
        u"INSERT INTO cash_book (name,account,opening_balance,opening_balance_date) "
        "VALUES ('Nebenkasse %1','%2', '0.00', '2015-01-01')"_s.arg(
            QString::number(last), QString::number(account, 'f', QLocale::FloatingPointShortest)));
}

void CashBooks::CashBookAdd_MinusPressed() {
    CashbookList.EndEdit();
    if (CashbookList.ListIndex() == 0) {
        app_.GetDesktop().MsgBox(u"Hauptkasse kann nicht gelöscht werden!"_s);
        return;
    }
    records_.RemoveSelected();
}
