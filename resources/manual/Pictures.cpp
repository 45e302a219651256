/// Takes the manual's pictures from the running program: opens its windows on the sample book,
/// works in them as a user would, and writes what they show as PNG files into the folder given to
/// it.
///
/// The build asks for twice the size (QT_SCALE_FACTOR). The picture of the README is the journal in
/// plain size, made anew by hand:
///     mkdir -p /tmp/pictures && build/release/bin/manual_pictures /tmp/pictures
///     pngquant --force --output docs/pictures/zolmark.png /tmp/pictures/journal.png

#include "core/App.h"
#include "desktop/QtDesktop.h"
#include "desktop/ZolmarkApplication.h"
#include "desktop/drawing/PrintJob.h"
#include "desktop/fields/CalendarPopup.h"
#include "desktop/windows/MainWindowView.h"
#include "desktop/windows/WelcomeWindowView.h"
#include "setup/WelcomeWindow.h"
#include "shell/MainWindow.h"

#include <QDir>
#include <QKeyEvent>
#include <QPainter>
#include <QPrinter>
#include <QTemporaryDir>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

/// A desktop on which every day is the same, messages are not waited for, and a print job is a PDF.
class PictureDesktop : public QtDesktop {
public:
    explicit PictureDesktop(QString paper) : paper_(std::move(paper)) {}

    Date Now() const override { return Date(QDateTime(QDate(2026, 1, 20), QTime(12, 0))); }
    void MsgBox(const QString & /*message*/) override {}
    std::unique_ptr<PrinterGraphics>
    OpenPrinterDialog(const QString &document,
                      const std::optional<FolderItem> &databaseFile) override {
        auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer->setOutputFormat(QPrinter::PdfFormat);
        printer->setPageSize(QPageSize(QPageSize::A4));
        printer->setOutputFileName(paper_);
        printer->setDocName(document);
        return std::make_unique<PrintJob>(
            std::move(printer), databaseFile,
            [](const QString &failure) { qFatal("%s", qUtf8Printable(failure)); });
    }

private:
    QString paper_;
};

/// Writes pictures into one folder.
class Album {
public:
    explicit Album(const QString &folder) : folder_(folder) {}

    QString Path(const QString &name) const { return folder_.filePath(name); }

    void Add(const QString &name, QWidget &window, const QRect &part = QRect(0, 0, -1, -1)) const {
        Settle();
        Save(name, window.grab(part));
    }

    /// The same, with numbers from 1 on above the names of the fields.
    void AddNumbered(const QString &name, QWidget &window, const QRect &part,
                     const QStringList &fields) const {
        Settle();
        QPixmap picture = window.grab(part);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        QFont font;
        font.setPixelSize(11);
        font.setBold(true);
        painter.setFont(font);
        for (int number = 1; number <= fields.size(); ++number) {
            const QWidget &field = *window.findChild<QWidget *>(fields[number - 1]);
            const QPoint above = field.mapTo(&window, QPoint(0, -43)) - part.topLeft();
            const QRect place(above, QSize(16, 16));
            painter.setPen(Qt::NoPen);
            painter.setBrush(QColor(0x1f, 0x6a, 0xa5));
            painter.drawEllipse(place);
            painter.setPen(Qt::white);
            painter.drawText(place, Qt::AlignCenter, QString::number(number));
        }
        painter.end();
        Save(name, picture);
    }

    /// Without an alpha channel, which the PDF would keep apart at great length.
    void Save(const QString &name, const QPixmap &picture) const {
        if (!picture.toImage().convertToFormat(QImage::Format_RGB32).save(Path(name))) {
            qFatal("%s cannot be written.", qUtf8Printable(Path(name)));
        }
    }

private:
    /// Lets the windows catch up; a closed editor goes only when it is told to.
    static void Settle() {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QDir folder_;
};

/// Heights of the main window that leave few empty rows.
constexpr int heightWithFewBookings = 480;
constexpr int heightOfPreferences = 660;

/// The place of the entry row in the main window, with some room around it.
QRect EntryRowOf(const MainWindowView &view) {
    const QWidget &field = *view.findChild<QWidget *>(u"DateField"_s);
    const QPoint corner = field.mapTo(&view, QPoint());
    return {0, corner.y() - 48, view.width(), 94};
}

void TakeWelcome(const Album &album, WelcomeWindow &window, QWidget &view) {
    album.Add(u"willkommen.png"_s, view);
    Q_EMIT window.NewCanvas.MouseDown(0, 0);
    window.CompanyField.SetText(u"Grafikbüro Beispiel"_s);
    window.ForwardButton.Press();
    window.AccountsPopup.SetListIndex(1);
    window.OpeningBalanceField.SetText(u"250,00"_s);
    album.Add(u"kontenrahmen.png"_s, view);
}

/// The entry row while a receipt is typed, and the message when its category is missing.
void TakeEntry(const Album &album, EntryRow &row, MainWindowView &view) {
    row.InputField.SetText(u"119,00"_s);
    row.pickLists.CategoryCombo.SetText(u"Erlöse 19% USt"_s);
    row.SaleNumberField.SetText(u"13"_s);
    row.NoteField.SetText(u"Plakat"_s);
    const QRect place = EntryRowOf(view);
    album.AddNumbered(u"buchen.png"_s, view, place,
                      {u"DateField"_s, u"InputField"_s, u"OutputField"_s, u"TaxCombo"_s,
                       u"CategoryCombo"_s, u"SaleNumberField"_s, u"NoteField"_s,
                       u"SubmitButton"_s});
    row.pickLists.CategoryCombo.SetText({});
    row.SubmitButton.Press();
    album.Add(u"meldung.png"_s, view, place);
    row.pickLists.CategoryCombo.SetText(u"Erlöse 19% USt"_s);
    row.SubmitButton.Press();
}

void TakeCalendar(const Album &album, MainWindowView &view) {
    auto &field = *view.findChild<QWidget *>(u"DateField"_s);
    QKeyEvent open(QEvent::KeyPress, Qt::Key_F4, Qt::NoModifier);
    QCoreApplication::sendEvent(&field, &open);
    QCoreApplication::processEvents();
    auto &calendar = *field.findChild<CalendarPopup *>();
    const QPoint below = field.mapTo(&view, QPoint(0, field.height()));
    const QPoint corner(0, below.y() - 60);
    QPixmap picture = view.grab(QRect(corner, QSize(470, calendar.height() + 68)));
    QPainter(&picture).drawPixmap(below - corner, calendar.grab());
    calendar.close();
    album.Save(u"kalender.png"_s, picture);
}

void TakeChange(const Album &album, MainWindow &window, MainWindowView &view) {
    window.journal.CashList.SetListIndex(2);
    window.MenuAction(u"edit"_s);
    album.Add(u"aendern.png"_s, view);
    window.entryRow.CancelButton.Press();
}

void TakePreferences(const Album &album, MainWindow &window, MainWindowView &view) {
    window.MenuAction(u"preferences"_s);
    CompanyProfile &company = window.companyProfile;
    company.CompanyField.SetText(u"Grafikbüro Beispiel"_s);
    company.FirstnameField.SetText(u"Anna"_s);
    company.LastnameField.SetText(u"Beispiel"_s);
    company.StreetField.SetText(u"Lindenstraße 7"_s);
    company.ZipField.SetText(u"50674"_s);
    company.CityField.SetText(u"Köln"_s);
    company.PhoneField.SetText(u"0221 5550143"_s);
    company.EMailField.SetText(u"anna@example.org"_s);
    company.HomepageField.SetText(u"www.example.org"_s);
    Q_EMIT window.cashBooks.CashBookAdd.PlusPressed();
    window.cashBooks.CashbookList.SetEditText(u"Portokasse"_s);
    window.cashBooks.CashbookList.EndEdit();
    view.resize(view.width(), heightOfPreferences);
    album.Add(u"einstellungen.png"_s, view);
    window.MenuAction(u"cashbook"_s);
}

void TakeAll(App &app, const Album &album, WelcomeWindow &welcome) {
    {
        MainMenuBar menuBar;
        WelcomeWindowView view(welcome, menuBar, app.Locale());
        view.show();
        TakeWelcome(album, welcome, view);
    }
    welcome.CreateDemoDatabase();
    MainWindow window(app);
    MainWindowView view(window, app.Locale(), app.Resources());
    window.Event_Open();
    view.resize(view.sizeHint().width(), heightWithFewBookings);
    view.show();
    album.Add(u"journal.png"_s, view);
    TakeEntry(album, window.entryRow, view);
    TakeCalendar(album, view);
    TakeChange(album, window, view);
    TakePreferences(album, window, view);
    window.cashReport.Print();
}

} // namespace

int main(int argc, char *argv[]) {
    if (argc != 2) {
        qFatal("Usage: manual_pictures FOLDER");
    }
    // Nothing of the user's own is in the pictures, and nothing is left behind.
    const QTemporaryDir home;
    for (const char *folder : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"}) {
        qputenv(folder, home.path().toUtf8());
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const Album album(QString::fromLocal8Bit(argv[1]));
    PictureDesktop desktop(album.Path(u"kassenbericht.pdf"_s));
    ZolmarkApplication application(argc, argv, desktop);
    App app(desktop, UserLocale(QLocale(QLocale::German, QLocale::Germany)));
    QLocale::setDefault(app.Locale().Locale());
    // The cursor stays in the field that has the focus.
    QApplication::setCursorFlashTime(0);
    WelcomeWindow welcome(app);
    TakeAll(app, album, welcome);
    return EXIT_SUCCESS;
}
