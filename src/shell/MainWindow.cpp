#include "shell/MainWindow.h"

MainWindow::MainWindow(App &app)
    : selectors(app), journal(app, selectors), balances(app, selectors, journal) {}

void MainWindow::Event_Open() {
    const Selectors::Hold oneRefresh(selectors);
    selectors.GetCashbooks();
    selectors.GetJournalYears();
    selectors.LoadMonths();
}
