#include "reports/AccountingExport.h"

#include "core/App.h"
#include "core/TLXModule.h"
#include "core/database/SharedTexts.h"
#include "journal/Selectors.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

using Headings = std::array<QStringView, AccountingExport::columnCount>;

constexpr Headings headingsAtOpen = {
    u"Belegdatum", u"Buchungsbetrag", u"Steuerschlüssel", u"Buchungstext", u"Belegnummer",
    u"Sollkonto",  u"Habenkonto",     u"Währung",         u"Notiz",        u"Leer"};

constexpr Headings headingsOfRecord = {u"Belegdatum", u"Buchungsbetrag", u"Steuerschlüssel",
                                       u"Steuer",     u"Buchungstext",   u"Belegnummer",
                                       u"Sollkonto",  u"Habenkonto",     u"Währung",
                                       u"Notiz",      u"Intern"};

struct PostingRecord {
    std::array<QString, AccountingExport::columnCount> cells;
    QString id;
};

void SetHeadings(Listbox &list, const Headings &headings) {
    for (int column = 0; column < list.ColumnCount(); ++column) {
        list.SetHeading(column, headings[static_cast<size_t>(column)].toString());
    }
}

/// Reads one booking after the other.
class RecordReader {
public:
    RecordReader(RecordSet &bookings, const UserLocale &locale)
        : locale_(locale), id_(bookings.Field("id"_L1)), vdate_(bookings.Field("vdate"_L1)),
          type_(bookings.Field("type"_L1)), amount_(bookings.Field("amount"_L1)),
          tax_(bookings.Field("tax"_L1)), taxname_(bookings.Field("taxname"_L1)),
          category_(bookings.Field("category"_L1)), salesnumber_(bookings.Field("salesnumber"_L1)),
          account_(bookings.Field("account"_L1)), cbaccount_(bookings.Field("cbaccount"_L1)),
          note_(bookings.Field("note"_L1)) {}

    PostingRecord Read() {
        const bool isReceipt = type_.IsCode("E");
        return {.cells = {GermanDate(), locale_.FormatAmount(amount_.DoubleValue()),
                          shared_.Of(tax_), shared_.Of(taxname_), shared_.Of(category_),
                          salesnumber_.StringValue(), shared_.Of(isReceipt ? cbaccount_ : account_),
                          shared_.Of(isReceipt ? account_ : cbaccount_), currency_,
                          note_.StringValue()},
                .id = id_.StringValue()};
    }

private:
    /// Neighbours often share their date: it is written out once for them.
    QString GermanDate() {
        if (const QString sqlDate = shared_.Of(vdate_); sqlDate != sqlDate_) {
            sqlDate_ = sqlDate;
            germanDate_ = TLXModule::DateSQL2German(sqlDate);
        }
        return germanDate_;
    }

    const UserLocale &locale_;
    DatabaseField id_, vdate_, type_, amount_, tax_, taxname_, category_, salesnumber_, account_,
        cbaccount_, note_;
    SharedTexts shared_;
    QString sqlDate_;
    QString germanDate_;
    QString currency_ = u"EUR"_s;
};

std::vector<PostingRecord> ReadAll(RecordSet *bookings, const UserLocale &locale) {
    std::vector<PostingRecord> records;
    if (bookings != nullptr) {
        for (RecordReader reader(*bookings, locale); !bookings->AtEnd(); bookings->MoveNext()) {
            records.push_back(reader.Read());
        }
    }
    return records;
}

void AddRecord(Listbox &list, const PostingRecord &record) {
    list.AddRow(record.cells.front());
    const int row = list.LastIndex();
    for (int column = 1; column < list.ColumnCount(); ++column) {
        list.SetCell(row, column, record.cells[static_cast<size_t>(column)]);
    }
    list.SetRowTag(row, record.id);
}

} // namespace

AccountingExport::AccountingExport(App &app, Selectors &selectors)
    : ExportList(u"ExportList"_s, columnCount), app_(app), selectors_(selectors) {
    ExportList.SetHasHeading(true);
    SetHeadings(ExportList, headingsAtOpen);
}

void AccountingExport::ExportJournal() {
    // The tax table holds the key 0 twice, under one name; DISTINCT folds the two results into one.
    const auto bookings = app_.kvoDB().SQLSelect(
        u"SELECT DISTINCT cj.*, ct.name AS taxname, cb.account AS cbaccount FROM cash_journal AS "
        "CJ JOIN cash_tax AS ct ON cj.tax = ct.value JOIN cash_book AS cb ON cj.cashbookID = cb.id "
        "WHERE "_s +
        selectors_.CashbookAndYearCondition() + u" ORDER BY vdate"_s);
    const std::vector<PostingRecord> records = ReadAll(bookings.get(), app_.Locale());
    // A damaged page shows only on the way: half a year must not pass for a whole one.
    if (app_.ReportError() || !bookings) {
        return;
    }
    const Listbox::Refill refill(ExportList);
    ExportList.DeleteAllRows();
    SetHeadings(ExportList, headingsOfRecord);
    for (const PostingRecord &record : records) {
        AddRecord(ExportList, record);
    }
}
