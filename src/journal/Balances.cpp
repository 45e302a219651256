#include "journal/Balances.h"

#include "core/App.h"
#include "core/TLXModule.h"
#include "journal/Journal.h"
#include "journal/Selectors.h"
#include "platform/outside/DebugLog.h"

using namespace Qt::StringLiterals;

namespace {

/// Returns the receipts less the expenses; bookings of any other type are ignored.
Currency NetAmount(RecordSet &records) {
    Currency receipts;
    Currency expenses;
    const auto type = records.Field("type"_L1);
    const auto amount = records.Field("amount"_L1);
    for (; !records.AtEnd(); records.MoveNext()) {
        const char code = type.UpperCaseCharacter();
        if (code == 'A') {
            expenses += amount.CurrencyValue();
        } else if (code == 'E') {
            receipts += amount.CurrencyValue();
        }
    }
    return receipts - expenses;
}

} // namespace

Balances::Balances(const App &app, const Selectors &selectors, Journal &journal)
    : OpeningBalanceLabel(u"OpeningBalanceLabel"_s, u"0,00"_s),
      LastAmountLabel(u"LastAmountLabel"_s, u"0,00"_s), app_(app), selectors_(selectors),
      journal_(journal) {
    connect(&journal_, &Journal::Loaded, this, &Balances::ReCalcAmount);
}

void Balances::ReCalcAmount() {
    const Currency opening = GetOpeningBalance(selectors_.SelectedCashbookID());
    const QString sql = u"SELECT * FROM cash_journal WHERE vdate  < '"_s +
                        selectors_.PeriodStartSQL() + u"' AND "_s + selectors_.CashbookCondition();
    const auto records = app_.kvoDB().SQLSelect(sql);
    DebugLog(sql);
    // Rows are read one by one: a damaged page sets the error during the sum, so check it after.
    const Currency start = opening + (records ? NetAmount(*records) : Currency());
    if (app_.ReportError()) {
        return;
    }
    OpeningBalanceLabel.SetText(app_.Locale().FormatBalance(start.ToDouble()));
    FillBalanceColumn(start);
    const Listbox &list = journal_.CashList;
    LastAmountLabel.SetText(list.Cell(list.LastIndex(), Journal::Balance));
}

void Balances::FillBalanceColumn(Currency balance) {
    Listbox &list = journal_.CashList;
    TextColumn texts;
    for (int row = 0; row < list.ListCount(); ++row) {
        const QStringView input = list.ColumnTexts(Journal::Input).At(row);
        const QStringView output = list.ColumnTexts(Journal::Output).At(row);
        if (!input.isEmpty()) {
            balance += Currency::FromDouble(TLXModule::AmountText2Value(input));
        } else if (!output.isEmpty()) {
            balance -= Currency::FromDouble(TLXModule::AmountText2Value(output));
        }
        texts.Add(app_.Locale().FormatBalance(balance.ToDouble()));
    }
    list.SetColumn(Journal::Balance, std::move(texts));
}

std::unique_ptr<RecordSet> Balances::SelectCashbook(int id) const {
    auto records = app_.kvoDB().SQLSelect(u"SELECT * FROM cash_book WHERE id = '%1'"_s.arg(id));
    app_.ReportError();
    return records;
}

Currency Balances::GetOpeningBalance(int id) const {
    const auto records = SelectCashbook(id);
    return records ? records->Field("opening_balance"_L1).CurrencyValue() : Currency();
}

std::optional<Date> Balances::GetOpeningDate() const {
    const auto records = SelectCashbook(selectors_.SelectedCashbookID());
    return records ? records->Field("opening_balance_date"_L1).DateValue() : std::nullopt;
}

QString Balances::CalcAmount(const QString &type, const QString &from, const QString &to) const {
    QString sql = u"SELECT SUM(amount) AS sum FROM cash_journal WHERE type = '%1' "_s.arg(type);
    if (!from.isEmpty()) {
        sql += u"AND vdate BETWEEN '%1' AND '%2'"_s.arg(from, to);
    }
    const auto records = app_.kvoDB().SQLSelect(sql);
    app_.ReportError();
    return records ? app_.Locale().FormatBalance(records->Field("sum"_L1).DoubleValue())
                   : QString();
}
