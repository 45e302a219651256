#include "reports/AccountingExport.h"

#include "core/App.h"
#include "core/TLXModule.h"
#include "journal/Selectors.h"
#include "platform/Text.h"

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

PostingRecord ReadRecord(RecordSet &booking, const UserLocale &locale) {
    const auto text = [&booking](QLatin1StringView column) {
        return booking.Field(column).StringValue();
    };
    const bool isReceipt = SameText(text("type"_L1), u"E");
    const auto debit = isReceipt ? "cbaccount"_L1 : "account"_L1;
    const auto credit = isReceipt ? "account"_L1 : "cbaccount"_L1;
    return {.cells = {TLXModule::DateSQL2German(text("vdate"_L1)),
                      locale.FormatAmount(booking.Field("amount"_L1).DoubleValue()), text("tax"_L1),
                      text("taxname"_L1), text("category"_L1), text("salesnumber"_L1), text(debit),
                      text(credit), u"EUR"_s, text("note"_L1)},
            .id = text("id"_L1)};
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
    std::vector<PostingRecord> records;
    for (; bookings && !bookings->AtEnd(); bookings->MoveNext()) {
        records.push_back(ReadRecord(*bookings, app_.Locale()));
    }
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
