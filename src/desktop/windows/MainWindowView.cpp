#include "desktop/windows/MainWindowView.h"

#include "desktop/drawing/FocusRing.h"
#include "desktop/look/LightPalette.h"
#include "desktop/look/WindowPlacement.h"
#include "desktop/windows/JournalPageView.h"
#include "desktop/windows/MenuBarView.h"
#include "desktop/windows/Pages.h"
#include "desktop/windows/PreferencesPageView.h"
#include "desktop/windows/ToolBarView.h"
#include "shell/MainWindow.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

/// Of the pages, when the lists have shrunk to a few rows.
constexpr QSize minimumPageSize{1080, 520};

} // namespace

MainWindowView::MainWindowView(MainWindow &window, const UserLocale &locale,
                               const FolderItem &icons)
    : window_(window),
      pages_(CreatePages(window.PagePanel1,
                         {[&window, &locale](QWidget *parent) {
                              return new JournalPageView({window.selectors, window.entryRow,
                                                          window.journal, window.balances},
                                                         locale, parent);
                          },
                          [&window](QWidget *parent) {
                              return new PreferencesPageView(
                                  {window.companyProfile, window.cashBooks, window.bookingAccounts},
                                  parent);
                          }},
                         this)) {
    setObjectName(u"MainWindow"_s);
    setWindowTitle(u"Kassenbuch"_s);
    UseLightPalette(*this, 0xfffaf9fa);
    setCentralWidget(pages_);
    DarkenFrames(*pages_);
    new FocusRing(*this);
    addToolBar(new ToolBarView(window.MainWindowToolbar, icons, this));
    setMenuBar(new MenuBarView(window.menuBar, this));
    connect(
        qApp, &QGuiApplication::commitDataRequest, this, [&window] { window.Event_Close(); },
        Qt::DirectConnection);
    setMinimumSize(64, 64);
    FitToFont();
    CenterOnScreen(*this, size());
}

void MainWindowView::FitToFont() {
    const QSize bars(0, menuWidget()->sizeHint().height() +
                            findChild<QToolBar *>()->sizeHint().height());
    UseDesktopFont(*pages_, minimumPageSize, bars);
    resize(size().expandedTo(sizeHint()).boundedTo(AvailableSize(*this)));
}

bool MainWindowView::event(QEvent *event) {
    const bool isHandled = QMainWindow::event(event);
    if (event->type() == QEvent::ApplicationFontChange) {
        FitToFont();
    }
    return isHandled;
}

void MainWindowView::closeEvent(QCloseEvent *event) {
    QMainWindow::closeEvent(event);
    window_.Event_Close();
}
