#include "journal/Journal.h"

#include "core/App.h"
#include "core/database/SharedTexts.h"
#include "journal/Selectors.h"
#include "platform/outside/DebugLog.h"

using namespace Qt::StringLiterals;

namespace {

constexpr Color evenRow{0xffffff};
constexpr Color oddRow{0xd2edf5};

/// -1, 0 or 1; a row without a date comes first.
int CompareDates(const Listbox::Tag &first, const Listbox::Tag &second) {
    const auto *a = std::get_if<Date>(&first);
    const auto *b = std::get_if<Date>(&second);
    if (a == nullptr || b == nullptr) {
        return int(a != nullptr) - int(b != nullptr);
    }
    return *a < *b ? -1 : int(*a > *b);
}

void CashList_CellBackgroundPaint(Graphics &graphics, int row) {
    graphics.SetForeColor(row % 2 == 0 ? evenRow : oddRow);
    graphics.FillRect(0, 0, graphics.Width(), graphics.Height());
}

/// Reads one record after the other into the list. Neighbours often share their date: it is read
/// and written out once for them.
class RowWriter {
public:
    RowWriter(RecordSet &records, const UserLocale &locale, Listbox &list)
        : locale_(locale), list_(list), id_(records.Field("id"_L1)),
          vdate_(records.Field("vdate"_L1)), type_(records.Field("type"_L1)),
          amount_(records.Field("amount"_L1)), taxname_(records.Field("taxname"_L1)),
          tax_(records.Field("tax"_L1)), category_(records.Field("category"_L1)),
          account_(records.Field("account"_L1)), salesnumber_(records.Field("salesnumber"_L1)),
          note_(records.Field("note"_L1)) {}

    void AddRow() {
        ReadDate();
        list_.AddRow(dateText_);
        const int row = list_.LastIndex();
        list_.SetCellTag(row, Journal::DateColumn, dateTag_);
        const bool receipt = type_.IsCode("E");
        list_.SetCell(row, receipt ? Journal::Input : Journal::Output,
                      locale_.FormatAmount(amount_.DoubleValue()));
        list_.SetCell(row, Journal::Tax, shared_.Of(taxname_));
        list_.SetCellTag(row, Journal::Tax, shared_.Of(tax_));
        list_.SetCell(row, Journal::Category, shared_.Of(category_));
        list_.SetCellTag(row, Journal::Category, shared_.Of(account_));
        list_.SetCell(row, Journal::SaleNumber, salesnumber_.StringValue());
        list_.SetCell(row, Journal::Note, note_.StringValue());
        list_.SetRowTag(row, id_.StringValue());
    }

private:
    void ReadDate() {
        const QString text = shared_.Of(vdate_);
        if (text == sqlDate_) {
            return;
        }
        sqlDate_ = text;
        const std::optional<Date> date = Date::FromSQL(text);
        // What is no date is shown as it stands, so that somebody can see what is wrong with it.
        dateText_ = date ? locale_.ShortDate(*date) : text;
        dateTag_ = date ? Listbox::Tag(*date) : Listbox::Tag();
    }

    const UserLocale &locale_;
    Listbox &list_;
    DatabaseField id_, vdate_, type_, amount_, taxname_, tax_, category_, account_, salesnumber_,
        note_;
    SharedTexts shared_;
    QString sqlDate_;
    QString dateText_;
    Listbox::Tag dateTag_;
};

} // namespace

Journal::Journal(App &app, Selectors &selectors)
    : CashList(u"CashList"_s, 8), app_(app), selectors_(selectors) {
    connect(&CashList, &Listbox::CompareRows, this, &Journal::CashList_CompareRows);
    connect(&CashList, &Listbox::CellBackgroundPaint, this, &CashList_CellBackgroundPaint);
    CashList_Open();
}

void Journal::CashList_Open() {
    for (const int column : {Input, Output, Balance}) {
        CashList.SetColumnAlignment(column, Listbox::Alignment::Right);
    }
}

QString Journal::Statement() const {
    QString condition = u"WHERE "_s + selectors_.CashbookAndYearCondition();
    const int month = selectors_.MonthPopup.ListIndex();
    if (month >= 1) {
        condition += u" AND substr(vdate, 6, 2)='"_s + selectors_.MonthPopup.RowTag(month) + u'\'';
    }
    // The tax table holds the key 0 twice, under one name; DISTINCT folds the two results into one.
    return u"SELECT DISTINCT cj.*, ct.name AS taxname FROM cash_journal As cj JOIN cash_tax AS ct "
           "ON cj.tax = ct.value "_s +
           condition + u" ORDER BY vdate"_s;
}

void Journal::LoadJournal() {
    const QString sql = Statement();
    DebugLog(sql);
    if (const auto records = app_.kvoDB().Prepare(sql).SQLSelect()) {
        const Listbox::Refill refill(CashList);
        CashList.DeleteAllRows();
        RowWriter writer(*records, app_.Locale(), CashList);
        for (; !records->AtEnd(); records->MoveNext()) {
            writer.AddRow();
        }
    }
    CashList.SetSortedColumn(DateColumn);
    CashList.Sort();
}

void Journal::CashList_CompareRows(int first, int second, int column, int &result,
                                   bool &handled) const {
    handled = true;
    if (column != DateColumn) {
        return;
    }
    result = CompareDates(CashList.CellTag(first, column), CashList.CellTag(second, column));
    if (result == 0) {
        // Bookings of one day stand in the order of their entry.
        const qint64 a = CashList.RowTag(first).toLongLong();
        const qint64 b = CashList.RowTag(second).toLongLong();
        result = a < b ? -1 : int(a > b);
    }
}
