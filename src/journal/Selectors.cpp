#include "journal/Selectors.h"

#include "core/App.h"
#include "core/TLXModule.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

void SelectIndex(PopupMenu &list, int index) {
    list.SetListIndex(std::min(index, list.ListCount() - 1));
}

} // namespace

Selectors::Selectors(const App &app)
    : CashbookPopup(u"CashbookPopup"_s), YearPopup(u"YearPopup"_s), MonthPopup(u"MonthPopup"_s),
      app_(app) {
    connect(&CashbookPopup, &PopupMenu::Change, this, &Selectors::CashbookPopup_Change);
    connect(&YearPopup, &PopupMenu::Change, this, &Selectors::YearPopup_Change);
    connect(&MonthPopup, &PopupMenu::Change, this, &Selectors::MonthPopup_Change);
}

void Selectors::ChangeTogether(const std::function<void()> &changes) {
    {
        const QScopedValueRollback<int> nested(changeDepth_, changeDepth_ + 1);
        changes();
    }
    if (changeDepth_ == 0 && std::exchange(isRefreshRequested_, false)) {
        Q_EMIT RefreshJournal();
    }
}

void Selectors::GetCashbooks() {
    std::vector<PopupMenu::Row> rows;
    if (const auto records = app_.kvoDB().Prepare(u"SELECT * FROM cash_book"_s).SQLSelect()) {
        const auto account = records->Field("account"_L1);
        const auto name = records->Field("name"_L1);
        const auto id = records->Field("id"_L1);
        for (; !records->AtEnd(); records->MoveNext()) {
            rows.push_back({account.StringValue() + u':' + name.StringValue(), id.StringValue()});
        }
    }
    // A damaged page sets the error only while the rows are read. In an incomplete list another
    // cash book would be selected.
    CashbookPopup.SetRows(app_.kvoDB().Error() ? std::vector<PopupMenu::Row>() : std::move(rows));
    SelectIndex(CashbookPopup, mCashbookID_);
}

void Selectors::GetJournalYears() {
    std::vector<PopupMenu::Row> rows;
    const auto years =
        app_.kvoDB()
            .Prepare(u"SELECT DISTINCT substr(vdate, 1, 4) FROM cash_journal WHERE vdate > 0 "
                     "ORDER BY vdate DESC"_s)
            .SQLSelect();
    if (years) {
        for (auto year = years->IdxField(1); !years->AtEnd(); years->MoveNext()) {
            rows.push_back({year.StringValue(), {}});
        }
    }
    if (app_.kvoDB().Error()) {
        // The opening year or an incomplete list would select another year than the journal shows.
        // The refresh fails in the same way and shows the error.
        rows.clear();
        RequestRefresh();
    } else if (rows.empty()) {
        const auto opening =
            app_.kvoDB()
                .Prepare(u"SELECT substr(opening_balance_date, 1, 4) FROM cash_book WHERE id=1"_s)
                .SQLSelect();
        if (opening) {
            rows.push_back({opening->IdxField(1).StringValue(), {}});
        }
    }
    YearPopup.SetRows(std::move(rows));
    SelectIndex(YearPopup, mYear_);
}

void Selectors::LoadMonths() {
    std::vector<PopupMenu::Row> rows;
    rows.reserve(TLXModule::MonthTagTable.size());
    for (const auto &month : TLXModule::MonthTagTable) {
        rows.push_back({month.text.toString(), month.tag.toString()});
    }
    MonthPopup.SetRows(std::move(rows));
    MonthPopup.SetListIndex(0);
}

void Selectors::LoadMissing() {
    ChangeTogether([this] {
        if (CashbookPopup.ListIndex() < 0) {
            GetCashbooks();
        }
        if (YearPopup.ListIndex() < 0) {
            GetJournalYears();
        }
    });
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
    RequestRefresh();
}

void Selectors::YearPopup_Change() {
    if (YearPopup.Text().isEmpty()) {
        return;
    }
    mYear_ = YearPopup.ListIndex();
    RequestRefresh();
}

void Selectors::MonthPopup_Change() {
    RequestRefresh();
}

void Selectors::RequestRefresh() {
    ChangeTogether([this] { isRefreshRequested_ = true; });
}
