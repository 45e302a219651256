#include "support/MainWindowTest.h"

#include <QToolBar>

class Commands : public MainWindowTest {
protected:
    Commands() { Open(); }

    void Choose(const QString &action) { Find<QAction>(action).trigger(); }
    QString Opened(const QString &action) {
        Choose(action);
        return env.desktop.opened.takeLast();
    }
    /// Returns the texts and shortcuts of a menu or of the tool bar.
    QString Texts(const QString &bar) {
        QStringList texts;
        for (const QAction *each : Find<QWidget>(bar).actions()) {
            if (each->isVisible()) {
                texts.append((each->text() + ' ' + each->shortcut().toString()).trimmed());
            }
        }
        return texts.join(", ");
    }

    QTableView &list = Find<QTableView>("CashList");
};

TEST_F(Commands, AppearWithTheirShortcuts) {
    EXPECT_EQ(Texts("FileMenu"),
              "Über Zolmark, E&xport..., , &Drucken... Ctrl+P, &Einstellungen ..., , &Quit Ctrl+Q");
    EXPECT_EQ(Texts("EditMenu"), "&Undo Ctrl+Z, &Ausschneiden Ctrl+X, &Kopieren Ctrl+C, "
                                 "E&infügen Ctrl+V, &Löschen, , Alles &markieren Ctrl+A");
    EXPECT_EQ(Texts("DataMenu"), "&Neu Ctrl+N, &Duplizieren Ctrl+D, &Löschen Ctrl+L");
    EXPECT_EQ(Texts("HilfeMenu"), "Kurzanleitung, , Support-Anfrage, Hersteller-Homepage");
    EXPECT_EQ(Texts("MainWindowToolbar"),
              "Neu, Bearbeiten, Duplizieren, Löschen, , , Drucken, , , , , , Einstellungen");
}

TEST_F(Commands, OpenDialogsDocumentsAndWebPages) {
    EXPECT_EQ(Opened("AboutItem"), "about");
    EXPECT_EQ(Opened("FileExport"), "export.txt");
    EXPECT_EQ(Opened("FilePrint"), "Kassenbericht");
    EXPECT_EQ(Opened("QuickReferenceItem"), env.desktop.Path("Resources/Zolmark.pdf"));
    EXPECT_EQ(Opened("SupportItem"), ZOLMARK_HOMEPAGE "service-support/");
    EXPECT_EQ(Opened("HomepageItem"), ZOLMARK_HOMEPAGE);
}

TEST_F(Commands, SwitchPagesByKeysOnTheToolBar) {
    auto &action = Find<QAction>("PreferencesButton");
    QWidget *button = Find<QToolBar>("MainWindowToolbar").widgetForAction(&action);
    EXPECT_NEAR(button->geometry().right(), view.width(), 9);
    ::Type(button, "\r");
    EXPECT_EQ(action.text(), "Kassenbuch");
    ::Type(button, "{Enter}");
    EXPECT_EQ(action.text(), "Einstellungen");
    EXPECT_EQ(window.PagePanel1.Value(), MainWindow::JournalPage);
    Choose("FilePreferences");
    EXPECT_EQ(window.PagePanel1.Value(), MainWindow::PreferencesPage);
}

TEST_F(Commands, NeedASelectedBookingInTheFocusedList) {
    const EntryRow &row = window.entryRow;
    const auto &button = Find<QAction>("DeleteButton");
    Q_EMIT bookings.KeyDown();
    EXPECT_FALSE(button.isEnabled()) << "the list is empty";
    EXPECT_FALSE(Find<QAction>("CopyItem").isEnabled());
    env.Add({});
    Choose("NewSaleItem");
    Click(list, 0, 0);
    Choose("CopyItem"); // Moves the focus to the entry row.
    EXPECT_EQ(row.InputField.Text(), "1,00");
    EXPECT_FALSE(row.ChangeButton.Visible());
    list.setFocus();
    EXPECT_FALSE(Find<QAction>("DeleteItem").isEnabled());
    EXPECT_FALSE(button.isEnabled());
    Type("{Up}");
    Choose("EditButton");
    EXPECT_TRUE(row.ChangeButton.Visible());
    Click(list, 0, 0);
    Type("{Ctrl+L}");
    EXPECT_EQ(bookings.ListCount(), 0);
}

TEST_F(Commands, OfTheEditMenuActOnTheFocusedField) {
    const auto &field = Find<QLineEdit>("SaleNumberField");
    Click(&field, {5, 5});
    Type("ab");
    const auto edited = [&](const QString &command) {
        Type("{Alt+B}");
        Choose(command); // Does nothing while it is disabled.
        QApplication::activePopupWidget()->close();
        return field.text();
    };
    edited("EditSelectAll");
    EXPECT_EQ(edited("EditCopy"), "ab");
    EXPECT_EQ(edited("EditClear"), "");
    EXPECT_EQ(edited("EditPaste"), "ab");
    edited("EditSelectAll");
    EXPECT_EQ(edited("EditCut"), "");
    EXPECT_EQ(edited("EditUndo"), "ab");
}

TEST_F(Commands, QuitAndTheEndOfTheSessionSaveTypedText) {
    const QString company = "SELECT company FROM core_company";
    window.companyProfile.CompanyField.SetText("a");
    // There is no QSessionManager in a test.
    const QGenericArgument manager("QSessionManager&", &view);
    QMetaObject::invokeMethod(qApp, "commitDataRequest", manager);
    EXPECT_EQ(env.Value(company), "a");
    window.companyProfile.CompanyField.SetText("b");
    Type("{Ctrl+Q}");
    EXPECT_EQ(env.Value(company), "b");
}
