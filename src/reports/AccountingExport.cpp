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

using Cells = std::array<QString, AccountingExport::columnCount>;

struct PostingRecords {
    std::array<std::vector<QString>, AccountingExport::columnCount> columns;
    std::vector<QString> ids;
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

    void ReadInto(PostingRecords &records) {
        const bool isReceipt = type_.IsCode("E");
        Cells cells = {GermanDate(),
                       locale_.FormatAmount(amount_.DoubleValue()),
                       shared_.Of(tax_),
                       shared_.Of(taxname_),
                       shared_.Of(category_),
                       salesnumber_.StringValue(),
                       shared_.Of(isReceipt ? cbaccount_ : account_),
                       shared_.Of(isReceipt ? account_ : cbaccount_),
                       currency_,
                       note_.StringValue()};
        for (size_t column = 0; column < cells.size(); ++column) {
            records.columns[column].push_back(std::move(cells[column]));
        }
        records.ids.push_back(id_.StringValue());
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

PostingRecords ReadAll(RecordSet *bookings, const UserLocale &locale) {
    PostingRecords records;
    if (bookings != nullptr) {
        for (RecordReader reader(*bookings, locale); !bookings->AtEnd(); bookings->MoveNext()) {
            reader.ReadInto(records);
        }
    }
    return records;
}

void Fill(Listbox &list, PostingRecords records) {
    const Listbox::Refill refill(list);
    list.DeleteAllRows();
    for (const QString &id : records.ids) {
        list.AddRow({});
        list.SetRowTag(list.LastIndex(), id);
    }
    for (int column = 0; column < list.ColumnCount(); ++column) {
        list.SetColumn(column, std::move(records.columns[static_cast<size_t>(column)]));
    }
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
    PostingRecords records = ReadAll(bookings.get(), app_.Locale());
    // A damaged page shows only on the way: half a year must not pass for a whole one.
    if (app_.ReportError() || !bookings) {
        return;
    }
    SetHeadings(ExportList, headingsOfRecord);
    Fill(ExportList, std::move(records));
}
