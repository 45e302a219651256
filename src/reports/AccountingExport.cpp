#include "reports/AccountingExport.h"

#include "core/App.h"
#include "core/TLXModule.h"
#include "journal/BookingReader.h"
#include "journal/Selectors.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

using Headings = std::array<QStringView, AccountingExport::columnCount>;

constexpr Headings initialHeadings = {
    u"Belegdatum", u"Buchungsbetrag", u"Steuerschlüssel", u"Buchungstext", u"Belegnummer",
    u"Sollkonto",  u"Habenkonto",     u"Währung",         u"Notiz",        u"Leer"};

constexpr Headings recordHeadings = {u"Belegdatum", u"Buchungsbetrag", u"Steuerschlüssel",
                                     u"Steuer",     u"Buchungstext",   u"Belegnummer",
                                     u"Sollkonto",  u"Habenkonto",     u"Währung",
                                     u"Notiz",      u"Intern"};

void SetHeadings(Listbox &list, const Headings &headings) {
    for (int column = 0; column < list.ColumnCount(); ++column) {
        list.SetHeading(column, headings[static_cast<size_t>(column)].toString());
    }
}

/// Reads bookings into posting records.
class RecordReader {
public:
    RecordReader(RecordSet &bookings, const UserLocale &locale)
        : booking_(bookings), locale_(locale) {}

    void ReadInto(Listbox::Rows &records) {
        const bool isReceipt = booking_.IsReceipt();
        std::array cells = {GermanDate(),
                            locale_.FormatAmount(booking_.Amount()),
                            booking_.Tax(),
                            booking_.TaxName(),
                            booking_.Category(),
                            booking_.SaleNumber(),
                            isReceipt ? booking_.CashBookAccount() : booking_.Account(),
                            isReceipt ? booking_.Account() : booking_.CashBookAccount(),
                            currency_,
                            booking_.Note()};
        for (size_t column = 0; column < cells.size(); ++column) {
            records.cells[column].Add(cells[column]);
        }
        records.tags.Add(booking_.Id());
    }

private:
    /// Consecutive bookings often have the same date, so the last one is cached.
    QString GermanDate() {
        if (const QString sqlDate = booking_.SQLDate(); sqlDate != sqlDate_) {
            sqlDate_ = sqlDate;
            germanDate_ = TLXModule::DateSQL2German(sqlDate);
        }
        return germanDate_;
    }

    BookingReader booking_;
    const UserLocale &locale_;
    QString sqlDate_;
    QString germanDate_;
    QString currency_ = u"EUR"_s;
};

} // namespace

AccountingExport::AccountingExport(const App &app, const Selectors &selectors)
    : ExportList(u"ExportList"_s, columnCount), app_(app), selectors_(selectors) {
    ExportList.SetHasHeading(true);
    SetHeadings(ExportList, initialHeadings);
}

void AccountingExport::ExportJournal() {
    const auto bookings = app_.kvoDB().SQLSelect(
        BookingReader::StatementWithCashBooks(selectors_.CashbookAndYearCondition()));
    Listbox::Rows records(columnCount);
    if (bookings) {
        for (RecordReader reader(*bookings, app_.Locale()); !bookings->AtEnd();
             bookings->MoveNext()) {
            reader.ReadInto(records);
        }
    }
    // A damaged page sets the error only while the rows are read. An incomplete year must not be
    // mistaken for a complete one.
    if (app_.ReportError() || !bookings) {
        return;
    }
    SetHeadings(ExportList, recordHeadings);
    ExportList.SetRows(std::move(records));
}
