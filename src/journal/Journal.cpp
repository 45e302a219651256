#include "journal/Journal.h"

#include "core/App.h"
#include "journal/BookingReader.h"
#include "journal/Selectors.h"
#include "platform/drawing/RowStripes.h"
#include "platform/outside/DebugLog.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace {

/// Returns -1, 0 or 1. A row without a date comes first.
int CompareDates(const Listbox::Tag &first, const Listbox::Tag &second) {
    const auto *a = std::get_if<Date>(&first);
    const auto *b = std::get_if<Date>(&second);
    if (a == nullptr || b == nullptr) {
        return int(a != nullptr) - int(b != nullptr);
    }
    return *a < *b ? -1 : int(*a > *b);
}

/// Returns a value less than, equal to or greater than 0. The ids are strings of digits, so the
/// longer one is the greater.
int CompareIds(QStringView a, QStringView b) {
    return a.size() == b.size() ? a.compare(b)
                                : int(a.size() > b.size()) - int(a.size() < b.size());
}

/// Reads bookings into list rows. Consecutive bookings often have the same date, so the last date
/// and its text are cached.
class RowReader {
public:
    RowReader(RecordSet &records, const UserLocale &locale) : booking_(records), locale_(locale) {}

    void ReadInto(Listbox::Rows &rows) {
        ReadDate();
        const QString amount = locale_.FormatAmount(booking_.Amount());
        const bool isReceipt = booking_.IsReceipt();
        rows.cells[Journal::DateColumn].Add(dateText_);
        rows.cellTags[Journal::DateColumn].push_back(dateTag_);
        rows.cells[Journal::Input].Add(isReceipt ? amount : QString());
        rows.cells[Journal::Output].Add(isReceipt ? QString() : amount);
        rows.cells[Journal::Tax].Add(booking_.TaxName());
        rows.cellTags[Journal::Tax].emplace_back(*sharedTexts_.insert(booking_.Tax()));
        rows.cells[Journal::Category].Add(booking_.Category());
        rows.cellTags[Journal::Category].emplace_back(*sharedTexts_.insert(booking_.Account()));
        rows.cells[Journal::SaleNumber].Add(booking_.SaleNumber());
        rows.cells[Journal::Note].Add(booking_.Note());
        rows.tags.Add(booking_.Id());
    }

private:
    void ReadDate() {
        const QString text = booking_.SQLDate();
        if (text == sqlDate_) {
            return;
        }
        sqlDate_ = text;
        const std::optional<Date> date = Date::FromSQL(text);
        // An invalid date is shown as stored, so that the user can see the error.
        dateText_ = date ? locale_.ShortDate(*date) : text;
        dateTag_ = date ? Listbox::Tag(*date) : Listbox::Tag();
    }

    BookingReader booking_;
    const UserLocale &locale_;
    QString sqlDate_;
    QString dateText_;
    Listbox::Tag dateTag_;
    /// The tax keys and accounts. The rows share their texts, which saves a tenth of the memory.
    QSet<QString> sharedTexts_;
};

} // namespace

Journal::Journal(const App &app, const Selectors &selectors)
    : CashList(u"CashList"_s, 8), app_(app), selectors_(selectors) {
    connect(&selectors_, &Selectors::RefreshJournal, this, &Journal::Reload);
    connect(&CashList, &Listbox::CompareRows, this, &Journal::CashList_CompareRows);
    connect(&CashList, &Listbox::CellBackgroundPaint, this, &Journal::CashList_CellBackgroundPaint);
    CashList_Open();
}

void Journal::CashList_Open() {
    for (const int column : {Input, Output, Balance}) {
        CashList.SetColumnAlignment(column, Listbox::Alignment::Right);
    }
}

void Journal::CashList_CellBackgroundPaint(Graphics &graphics, int row) {
    PaintRowStripe(graphics, row);
}

QString Journal::Condition() const {
    QString condition = selectors_.CashbookAndYearCondition();
    const int month = selectors_.MonthPopup.ListIndex();
    if (month >= 1) {
        condition += u" AND substr(vdate, 6, 2)='"_s + selectors_.MonthPopup.RowTag(month) + u'\'';
    }
    return condition;
}

void Journal::LoadJournal() {
    const QString sql = BookingReader::Statement(Condition());
    DebugLog(sql);
    if (const auto records = app_.kvoDB().Prepare(sql).SQLSelect()) {
        Listbox::Rows rows(CashList.ColumnCount());
        RowReader reader(*records, app_.Locale());
        for (; !records->AtEnd(); records->MoveNext()) {
            reader.ReadInto(rows);
        }
        CashList.SetRows(std::move(rows));
    }
    CashList.SetSortedColumn(DateColumn);
    CashList.Sort();
}

void Journal::Reload() {
    LoadJournal();
    if (!app_.ReportError()) {
        Q_EMIT Loaded();
    }
}

void Journal::CashList_CompareRows(int first, int second, int column, int &result,
                                   bool &handled) const {
    handled = true;
    if (column != DateColumn) {
        return;
    }
    result = CompareDates(CashList.CellTag(first, column), CashList.CellTag(second, column));
    if (result == 0) {
        // Bookings of the same day are sorted in the order of their entry.
        result = CompareIds(CashList.RowTags().At(first), CashList.RowTags().At(second));
    }
}
