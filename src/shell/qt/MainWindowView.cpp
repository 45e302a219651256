#include "shell/qt/MainWindowView.h"

#include "shell/MainWindow.h"
#include "shell/qt/JournalPageView.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStackedWidget>

using namespace Qt::StringLiterals;

namespace {

/// The given colours are light, so what is written over them is dark under any desktop theme.
QPalette GivenColours(QPalette palette) {
    palette.setColor(QPalette::Window, QColor(0xfa, 0xf9, 0xfa));
    palette.setColor(QPalette::WindowText, Qt::black);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    return palette;
}

} // namespace

MainWindowView::MainWindowView(MainWindow &window, const UserLocale &locale) {
    setObjectName(u"MainWindow"_s);
    setWindowTitle(u"Kassenbuch"_s);
    setPalette(GivenColours(palette()));
    auto *pages = new QStackedWidget(this);
    pages->setObjectName(u"PagePanel1"_s);
    pages->addWidget(new JournalPageView(window, locale, pages));
    setCentralWidget(pages);
    setMinimumSize(64, 64);
    resize(sizeHint().boundedTo(screen()->availableSize()));
    const QRect free = screen()->availableGeometry();
    move(free.center() - rect().center());
}
