#include "setup/WelcomeWindow.h"

#include "core/App.h"
#include "core/Scripts.h"
#include "setup/SampleBook.h"

using namespace Qt::StringLiterals;

WelcomeWindow::WelcomeWindow(App &app)
    : PagePanel1(u"PagePanel1"_s), DemoCanvas(u"DemoCanvas"_s), app_(app) {
    connect(&DemoCanvas, &Canvas::MouseDown, this, &WelcomeWindow::CreateDemoDatabase);
}

void WelcomeWindow::Event_Open() {
    if (!app_.DBLoad()) {
        return;
    }
    app_.Connect();
    Q_EMIT Closed();
    Q_EMIT MainWindowWanted();
}

void WelcomeWindow::CreateDemoDatabase() {
    Desktop &desktop = app_.GetDesktop();
    SQLiteDatabase &database = app_.NewDatabase();
    if (!database.Connect()) {
        desktop.MsgBox(u"Demo Datenbank konnte nicht erstellt werden: "_s +
                       database.ErrorMessage());
        return;
    }
    database.SQLExecute(u"BEGIN TRANSACTION"_s);
    database.SQLExecute(CashBookDDL());
    database.SQLExecute(ReferenceDataSQL());
    database.SQLExecute(ChartSKR03SQL());
    database.SQLExecute(SampleBookSQL(desktop.Now().Year()));
    if (database.Error()) {
        desktop.MsgBox(u"Error: "_s + database.ErrorMessage());
        database.Rollback();
        return;
    }
    database.Commit();
    desktop.MsgBox(
        u"In der Demo werden Beispieldaten geladen. Sie können alle Funktionen des Programms "
        "testen. Die eingegebenen Daten gehen beim beenden des Programmes verloren."_s);
    Q_EMIT MainWindowWanted();
    Q_EMIT Closed();
}
