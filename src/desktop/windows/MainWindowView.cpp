#include "desktop/windows/MainWindowView.h"

#include "core/App.h"
#include "desktop/controls/FontFit.h"
#include "desktop/controls/PagePanelView.h"
#include "desktop/windows/GivenColours.h"
#include "desktop/windows/JournalPageView.h"
#include "desktop/windows/MenuBarView.h"
#include "desktop/windows/PreferencesPageView.h"
#include "desktop/windows/ToolBarView.h"
#include "shell/MainWindow.h"

#include <QApplication>
#include <QScreen>

using namespace Qt::StringLiterals;

MainWindowView::MainWindowView(MainWindow &window, const App &app) : window_(window) {
    setObjectName(u"MainWindow"_s);
    setWindowTitle(u"Kassenbuch"_s);
    UseGivenColours(*this, 0xfffaf9fa);
    auto *pages = new PagePanelView(window.PagePanel1, this);
    pages->addWidget(new JournalPageView(window, app.Locale(), pages));
    pages->addWidget(new PreferencesPageView(window, pages));
    setCentralWidget(pages);
    new FontFit(*pages);
    addToolBar(new ToolBarView(
        window.MainWindowToolbar, [&app](const QString &name) { return app.Resource(name).Path(); },
        this));
    setMenuBar(new MenuBarView(window.menuBar, this));
    connect(
        qApp, &QGuiApplication::commitDataRequest, this, [&window] { window.Event_Close(); },
        Qt::DirectConnection);
    setMinimumSize(64, 64);
    resize(sizeHint().boundedTo(screen()->availableSize()));
    const QRect free = screen()->availableGeometry();
    move(free.center() - rect().center());
}

void MainWindowView::closeEvent(QCloseEvent *event) {
    QMainWindow::closeEvent(event);
    window_.Event_Close();
}
