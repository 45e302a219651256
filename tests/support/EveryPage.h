#pragma once

#include "setup/WelcomeWindow.h"
#include "shell/qt/WelcomeWindowView.h"
#include "support/MainWindowTest.h"

/// Looks at each page of the welcome window and of the main window, each as it shows; the journal
/// a second time while a booking is being changed.
template <typename Look>
void ForEveryPage(const Look &look) {
    Book book;
    book.Add({QStringLiteral("2026-03-01"), QStringLiteral("E"), QStringLiteral("10")});
    WelcomeWindow welcome(book.app);
    WelcomeWindowView greeting(welcome, book.app.Locale());
    greeting.show();
    for (const int page : {0, 1, 2}) {
        welcome.PagePanel1.SetValue(page);
        look(greeting);
    }
    MainWindow window(book.app);
    MainWindowView view(window, book.app);
    window.Event_Open();
    view.resize(1100, 900);
    view.show();
    look(view);
    window.journal.CashList.SetListIndex(0);
    window.entryRow.EditSale(EntryRow::EditMode::Change);
    look(view);
    window.MenuAction(QStringLiteral("preferences"));
    look(view);
}
