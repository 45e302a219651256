#include "reports/CashReport.h"

#include "core/App.h"
#include "core/TLXModule.h"
#include "journal/Balances.h"
#include "journal/Journal.h"
#include "journal/Selectors.h"
#include "masterdata/CompanyProfile.h"
#include "platform/drawing/PrinterGraphics.h"
#include "platform/values/Text.h"

using namespace Qt::StringLiterals;

namespace {

const auto title = u"Kassenbericht"_s;
constexpr Color darkGrey{0x333333};
constexpr double headerSize = 9;
constexpr double titleSize = 16;
constexpr double textSize = 10;
/// The height available for the rows of a page; their number is computed from the line height of
/// the header.
constexpr double rowsHeight = 620;
constexpr double firstRowY = 95;
constexpr double labelX = 40;
constexpr double amountX = 210;

struct Heading {
    double x;
    QStringView text;
};
constexpr Heading headings[] = {{40, u"Datum"},    {100, u"Einnahme"},
                                {162, u"Ausgabe"}, {215, u"Bestand"},
                                {270, u"Steuer"},  {315, u"Art der Ein/Ausgabe"},
                                {440, u"Nr."},     {475, u"Notiz"}};

QString HeaderText(const CompanyProfile &company) {
    return company.CompanyField.Text() + u' ' + company.DepartmentField.Text() + u" - "_s +
           company.StreetField.Text() + u" - "_s + company.CityField.Text();
}

/// Returns "keine" unchanged, and the rate of any other tax: "19%".
QString TaxRate(const QString &tax) {
    return SameText(tax, u"keine") ? tax : tax.left(3);
}

/// Draws the report from the page header to the totals.
class ReportWriter {
public:
    ReportWriter(PrinterGraphics &graphics, const QString &company, const QString &date)
        : graphics_(graphics), company_(company), date_(date) {
        graphics_.SetTextFont(u"Courier"_s);
        graphics_.SetTextSize(headerSize);
        graphics_.SetForeColor(darkGrey);
        maxLines_ = static_cast<int>(rowsHeight / graphics_.TextHeight());
        DrawHeader();
        DrawTitle();
    }

    void DrawRow(const Listbox &list, int row) {
        const double y = BelowRows(firstRowY);
        graphics_.DrawString(list.Cell(row, Journal::DateColumn), 40, y);
        graphics_.DrawString(TLXModule::PadAmount8(list.Cell(row, Journal::Input)), 100, y);
        graphics_.DrawString(TLXModule::PadAmount8(list.Cell(row, Journal::Output)), 155, y);
        graphics_.DrawString(TLXModule::PadAmount8(list.Cell(row, Journal::Balance)), amountX, y);
        graphics_.DrawString(TaxRate(list.Cell(row, Journal::Tax)), 270, y);
        graphics_.DrawString(list.Cell(row, Journal::Category).left(20), 315, y);
        graphics_.DrawString(list.Cell(row, Journal::SaleNumber), 440, y);
        graphics_.DrawString(list.Cell(row, Journal::Note), 475, y);
        if (++line_ > maxLines_) {
            graphics_.NextPage();
            line_ = 0;
            DrawHeader();
        }
    }

    struct Totals {
        QString opening;
        QString receipts;
        QString expenses;
        QString closing;
    };
    void DrawTotals(const Totals &totals) {
        graphics_.DrawString(u"Anfangsbestand"_s, labelX, BelowRows(125));
        graphics_.DrawString(u"Einnahmen"_s, labelX, BelowRows(140));
        graphics_.DrawString(u"Ausgaben"_s, labelX, BelowRows(155));
        graphics_.SetBold(true);
        graphics_.DrawString(u"Endbestand"_s, labelX, BelowRows(175));
        graphics_.SetBold(false);
        graphics_.DrawString(TLXModule::PadAmount8(totals.opening), amountX, BelowRows(125));
        graphics_.DrawString(TLXModule::PadAmount8(totals.receipts), amountX, BelowRows(140));
        graphics_.DrawString(TLXModule::PadAmount8(totals.expenses), amountX, BelowRows(155));
        graphics_.SetBold(true);
        graphics_.DrawString(TLXModule::PadAmount8(totals.closing), amountX, BelowRows(175));
        graphics_.DrawString(u"___________"_s, 190, BelowRows(161));
        graphics_.DrawString(u"___________"_s, 190, BelowRows(180));
    }

private:
    /// Returns y moved down by the height of the rows drawn on the page.
    double BelowRows(double y) const { return y + line_ * lineHeight_; }

    void DrawHeader() {
        graphics_.DrawString(company_, 40, 15);
        graphics_.DrawString(date_, 410, 15);
        graphics_.DrawLine(40, 17, 550, 17);
    }

    void DrawTitle() {
        graphics_.SetTextSize(titleSize);
        graphics_.SetBold(true);
        graphics_.DrawString(title, 40, 45);
        graphics_.SetBold(false);
        graphics_.SetTextSize(textSize);
        // Queried once, in the regular font: the bold font may be higher.
        lineHeight_ = graphics_.TextHeight();
        graphics_.SetUnderline(true);
        for (const Heading &heading : headings) {
            graphics_.DrawString(heading.text.toString(), heading.x, 75);
        }
        graphics_.SetUnderline(false);
    }

    PrinterGraphics &graphics_;
    QString company_;
    QString date_;
    /// The page ends when line_ exceeds this, so it contains one row more.
    int maxLines_ = 0;
    double lineHeight_ = 0;
    int line_ = 0;
};

} // namespace

CashReport::CashReport(const App &app, const Selectors &selectors, const Journal &journal,
                       const Balances &balances, const CompanyProfile &company)
    : app_(app), selectors_(selectors), journal_(journal), balances_(balances), company_(company) {}

void CashReport::Print() {
    const auto graphics = app_.GetDesktop().OpenPrinterDialog(title, app_.kvoDB().DatabaseFile());
    if (!graphics) {
        return;
    }
    ReportWriter report(*graphics, HeaderText(company_),
                        app_.Locale().LongDate(app_.GetDesktop().Now()));
    const Listbox &list = journal_.CashList;
    for (int row = 0; row < list.ListCount(); ++row) {
        report.DrawRow(list, row);
    }
    const Currency opening = balances_.GetOpeningBalance(selectors_.SelectedCashbookID());
    report.DrawTotals({.opening = app_.Locale().FormatAmount(opening.ToDouble()),
                       .receipts = balances_.CalcAmount(u"E"_s),
                       .expenses = balances_.CalcAmount(u"A"_s),
                       .closing = list.Cell(list.LastIndex(), Journal::Balance)});
}
