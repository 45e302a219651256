#include "shell/qt/WelcomeWindowView.h"

#include "setup/WelcomeWindow.h"
#include "shell/qt/CanvasView.h"

#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QStackedWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize designSize{810, 300};
constexpr QSize pageSize{566, 303};
constexpr Sheet::Frame frameOfPages{0xffffffff, 0xffb3b3b3};

void SetLook(QLabel &label, int pointSize, bool bold, QRgb colour) {
    QFont font = label.font();
    font.setPixelSize(pointSize);
    font.setBold(bold);
    label.setFont(font);
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, QColor(colour));
    label.setPalette(palette);
}

} // namespace

WelcomeWindowView::WelcomeWindowView(WelcomeWindow &window)
    : Sheet(designSize, nullptr), pages_(new QStackedWidget(this)) {
    setObjectName(u"WelcomeWindow"_s);
    setWindowTitle(u"Willkommen"_s);
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowCloseButtonHint);
    setFixedSize(designSize);
    pages_->setObjectName(u"PagePanel1"_s);
    Add(pages_, {QPoint(-1, -1), pageSize});
    AddGreeting();
    AddButtons(window);
    move(screen()->availableGeometry().center() - rect().center());
    connect(&window, &WelcomeWindow::Closed, this, &QWidget::close);
}

void WelcomeWindowView::AddGreeting() {
    auto *page = new Sheet(pageSize, pages_);
    page->setObjectName(u"Rectangle1"_s);
    page->SetFrame(frameOfPages);
    SetLook(*page->AddCaption(u"Label1"_s, u"Willkomen bei Zolmark"_s, {28, 10, 510, 36}, LT,
                              Qt::AlignHCenter),
            32, true, 0xff333333);
    SetLook(*page->AddCaption(u"Label2"_s,
                              u"Einnahmen und Ausgabenverwaltung für \n"
                              "Selbstständige und Freiberufler"_s,
                              {28, 55, 510, 45}, LT, Qt::AlignHCenter),
            16, false, 0xff666666);
    pages_->addWidget(page);
}

void WelcomeWindowView::AddButtons(WelcomeWindow &window) {
    Add(new CanvasView(window.DemoCanvas, this), {565, 0, 245, 100});
    SetLook(*AddCaption(u"Label4"_s, u"Demo Datenbank"_s, {640, 12, 160, 20}), 13, true,
            0xff000000);
    auto *description =
        AddCaption(u"Label9"_s, u"Testen Sie Zolmark mit einer Beispiel-Datenbank.\n"_s,
                   {640, 35, 160, 55}, LT, Qt::AlignLeft);
    description->setWordWrap(true);
    SetLook(*description, 12, false, 0xff333333);
    for (QLabel *label : findChildren<QLabel *>(Qt::FindDirectChildrenOnly)) {
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
}
