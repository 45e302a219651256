#pragma once

#include "platform/controls/DateControl.h"
#include "platform/controls/PagePanel.h"
#include "platform/controls/PushButton.h"
#include "platform/controls/TLXCanvasButton.h"
#include "platform/controls/TextField.h"
#include "platform/lists/PopupMenu.h"

#include <QObject>

class App;

/// The first window of every start. With a book in its place it hands over to the main window at
/// once; without one it stays and offers the ways to a book: the sample book, or one of the user's
/// own from what is typed on two pages.
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
    /// The one entry of a menu bar that this window answers.
    void AboutItem_Action();

    /// Makes the sample book in memory and opens the main window on it. A failure is told, and the
    /// window stays.
    void CreateDemoDatabase();
    /// Makes the default file from what is typed and opens the main window on it. The file is there
    /// as a whole or not at all, whenever the program is ended. A failure is told, and the window
    /// stays with all that is typed. A file that stands there already stays as it is.
    void CreateDatabase();

Q_SIGNALS:
    /// Show the main window; the database is dealt with.
    void MainWindowRequested();
    /// This window has done its work.
    void Closed();

private:
    void NewCanvas_MouseDown();
    void ManualCanvas_MouseDown();
    void ForwardButton_Action();
    void BackButton_Action();
    void SaveButton_Action();
    void AccountsPopup_Change();
    void OpeningDate_Open();

    void ConnectEvents();
    void DrawPicture(Canvas &canvas, const QString &name);
    QString ClosingSQL() const;
    /// Makes the whole book in a file, and closes it; false after a failure, which has been told.
    [[nodiscard]] bool CreateFile(const FolderItem &file);
    [[nodiscard]] bool FillDatabase(const QString &chart, const QString &closingSQL);

    App &app_;
};
