#include "setup/WelcomeWindow.h"

#include "core/App.h"
#include "core/Scripts.h"
#include "core/TLXModule.h"
#include "core/database/Transaction.h"
#include "platform/values/Text.h"

#include <QUuid>

using namespace Qt::StringLiterals;

namespace {

/// The position of the picture on a button, in points.
constexpr int pictureLeft = 14;
constexpr int pictureTop = 26;

/// The file name prefix of incomplete databases, which are in the folder of the default file.
const auto temporaryPrefix = u"Zolmark.neu-"_s;
const auto cannotCreate = u"Die Datenbank konnte nicht erstellt werden: "_s;

} // namespace

WelcomeWindow::WelcomeWindow(App &app)
    : PagePanel1(u"PagePanel1"_s), DemoCanvas(u"DemoCanvas"_s), NewCanvas(u"NewCanvas"_s),
      ManualCanvas(u"ManualCanvas"_s), Canvas1(u"Canvas1"_s), CompanyField(u"CompanyField"_s),
      DepartmendField(u"DepartmendField"_s), StreetField(u"StreetField"_s), ZipField(u"ZipField"_s),
      CityField(u"CityField"_s), PhoneField(u"PhoneField"_s),
      ForwardButton(u"ForwardButton"_s, u"Weiter"_s, PushButton::Role::Default),
      AccountsPopup(u"AccountsPopup"_s), AccountNameField(u"AccountNameField"_s, u"Kasse"_s),
      AccountField(u"AccountField"_s, u"1000"_s),
      OpeningBalanceField(u"OpeningBalanceField"_s, u"0,00"_s), CurrencyPopup(u"CurrencyPopup"_s),
      OpeningDate(u"OpeningDate"_s, Date(QDate(2000, 1, 1)),
                  [&app] { return app.GetDesktop().Now(); }),
      BackButton(u"BackButton"_s, u"Zurück"_s, PushButton::Role::Cancel),
      SaveButton(u"SaveButton"_s, u"Übernehmen"_s, PushButton::Role::Default), app_(app) {
    for (const auto &chart : {u"Leeren Kontorahmen verwenden"_s, u"SKR-03"_s, u"SKR-04"_s}) {
        AccountsPopup.AddRow(chart);
    }
    AccountsPopup.SetListIndex(0);
    CurrencyPopup.AddRow(u"EUR"_s);
    CurrencyPopup.SetListIndex(0);
    OpeningDate_Open();
    auto picture = std::make_unique<Picture>(0, 0);
    picture->DrawPicture(app_.Resources().Child(u"welcome_image.png"_s), 0, 0);
    Canvas1.SetBackdrop(std::move(picture));
    ConnectEvents();
}

void WelcomeWindow::ConnectEvents() {
    DrawPicture(DemoCanvas, u"48_copy_record.png"_s);
    DrawPicture(NewCanvas, u"48_add_record.png"_s);
    DrawPicture(ManualCanvas, u"48_address-book.png"_s);
    connect(&DemoCanvas, &Canvas::MouseDown, this, &WelcomeWindow::CreateDemoDatabase);
    connect(&NewCanvas, &Canvas::MouseDown, this, &WelcomeWindow::NewCanvas_MouseDown);
    connect(&ManualCanvas, &Canvas::MouseDown, this, &WelcomeWindow::ManualCanvas_MouseDown);
    connect(&ForwardButton, &PushButton::Action, this, &WelcomeWindow::ForwardButton_Action);
    connect(&BackButton, &PushButton::Action, this, &WelcomeWindow::BackButton_Action);
    connect(&SaveButton, &PushButton::Action, this, &WelcomeWindow::SaveButton_Action);
    connect(&OpeningBalanceField, &TextField::TextChange, this, [this] {
        OpeningBalanceField.SetHint(
            TLXModule::AmountHint(OpeningBalanceField.Text(), app_.Locale()));
    });
    connect(&AccountsPopup, &PopupMenu::Change, this, &WelcomeWindow::AccountsPopup_Change);
}

void WelcomeWindow::DrawPicture(Canvas &canvas, const QString &name) {
    connect(&canvas, &Canvas::Paint, this,
            [file = app_.Resources().Child(name)](Graphics &graphics) {
                graphics.DrawPicture(file, pictureLeft, pictureTop);
            });
}

void WelcomeWindow::Event_Open() {
    if (!app_.DBLoad()) {
        return;
    }
    app_.Connect();
    // A crash between linking and unlinking in MoveTo leaves the temporary name; remove it.
    app_.DefaultDatabaseFile().Parent().DeleteFiles(temporaryPrefix);
    Q_EMIT Closed();
    Q_EMIT MainWindowRequested();
}

void WelcomeWindow::AboutItem_Action() {
    app_.GetDesktop().ShowAboutPanel();
}

void WelcomeWindow::NewCanvas_MouseDown() {
    PagePanel1.SetValue(CompanyPage);
    CompanyField.SetFocus();
}

void WelcomeWindow::ManualCanvas_MouseDown() {
    app_.LaunchManual();
}

void WelcomeWindow::ForwardButton_Action() {
    if (CompanyField.Text().isEmpty()) {
        app_.GetDesktop().MsgBox(u"Bitte geben Sie einen Firmannamen an"_s);
        return;
    }
    PagePanel1.SetValue(CashBookPage);
}

void WelcomeWindow::AccountsPopup_Change() {
    AccountField.SetText(SameText(AccountsPopup.Text(), u"SKR-04"_s) ? u"1600"_s : u"1000"_s);
}

void WelcomeWindow::OpeningDate_Open() {
    OpeningDate.SetYear(app_.GetDesktop().Now().Year());
}

void WelcomeWindow::SaveButton_Action() {
    if (AccountNameField.Text().isEmpty() || AccountField.Text().isEmpty() ||
        OpeningBalanceField.Text().isEmpty()) {
        app_.GetDesktop().MsgBox(u"Bitte füllen Sie alle Felder aus: \r\r- Kassenbezeichnung\r"
                                 "- Konto\r- Anfangsbestand"_s);
        return;
    }
    // If the typed text was refused, the shown date is not the intended one.
    if (OpeningDate.ResetRefusal()) {
        app_.GetDesktop().MsgBox(u"Bitte das Datum prüfen!"_s);
        OpeningDate.SetFocus();
        return;
    }
    CreateDatabase();
}

void WelcomeWindow::CreateDatabase() {
    const FolderItem databaseFile = app_.DefaultDatabaseFile();
    const FolderItem folder = databaseFile.Parent();
    if (!folder.Exists()) {
        // If this fails, creating the file fails too and shows a message.
        static_cast<void>(folder.CreateAsFolder());
    }
    // Remove the files of interrupted attempts.
    folder.DeleteFiles(temporaryPrefix);
    const QString temporaryName = temporaryPrefix + QUuid::createUuid().toString(QUuid::Id128);
    if (!CreateFile(folder.Child(temporaryName))) {
        folder.DeleteFiles(temporaryName);
        return;
    }
    if (!folder.Child(temporaryName).MoveTo(databaseFile)) {
        folder.DeleteFiles(temporaryName);
        app_.GetDesktop().MsgBox(
            cannotCreate +
            u"%1 ist schon da oder darf nicht angelegt werden."_s.arg(databaseFile.Path()));
        return;
    }
    if (app_.DBLoad()) {
        app_.Connect();
    }
    Q_EMIT MainWindowRequested();
    Q_EMIT Closed();
}

bool WelcomeWindow::CreateFile(const FolderItem &file) {
    SQLiteDatabase &database = app_.NewDatabase();
    app_.UseFile(database, file);
    const bool isCreated = database.CreateDatabaseFile();
    if (!isCreated) {
        app_.GetDesktop().MsgBox(cannotCreate + database.ErrorMessage());
    }
    const bool isFilled = isCreated && FillDatabase(AccountsPopup.Text(), EnteredRecordsSQL());
    app_.NewDatabase();
    return isFilled;
}

void WelcomeWindow::CreateDemoDatabase() {
    Desktop &desktop = app_.GetDesktop();
    SQLiteDatabase &database = app_.NewDatabase();
    if (!database.Connect()) {
        desktop.MsgBox(u"Demo Datenbank konnte nicht erstellt werden: "_s +
                       database.ErrorMessage());
        return;
    }
    if (!FillDatabase(u"SKR-03"_s, SampleDataSQL(desktop.Now().Year()))) {
        return;
    }
    desktop.MsgBox(
        u"In der Demo werden Beispieldaten geladen. Sie können alle Funktionen des Programms "
        "testen. Die eingegebenen Daten gehen beim beenden des Programmes verloren."_s);
    Q_EMIT MainWindowRequested();
    Q_EMIT Closed();
}

QString WelcomeWindow::EnteredRecordsSQL() const {
    // Not escaped: an apostrophe makes the statement fail, and the error is shown in a message.
    const QStringList company = {CompanyField.Text(), DepartmendField.Text(), StreetField.Text(),
                                 ZipField.Text(),     CityField.Text(),       PhoneField.Text(),
                                 AccountsPopup.Text()};
    const QStringList cashBook = {AccountNameField.Text(), AccountField.Text(),
                                  TLXModule::AmountText2SQL(OpeningBalanceField.Text()),
                                  OpeningDate.DateValue().SQLDate()};
    return u"INSERT INTO core_company (id, company, lastname, street, zipcode, city, phone, "
           "account_frame) VALUES ('1', '"_s +
           company.join(u"', '"_s) +
           u"');INSERT INTO cash_book (ID, name, account, opening_balance, opening_balance_date) "
           "VALUES ('1', '"_s +
           cashBook.join(u"', '"_s) + u"');"_s;
}

bool WelcomeWindow::FillDatabase(const QString &chart, const QString &recordsSQL) {
    SQLiteDatabase &database = app_.kvoDB();
    Transaction transaction(database);
    database.SQLExecute(CashBookDDL());
    database.SQLExecute(ReferenceDataSQL());
    if (SameText(chart, u"SKR-03"_s)) {
        database.SQLExecute(ChartSKR03SQL());
    }
    if (SameText(chart, u"SKR-04"_s)) {
        database.SQLExecute(ChartSKR04SQL());
    }
    database.SQLExecute(recordsSQL);
    if (database.Error() || !transaction.Commit()) {
        app_.GetDesktop().MsgBox(u"Error: "_s + database.ErrorMessage());
        return false;
    }
    return true;
}
