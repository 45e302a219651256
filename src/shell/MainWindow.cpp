#include "shell/MainWindow.h"

MainWindow::MainWindow(App &app)
    : selectors(app), journal(app, selectors), balances(app, selectors, journal),
      entryRow(app, selectors, journal, balances) {
    connect(&journal.CashList, &Listbox::CellClick, this, &MainWindow::CashList_CellClick);
    connect(&journal.CashList, &Listbox::LostFocus, this, &MainWindow::CashList_LostFocus);
}

void MainWindow::Event_Open() {
    {
        const Selectors::Hold oneRefresh(selectors);
        entryRow.NewSale();
        selectors.LoadMonths();
    }
    entryRow.DateField.SetFocus();
}

void MainWindow::CashList_CellClick() {
    if (journal.CashList.ListCount() >= 1) {
        menuItemEnable_ = true;
    }
}

void MainWindow::CashList_LostFocus() {
    menuItemEnable_ = false;
}
