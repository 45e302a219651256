#include "shell/qt/MainWindowView.h"

#include "shell/MainWindow.h"
#include "shell/qt/GivenColours.h"
#include "shell/qt/JournalPageView.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStackedWidget>

using namespace Qt::StringLiterals;

MainWindowView::MainWindowView(MainWindow &window, const UserLocale &locale) {
    setObjectName(u"MainWindow"_s);
    setWindowTitle(u"Kassenbuch"_s);
    setPalette(GivenColours(palette(), 0xfffaf9fa));
    auto *pages = new QStackedWidget(this);
    pages->setObjectName(u"PagePanel1"_s);
    pages->addWidget(new JournalPageView(window, locale, pages));
    setCentralWidget(pages);
    setMinimumSize(64, 64);
    resize(sizeHint().boundedTo(screen()->availableSize()));
    const QRect free = screen()->availableGeometry();
    move(free.center() - rect().center());
}
