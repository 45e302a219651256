#include "desktop/windows/MainWindowView.h"

#include "core/App.h"
#include "desktop/controls/FocusRing.h"
#include "desktop/controls/PagePanelView.h"
#include "desktop/windows/GivenColours.h"
#include "desktop/windows/JournalPageView.h"
#include "desktop/windows/MenuBarView.h"
#include "desktop/windows/PreferencesPageView.h"
#include "desktop/windows/Room.h"
#include "desktop/windows/ToolBarView.h"
#include "shell/MainWindow.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

/// Of the pages, when the lists have given way down to a few rows.
constexpr QSize leastSize{1080, 520};

} // namespace

MainWindowView::MainWindowView(MainWindow &window, const App &app)
    : window_(window), pages_(new PagePanelView(window.PagePanel1, this)) {
    setObjectName(u"MainWindow"_s);
    setWindowTitle(u"Kassenbuch"_s);
    UseGivenColours(*this, 0xfffaf9fa);
    pages_->AddPage([this, &app] { return new JournalPageView(window_, app.Locale(), pages_); });
    pages_->AddPage([this] { return new PreferencesPageView(window_, pages_); });
    setCentralWidget(pages_);
    DarkenFrames(*pages_);
    new FocusRing(*this);
    addToolBar(new ToolBarView(
        window.MainWindowToolbar, [&app](const QString &name) { return app.Resource(name).Path(); },
        this));
    setMenuBar(new MenuBarView(window.menuBar, this));
    connect(
        qApp, &QGuiApplication::commitDataRequest, this, [&window] { window.Event_Close(); },
        Qt::DirectConnection);
    setMinimumSize(64, 64);
    Grow();
    PutInTheMiddle(*this, size());
}

void MainWindowView::Grow() {
    const QSize bars(0, menuWidget()->sizeHint().height() +
                            findChild<QToolBar *>()->sizeHint().height());
    UseDesktopFont(*pages_, leastSize, bars);
    resize(size().expandedTo(sizeHint()).boundedTo(Room(*this)));
}

bool MainWindowView::event(QEvent *event) {
    if (event->type() == QEvent::ApplicationFontChange) {
        Grow();
    }
    return QMainWindow::event(event);
}

void MainWindowView::closeEvent(QCloseEvent *event) {
    QMainWindow::closeEvent(event);
    window_.Event_Close();
}
