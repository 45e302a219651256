/// Takes the screenshots of the manual: opens the program's windows on the sample data, enters data
/// as a user would, and writes the windows as PNG files to the folder given as argument.
///
/// The build runs it at twice the size (QT_SCALE_FACTOR). The picture of the README is the journal
/// at normal size and is updated by hand:
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

/// A desktop with a fixed date, without message boxes, that prints to a PDF file.
class PictureDesktop : public QtDesktop {
public:
    explicit PictureDesktop(QString printFile) : printFile_(std::move(printFile)) {}

    Date Now() const override { return Date(QDateTime(QDate(2026, 1, 20), QTime(12, 0))); }
    void MsgBox(const QString & /*message*/) override {}
    std::unique_ptr<PrinterGraphics>
    OpenPrinterDialog(const QString &document,
                      const std::optional<FolderItem> &databaseFile) override {
        auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer->setOutputFormat(QPrinter::PdfFormat);
        printer->setPageSize(QPageSize(QPageSize::A4));
        printer->setOutputFileName(printFile_);
        printer->setDocName(document);
        return std::make_unique<PrintJob>(
            std::move(printer), databaseFile,
            [](const QString &failure) { qFatal("%s", qUtf8Printable(failure)); });
    }

private:
    QString printFile_;
};

/// Writes screenshots of widgets to a folder.
class ScreenshotFolder {
public:
    explicit ScreenshotFolder(const QString &folder) : folder_(folder) {}

    QString Path(const QString &name) const { return folder_.filePath(name); }

    void Add(const QString &name, QWidget &window, const QRect &area = QRect(0, 0, -1, -1)) const {
        ProcessEvents();
        Save(name, window.grab(area));
    }

    /// Like Add(), with the numbers 1, 2, ... drawn above the labels of the fields.
    void AddNumbered(const QString &name, QWidget &window, const QRect &area,
                     const QStringList &fields) const {
        ProcessEvents();
        QPixmap picture = window.grab(area);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        QFont font;
        font.setPixelSize(11);
        font.setBold(true);
        painter.setFont(font);
        for (int number = 1; number <= fields.size(); ++number) {
            const QWidget &field = *window.findChild<QWidget *>(fields[number - 1]);
            const QPoint topLeft = field.mapTo(&window, QPoint(0, -43)) - area.topLeft();
            const QRect badge(topLeft, QSize(16, 16));
            painter.setPen(Qt::NoPen);
            painter.setBrush(QColor(0x1f, 0x6a, 0xa5));
            painter.drawEllipse(badge);
            painter.setPen(Qt::white);
            painter.drawText(badge, Qt::AlignCenter, QString::number(number));
        }
        painter.end();
        Save(name, picture);
    }

    /// Saves without an alpha channel, which the PDF file would store as a separate, large image.
    void Save(const QString &name, const QPixmap &picture) const {
        if (!picture.toImage().convertToFormat(QImage::Format_RGB32).save(Path(name))) {
            qFatal("%s cannot be written.", qUtf8Printable(Path(name)));
        }
    }

private:
    /// Handles pending events. processEvents() alone does not delete closed editors.
    static void ProcessEvents() {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QDir folder_;
};

/// Heights of the main window with few empty rows.
constexpr int journalHeight = 480;
constexpr int preferencesHeight = 660;

/// Returns the rectangle of the entry row in the main window, with a margin.
QRect EntryRowRect(const MainWindowView &view) {
    const QWidget &field = *view.findChild<QWidget *>(u"DateField"_s);
    const QPoint topLeft = field.mapTo(&view, QPoint());
    return {0, topLeft.y() - 48, view.width(), 94};
}

void TakeWelcome(const ScreenshotFolder &screenshots, WelcomeWindow &window, QWidget &view) {
    screenshots.Add(u"willkommen.png"_s, view);
    Q_EMIT window.NewCanvas.MouseDown(0, 0);
    window.CompanyField.SetText(u"Grafikbüro Beispiel"_s);
    window.ForwardButton.Press();
    window.AccountsPopup.SetListIndex(1);
    window.OpeningBalanceField.SetText(u"250,00"_s);
    screenshots.Add(u"kontenrahmen.png"_s, view);
}

/// Takes the entry row with a typed receipt, and the message about a missing category.
void TakeEntry(const ScreenshotFolder &screenshots, EntryRow &row, MainWindowView &view) {
    row.InputField.SetText(u"119,00"_s);
    row.pickLists.CategoryCombo.SetText(u"Erlöse 19% USt"_s);
    row.SaleNumberField.SetText(u"13"_s);
    row.NoteField.SetText(u"Plakat"_s);
    const QRect area = EntryRowRect(view);
    screenshots.AddNumbered(u"buchen.png"_s, view, area,
                            {u"DateField"_s, u"InputField"_s, u"OutputField"_s, u"TaxCombo"_s,
                             u"CategoryCombo"_s, u"SaleNumberField"_s, u"NoteField"_s,
                             u"SubmitButton"_s});
    row.pickLists.CategoryCombo.SetText({});
    row.SubmitButton.Press();
    screenshots.Add(u"meldung.png"_s, view, area);
    row.pickLists.CategoryCombo.SetText(u"Erlöse 19% USt"_s);
    row.SubmitButton.Press();
}

void TakeCalendar(const ScreenshotFolder &screenshots, MainWindowView &view) {
    auto &field = *view.findChild<QWidget *>(u"DateField"_s);
    QKeyEvent pressF4(QEvent::KeyPress, Qt::Key_F4, Qt::NoModifier);
    QCoreApplication::sendEvent(&field, &pressF4);
    QCoreApplication::processEvents();
    auto &calendar = *field.findChild<CalendarPopup *>();
    const QPoint popupTopLeft = field.mapTo(&view, QPoint(0, field.height()));
    const QPoint areaTopLeft(0, popupTopLeft.y() - 60);
    QPixmap picture = view.grab(QRect(areaTopLeft, QSize(470, calendar.height() + 68)));
    QPainter(&picture).drawPixmap(popupTopLeft - areaTopLeft, calendar.grab());
    calendar.close();
    screenshots.Save(u"kalender.png"_s, picture);
}

void TakeEditedBooking(const ScreenshotFolder &screenshots, MainWindow &window,
                       MainWindowView &view) {
    window.journal.CashList.SetListIndex(2);
    window.MenuAction(u"edit"_s);
    screenshots.Add(u"aendern.png"_s, view);
    window.entryRow.CancelButton.Press();
}

void TakePreferences(const ScreenshotFolder &screenshots, MainWindow &window,
                     MainWindowView &view) {
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
    view.resize(view.width(), preferencesHeight);
    screenshots.Add(u"einstellungen.png"_s, view);
    window.MenuAction(u"cashbook"_s);
}

void TakeAll(App &app, const ScreenshotFolder &screenshots, WelcomeWindow &welcome) {
    {
        MainMenuBar menuBar;
        WelcomeWindowView view(welcome, menuBar, app.Locale());
        view.show();
        TakeWelcome(screenshots, welcome, view);
    }
    welcome.CreateDemoDatabase();
    MainWindow window(app);
    MainWindowView view(window, app.Locale(), app.Resources());
    window.Event_Open();
    view.resize(view.sizeHint().width(), journalHeight);
    view.show();
    screenshots.Add(u"journal.png"_s, view);
    TakeEntry(screenshots, window.entryRow, view);
    TakeCalendar(screenshots, view);
    TakeEditedBooking(screenshots, window, view);
    TakePreferences(screenshots, window, view);
    window.cashReport.Print();
}

} // namespace

int main(int argc, char *argv[]) {
    if (argc != 2) {
        qFatal("Usage: manual_pictures FOLDER");
    }
    // Neither reads the user's settings nor leaves files in the home folder.
    const QTemporaryDir home;
    for (const char *folder : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"}) {
        qputenv(folder, home.path().toUtf8());
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const ScreenshotFolder screenshots(QString::fromLocal8Bit(argv[1]));
    PictureDesktop desktop(screenshots.Path(u"kassenbericht.pdf"_s));
    ZolmarkApplication application(argc, argv, desktop);
    App app(desktop, UserLocale(QLocale(QLocale::German, QLocale::Germany)));
    QLocale::setDefault(app.Locale().Locale());
    // The text cursor does not blink, so that it is in every screenshot.
    QApplication::setCursorFlashTime(0);
    WelcomeWindow welcome(app);
    TakeAll(app, screenshots, welcome);
    return EXIT_SUCCESS;
}
