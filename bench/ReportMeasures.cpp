#include "BookPair.h"
#include "Measures.h"

#include <QFile>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace {

Measure ExportYear(const std::shared_ptr<BookPair> &books) {
    FakeDesktop &desktop = books->ours.env.desktop;
    desktop.fileToSave = FolderItem(desktop.Path(u"export.txt"_s));
    books->ours.window.MenuAction(u"export"_s);
    QFile written(desktop.fileToSave->Path());
    EXPECT_TRUE(written.open(QIODevice::ReadOnly));
    const QByteArray bytes = written.readAll();
    const QString copy = desktop.Path(u"bare.txt"_s);
    const auto bare = [=](benchmark::State &state) {
        for (auto _ : state) {
            books->bare.Step(
                "SELECT DISTINCT cj.*, ct.name AS taxname, cb.account AS cbaccount FROM "
                "cash_journal AS CJ JOIN cash_tax AS ct ON cj.tax = ct.value JOIN cash_book AS cb "
                "ON cj.cashbookID = cb.id WHERE cashbookID = '1' AND substr(vdate,1,4) = '2026' "
                "ORDER BY vdate",
                {0, 1, 2, 6, 7, 8, 9, 12, 13, 14}, {5});
            QSaveFile file(copy);
            EXPECT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(bytes);
            EXPECT_TRUE(file.commit());
        }
    };
    return {.name = "export_year",
            .goal = 1.3,
            .ours =
                [=](auto &state) {
                    for (auto _ : state) {
                        books->ours.window.MenuAction(u"export"_s);
                    }
                },
            .bare = bare};
}

/// Paper that counts what is drawn on it.
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
    explicit CountingDesktop(const FakeDesktop &withBook) : book_(withBook) {}

    qint64 calls = 0;

    FolderItem ApplicationData() const override { return book_.ApplicationData(); }
    std::unique_ptr<PrinterGraphics>
    OpenPrinterDialog(const QString & /*document*/,
                      const std::optional<FolderItem> & /*openBook*/) override {
        return std::make_unique<CountingGraphics>(calls);
    }

private:
    const FakeDesktop &book_;
};

/// A main window on its own large book, with paper that counts. The journal stands in the list, and
/// has gone from the file: what the report asks the database takes no time.
struct Printing {
    Printing() : desktop(env.env.desktop), app(desktop, env.env.app.Locale()), window(app) {
        EXPECT_TRUE(app.DBLoad());
        app.Connect();
        window.Event_Open();
        app.kvoDB().SQLExecute(u"DELETE FROM cash_journal"_s);
    }

    LargeBook env{200000};
    CountingDesktop desktop;
    App app;
    MainWindow window;
};

/// The bare side draws as many texts, as they stand in the cells of the list.
void DrawCells(const Listbox &list, PrinterGraphics &graphics, qint64 calls) {
    int cell = 0;
    for (qint64 call = 0; call < calls; ++call) {
        const int row = cell / list.ColumnCount() % list.ListCount();
        graphics.DrawString(list.Cell(row, cell % list.ColumnCount()), 40, 15);
        ++cell;
    }
}

Measure ReportYear() {
    const auto printing = std::make_shared<Printing>();
    printing->window.MenuAction(u"print"_s);
    const qint64 calls = printing->desktop.calls;
    return {.name = "report_year",
            .goal = 2.5,
            .ours =
                [=](auto &state) {
                    for (auto _ : state) {
                        printing->window.MenuAction(u"print"_s);
                    }
                },
            .bare =
                [=](auto &state) {
                    const auto graphics = printing->desktop.OpenPrinterDialog({}, {});
                    for (auto _ : state) {
                        DrawCells(printing->window.journal.CashList, *graphics, calls);
                    }
                }};
}

} // namespace

std::vector<Measure> ReportMeasures(const Books &books) {
    return {ExportYear(books.large), ReportYear()};
}
