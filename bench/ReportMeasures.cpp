#include "Measures.h"

#include <QFile>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace {

void AddExportYear(const Pair &pair) {
    FakeDesktop &desktop = pair->ours.env.desktop;
    desktop.fileToSave = FolderItem(desktop.Path(u"export.txt"_s));
    const auto exportYear = [=] { pair->ours.window.MenuAction(u"export"_s); };
    exportYear();
    QFile written(desktop.fileToSave->Path());
    EXPECT_TRUE(written.open(QIODevice::ReadOnly));
    const QByteArray bytes = written.readAll();
    const QString copy = desktop.Path(u"bare.txt"_s);
    AddMeasure("export", Repeat(exportYear), Repeat([=] {
                   pair->bare.Step(
                       "SELECT DISTINCT cj.*, ct.name AS taxname, cb.account AS cbaccount FROM "
                       "cash_journal AS CJ JOIN cash_tax AS ct ON cj.tax = ct.value "
                       "JOIN cash_book AS cb ON cj.cashbookID = cb.id WHERE cashbookID = '1' "
                       "AND substr(vdate,1,4) = '2026' ORDER BY vdate",
                       {0, 1, 2, 6, 7, 8, 9, 12, 13, 14}, {5});
                   QSaveFile file(copy);
                   EXPECT_TRUE(file.open(QIODevice::WriteOnly));
                   file.write(bytes);
                   EXPECT_TRUE(file.commit());
               }));
}

/// Counts the draw calls.
class CountingGraphics : public PrinterGraphics {
public:
    explicit CountingGraphics(qint64 &calls) : calls_(calls) {}

    double Width() const override { return 0; }
    double Height() const override { return 0; }
    void SetForeColor(Color /*color*/) override { ++calls_; }
    void DrawLine(double /*x1*/, double /*y1*/, double /*x2*/, double /*y2*/) override { ++calls_; }
    void DrawRect(double /*left*/, double /*top*/, double /*width*/, double /*height*/) override {
        ++calls_;
    }
    void FillRect(double /*left*/, double /*top*/, double /*width*/, double /*height*/) override {
        ++calls_;
    }
    void DrawPicture(const FolderItem & /*file*/, double /*x*/, double /*y*/) override { ++calls_; }
    void SetTextFont(const QString & /*family*/) override { ++calls_; }
    void SetTextSize(double /*size*/) override { ++calls_; }
    void SetBold(bool /*bold*/) override { ++calls_; }
    void SetUnderline(bool /*underline*/) override { ++calls_; }
    double TextHeight() const override { return 11; }
    void DrawString(const QString & /*text*/, double /*x*/, double /*y*/) override { ++calls_; }
    void NextPage() override { ++calls_; }

private:
    qint64 &calls_;
};

class CountingDesktop : public FakeDesktop {
public:
    explicit CountingDesktop(const FakeDesktop &other) : other_(other) {}

    qint64 calls = 0;

    FolderItem ApplicationData() const override { return other_.ApplicationData(); }
    std::unique_ptr<PrinterGraphics>
    OpenPrinterDialog(const QString & /*document*/,
                      const std::optional<FolderItem> & /*databaseFile*/) override {
        return std::make_unique<CountingGraphics>(calls);
    }

private:
    const FakeDesktop &other_;
};

/// A main window that prints on counting graphics. The bookings are in its list but no longer in
/// the database, so that the queries of the report take no time.
struct Printing {
    Printing()
        : desktop(database.env.desktop), app(desktop, database.env.app.Locale()), window(app) {
        EXPECT_TRUE(app.DBLoad());
        app.Connect();
        window.Event_Open();
        app.kvoDB().SQLExecute(u"DELETE FROM cash_journal"_s);
    }

    LargeDatabase database{200000};
    CountingDesktop desktop;
    App app;
    MainWindow window;
};

/// Draws as many texts from the cells of the list.
void DrawCells(const Listbox &list, PrinterGraphics &graphics, qint64 calls) {
    int cell = 0;
    for (qint64 call = 0; call < calls; ++call, ++cell) {
        const int row = cell / list.ColumnCount() % list.ListCount();
        graphics.DrawString(list.Cell(row, cell % list.ColumnCount()), 40, 15);
    }
}

void AddReportYear() {
    const auto printing = std::make_shared<Printing>();
    const auto print = [=] { printing->window.MenuAction(u"print"_s); };
    print();
    const qint64 calls = printing->desktop.calls;
    AddMeasure("report", Repeat(print), Repeat([=] {
                   const auto graphics = printing->desktop.OpenPrinterDialog({}, {});
                   DrawCells(printing->window.journal.CashList, *graphics, calls);
               }));
}

} // namespace

void AddReportMeasures(const Pair &large) {
    AddExportYear(large);
    AddReportYear();
}
