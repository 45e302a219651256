#pragma once

#include "platform/controls/DateControl.h"
#include "platform/controls/PagePanel.h"
#include "platform/controls/PushButton.h"
#include "platform/controls/TLXCanvasButton.h"
#include "platform/controls/TextField.h"
#include "platform/lists/PopupMenu.h"

#include <QObject>

class App;

/// The first window of every start. If the default database file exists, it requests the main
/// window and closes at once. Otherwise the user can open the demo database or create a new
/// database from the data entered on two pages.
class WelcomeWindow : public QObject {
    Q_OBJECT

public:
    /// The pages of PagePanel1.
    enum Page { GreetingPage, CompanyPage, CashBookPage };

    explicit WelcomeWindow(App &app);

    PagePanel PagePanel1;
    TLXCanvasButton DemoCanvas;
    TLXCanvasButton NewCanvas;
    TLXCanvasButton ManualCanvas;
    Canvas Canvas1;

    TextField CompanyField;
    TextField DepartmendField;
    TextField StreetField;
    TextField ZipField;
    TextField CityField;
    TextField PhoneField;
    PushButton ForwardButton;

    PopupMenu AccountsPopup;
    TextField AccountNameField;
    TextField AccountField;
    TextField OpeningBalanceField;
    PopupMenu CurrencyPopup;
    DateControl OpeningDate;
    PushButton BackButton;
    PushButton SaveButton;

    void Event_Open();
    /// The only menu entry that this window handles.
    void AboutItem_Action();

    /// Creates the demo database in memory and requests the main window. A failure is shown in a
    /// message, and the window stays open.
    void CreateDemoDatabase();
    /// Creates the default database file from the entered data and requests the main window. The
    /// file appears complete or not at all, even if the program is terminated. A failure is shown
    /// in a message, and the window stays open with the entered data. An existing file is not
    /// changed.
    void CreateDatabase();

Q_SIGNALS:
    /// Emitted when the main window is to be shown, after the attempt to open the database.
    void MainWindowRequested();
    /// Emitted when this window is to be closed.
    void Closed();

private:
    void NewCanvas_MouseDown();
    void ManualCanvas_MouseDown();
    void ForwardButton_Action();
    void BackButton_Action() { PagePanel1.SetValue(CompanyPage); }
    void SaveButton_Action();
    void AccountsPopup_Change();
    void OpeningDate_Open();

    void ConnectEvents();
    void DrawPicture(Canvas &canvas, const QString &name);
    /// Returns the SQL that inserts the entered company and cash book.
    QString EnteredRecordsSQL() const;
    /// Creates the complete database in a file and closes it. On failure shows a message and
    /// returns false.
    [[nodiscard]] bool CreateFile(const FolderItem &file);
    [[nodiscard]] bool FillDatabase(const QString &chart, const QString &recordsSQL);

    App &app_;
};
