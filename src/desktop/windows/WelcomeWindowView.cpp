#include "desktop/windows/WelcomeWindowView.h"

#include "desktop/drawing/CanvasButton.h"
#include "desktop/drawing/CanvasView.h"
#include "desktop/drawing/FocusRing.h"
#include "desktop/fields/DateControlView.h"
#include "desktop/fields/Fields.h"
#include "desktop/look/LightPalette.h"
#include "desktop/look/WindowPlacement.h"
#include "desktop/windows/MenuBarView.h"
#include "desktop/windows/Pages.h"
#include "setup/WelcomeWindow.h"

#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize designSize{810, 300};
constexpr QRect pagesRect{-1, -1, 566, 303};
constexpr Form::Frame pageFrame{0xffffffff, 0xffb3b3b3};
constexpr Form::Frame titleFrame{0xfff1f1f1, 0xffcccccc};
constexpr QRgb strongText = 0xff333333;
constexpr QRgb softText = 0xff666666;

/// Converts a rectangle of the window to one of a page.
QRect OnPage(int left, int top, int width, int height) {
    return QRect(left, top, width, height).translated(-pagesRect.topLeft());
}

void AddExplanation(Form &page, const QString &name, const QString &text, const QRect &rect) {
    page.AddText(name, text, rect, Qt::AlignTop)->setWordWrap(true);
}

} // namespace

WelcomeWindowView::WelcomeWindowView(WelcomeWindow &window, MenuItem &menuBar,
                                     const UserLocale &locale)
    : window_(window), form_(new Form(designSize, this)) {
    setObjectName(u"WelcomeWindow"_s);
    setWindowTitle(u"Willkommen"_s);
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowCloseButtonHint);
    UseLightPalette(*this, 0xffffffff);
    form_->Add(
        CreatePages(window.PagePanel1,
                    {[this](QWidget *parent) { return Greeting(parent); },
                     [this](QWidget *parent) { return CompanyPage(parent); },
                     [this, &locale](QWidget *parent) { return CashBookPage(locale, parent); }},
                    form_),
        pagesRect);
    AddChoices();
    setMenuBar(new MenuBarView(menuBar, this));
    setCentralWidget(form_);
    DarkenFrames(*form_);
    new FocusRing(*this);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    UseDesktopFont(*form_, designSize);
    CenterOnScreen(*this, sizeHint());
    connect(&window, &WelcomeWindow::Closed, this, &QWidget::close);
}

bool WelcomeWindowView::event(QEvent *event) {
    const bool isHandled = QMainWindow::event(event);
    if (event->type() == QEvent::ApplicationFontChange) {
        UseDesktopFont(*form_, designSize);
    }
    return isHandled;
}

Form *WelcomeWindowView::CreatePage(const QString &name, QWidget *parent) {
    auto *page = new Form(pagesRect.size(), parent);
    page->setObjectName(name);
    page->SetFrame(pageFrame);
    return page;
}

QWidget *WelcomeWindowView::Greeting(QWidget *parent) {
    Form &page = *CreatePage(u"Rectangle1"_s, parent);
    SetTextColour(*page.AddText(u"Label1"_s, u"Willkomen bei Zolmark"_s, OnPage(27, 9, 510, 36),
                                Qt::AlignHCenter, 32, true),
                  strongText);
    QLabel *purpose = page.AddText(u"Label2"_s,
                                   u"Einnahmen und Ausgabenverwaltung für \n"
                                   "Selbstständige und Freiberufler"_s,
                                   OnPage(27, 54, 510, 45), Qt::AlignHCenter, 16);
    purpose->setWordWrap(true);
    SetTextColour(*purpose, softText);
    page.AddNamed(u"Bild zur Begrüßung"_s, new CanvasView(window_.Canvas1, &page),
                  OnPage(31, 102, 513, 200));
    return &page;
}

QWidget *WelcomeWindowView::CompanyPage(QWidget *parent) {
    Form &page = *CreatePage(u"Rectangle2"_s, parent);
    auto *title = new Form({526, 41}, &page);
    title->setObjectName(u"Placard1"_s);
    title->SetFrame(titleFrame);
    title->AddText(u"Label13"_s, u"Firmendaten erfassen"_s, {53, 8, 406, 24}, Qt::AlignHCenter, 18);
    page.Add(title, OnPage(19, 15, 526, 41));
    // In the order of the Tab key.
    page.AddText(u"Label17"_s, u"Name:"_s, OnPage(39, 77, 82, 20), Qt::AlignRight)
        ->setBuddy(
            page.Add(CreateTextField(window_.CompanyField, &page), OnPage(136, 76, 300, 22)));
    page.AddNamed(u"Name, zweite Zeile"_s, CreateTextField(window_.DepartmendField, &page),
                  OnPage(136, 106, 300, 22));
    page.AddText(u"Label3"_s, u"Strasse:"_s, OnPage(41, 138, 80, 20), Qt::AlignRight)
        ->setBuddy(
            page.Add(CreateTextField(window_.StreetField, &page), OnPage(136, 137, 300, 22)));
    page.AddText(u"Label16"_s, u"Plz, Ort:"_s, OnPage(41, 170, 80, 20), Qt::AlignRight)
        ->setBuddy(page.AddNamed(u"Plz"_s, CreateTextField(window_.ZipField, &page),
                                 OnPage(136, 169, 51, 22)));
    page.AddNamed(u"Ort"_s, CreateTextField(window_.CityField, &page), OnPage(192, 169, 244, 22));
    page.AddText(u"Label15"_s, u"Telefon:"_s, OnPage(39, 200, 82, 20), Qt::AlignRight)
        ->setBuddy(page.Add(CreateTextField(window_.PhoneField, &page), OnPage(136, 200, 300, 22)));
    AddExplanation(page, u"Label14"_s,
                   u"Die Firmenangaben können unter dem Menüpunkt Einstellungen jederzeit "
                   "verändert werden."_s,
                   OnPage(136, 232, 293, 53));
    page.AddButton(window_.ForwardButton, OnPage(456, 266, 80, 20));
    return &page;
}

QWidget *WelcomeWindowView::CashBookPage(const UserLocale &locale, QWidget *parent) {
    Form &page = *CreatePage(u"Rectangle3"_s, parent);
    // In the order of the Tab key.
    page.AddNamed(u"Kontorahmen"_s, CreatePopupMenu(window_.AccountsPopup, &page),
                  OnPage(171, 19, 372, 20));
    AddExplanation(page, u"Label11"_s,
                   u"Wählen Sie den Kontorahmen den Sie in Ihrer Buchhaltung benutzen, oder "
                   "alternativ einen leeren Kontorahmen. Sie können später selbst weitere Konten "
                   "hinzufügen."_s,
                   OnPage(171, 48, 365, 53));
    page.AddText(u"Label20"_s, u"Kontobezeichnung:"_s, OnPage(40, 126, 120, 20), Qt::AlignRight)
        ->setBuddy(
            page.Add(CreateTextField(window_.AccountNameField, &page), OnPage(170, 125, 249, 22)));
    auto *account = CreateTextField(window_.AccountField, &page);
    account->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    page.AddText(u"Label6"_s, u"Konto:"_s, OnPage(433, 126, 45, 20), Qt::AlignRight)
        ->setBuddy(page.Add(account, OnPage(487, 125, 58, 22)));
    AddOpeningBalance(page, locale);
    page.AddButton(window_.BackButton, OnPage(341, 266, 80, 20));
    page.AddButton(window_.SaveButton, OnPage(433, 266, 110, 20));
    return &page;
}

void WelcomeWindowView::AddOpeningBalance(Form &page, const UserLocale &locale) {
    page.AddText(u"Label19"_s, u"Eröffnungsbestand:"_s, OnPage(40, 156, 120, 20), Qt::AlignRight)
        ->setBuddy(page.Add(CreateAmountField(window_.OpeningBalanceField, &page),
                            OnPage(170, 155, 100, 22)));
    page.AddNamed(u"Währung"_s, CreatePopupMenu(window_.CurrencyPopup, &page),
                  OnPage(282, 155, 80, 20));
    QLabel *caption = page.AddText(u"Label18"_s, u"Datum des Eröffnungsbestandes:"_s,
                                   OnPage(19, 180, 141, 60), Qt::AlignRight);
    caption->setWordWrap(true);
    caption->setBuddy(page.Add(new DateControlView(window_.OpeningDate, locale, &page),
                               OnPage(171, 188, 100, 23)));
    AddExplanation(page, u"Label21"_s,
                   u"Geben Sie hier den Kassenbestand an und ab wann das Konto geführt wird."_s,
                   OnPage(171, 223, 373, 34));
}

void WelcomeWindowView::AddChoices() {
    AddChoice(window_.DemoCanvas,
              {0,
               {u"Label4"_s, u"Demo Datenbank"_s, 12},
               {u"Label9"_s, u"Testen Sie Zolmark mit einer Beispiel-Datenbank.\n"_s, 35}});
    // It has the focus: Return alone begins a new database.
    AddChoice(window_.NewCanvas,
              {100,
               {u"Label5"_s, u"Neue Datenbank"_s, 111},
               {u"Label10"_s, u"Erstellen Sie eine neue lokale Datenbank."_s, 134}})
        ->setFocus();
    AddChoice(window_.ManualCanvas,
              {200,
               {u"Label8"_s, u"Handbuch"_s, 211},
               {u"Label12"_s,
                u"Verschaffen Sie sich einen Überblick über die Funk-tionen von Zolmark."_s, 235}});
}

QWidget *WelcomeWindowView::AddChoice(TLXCanvasButton &canvas, const Choice &choice) {
    const QRect rect(565, choice.top, 245, 100);
    auto *view = new CanvasView(canvas, form_);
    form_->Add(view, rect);
    QAbstractButton *button = view->AddButton(choice.title.text, {{0, 0}, rect.size()});
    // Without the hyphen of the line break, which is spoken.
    button->setAccessibleDescription(
        QString(choice.description.text).trimmed().replace(u"k-t"_s, u"kt"_s));
    const auto add = [this](const Text &text, int height, int fontSize, bool isBold) {
        QLabel *label = form_->AddText(text.name, text.text, {640, text.top, 162, height},
                                       Qt::AlignTop, fontSize, isBold);
        // Mouse events go to the canvas below.
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
        label->setWordWrap(true);
        return label;
    };
    add(choice.title, 20, 0, true)->setBuddy(button);
    const int height = choice.top + 99 - choice.description.top;
    SetTextColour(*add(choice.description, height, 12, false), strongText);
    return button;
}
