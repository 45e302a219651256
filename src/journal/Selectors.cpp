#include "journal/Selectors.h"

#include "core/App.h"
#include "core/TLXLists.h"
#include "core/TLXModule.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

void SelectPosition(PopupMenu &list, int position) {
    list.SetListIndex(std::min(position, list.ListCount() - 1));
}

} // namespace

Selectors::Hold::Hold(Selectors &selectors) : selectors_(selectors) {
    ++selectors_.holds_;
}

Selectors::Hold::~Hold() {
    if (--selectors_.holds_ == 0 && std::exchange(selectors_.refreshWanted_, false)) {
        Q_EMIT selectors_.RefreshJournal();
    }
}

Selectors::Selectors(App &app)
    : CashbookPopup(u"CashbookPopup"_s), YearPopup(u"YearPopup"_s), MonthPopup(u"MonthPopup"_s),
      app_(app) {
    connect(&CashbookPopup, &PopupMenu::Change, this, &Selectors::CashbookPopup_Change);
    connect(&YearPopup, &PopupMenu::Change, this, &Selectors::YearPopup_Change);
    connect(&MonthPopup, &PopupMenu::Change, this, &Selectors::MonthPopup_Change);
}

void Selectors::GetCashbooks() {
    CashbookPopup.DeleteAllRows();
    if (const auto records = app_.kvoDB().Prepare(u"SELECT * FROM cash_book"_s).SQLSelect()) {
        auto account = records->Field("account"_L1);
        auto name = records->Field("name"_L1);
        auto id = records->Field("id"_L1);
        const int count = records->RecordCount();
        for (int row = 0; row < count; ++row) {
            CashbookPopup.AddRow(account.StringValue() + u':' + name.StringValue());
            CashbookPopup.SetRowTag(row, id.StringValue());
            records->MoveNext();
        }
    }
    SelectPosition(CashbookPopup, mCashbookID_);
}

void Selectors::GetJournalYears() {
    YearPopup.DeleteAllRows();
    const auto years =
        app_.kvoDB()
            .Prepare(u"SELECT DISTINCT substr(vdate, 1, 4) FROM cash_journal WHERE vdate > 0 "
                     "ORDER BY vdate DESC"_s)
            .SQLSelect();
    if (years) {
        for (auto year = years->IdxField(1); !years->AtEnd(); years->MoveNext()) {
            YearPopup.AddRow(year.StringValue());
        }
    }
    if (YearPopup.ListCount() < 1) {
        const auto opening =
            app_.kvoDB()
                .Prepare(u"SELECT substr(opening_balance_date, 1, 4) FROM cash_book WHERE id=1"_s)
                .SQLSelect();
        if (opening) {
            YearPopup.AddRow(opening->IdxField(1).StringValue());
        }
    }
    SelectPosition(YearPopup, mYear_);
}

void Selectors::LoadMonths() {
    MonthPopup.DeleteAllRows();
    int row = 0;
    for (const auto &month : TLXModule::MonthTagTable) {
        MonthPopup.AddRow(month.text.toString());
        MonthPopup.SetRowTag(row++, month.tag.toString());
    }
    MonthPopup.SetListIndex(0);
}

void Selectors::GetMissing() {
    const Hold oneRefresh(*this);
    if (CashbookPopup.ListIndex() < 0) {
        GetCashbooks();
    }
    if (YearPopup.ListIndex() < 0) {
        GetJournalYears();
    }
}

void Selectors::ShowPeriod(const Date &date) {
    const QString day = date.SQLDate();
    TLXModule::IndexOf(YearPopup, TLXModule::SQLDateYear(day));
    MonthPopup.SetListIndex(TLXModule::SQLDateMonth(day));
}

QString Selectors::CashbookCondition() const {
    const int index = CashbookPopup.ListIndex();
    return u"cashbookID = '"_s + (index < 1 ? u"1"_s : CashbookPopup.RowTag(index)) + u'\'';
}

QString Selectors::CashbookAndYearCondition() const {
    return CashbookCondition() + u" AND substr(vdate,1,4) = '"_s + YearPopup.Text() + u'\'';
}

int Selectors::SelectedCashbookID() const {
    return CashbookPopup.RowTag(CashbookPopup.ListIndex()).toInt();
}

QString Selectors::PeriodStartSQL() const {
    const QString month = MonthPopup.RowTag(MonthPopup.ListIndex());
    return YearPopup.Text() + u'-' + (month.isEmpty() ? u"01"_s : month) + u"-01"_s;
}

void Selectors::CashbookPopup_Change() {
    if (CashbookPopup.Text().isEmpty()) {
        return;
    }
    mCashbookID_ = CashbookPopup.ListIndex();
    AskForRefresh();
}

void Selectors::YearPopup_Change() {
    if (YearPopup.Text().isEmpty()) {
        return;
    }
    mYear_ = YearPopup.ListIndex();
    AskForRefresh();
}

void Selectors::MonthPopup_Change() {
    AskForRefresh();
}

void Selectors::AskForRefresh() {
    const Hold hold(*this);
    refreshWanted_ = true;
}
