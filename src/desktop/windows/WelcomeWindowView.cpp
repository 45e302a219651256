#include "desktop/windows/WelcomeWindowView.h"

#include "desktop/controls/AmountFieldView.h"
#include "desktop/controls/CanvasButton.h"
#include "desktop/controls/CanvasView.h"
#include "desktop/controls/DateControlView.h"
#include "desktop/controls/FocusRing.h"
#include "desktop/controls/PagePanelView.h"
#include "desktop/controls/PopupMenuView.h"
#include "desktop/controls/TextFieldView.h"
#include "desktop/windows/GivenColours.h"
#include "desktop/windows/MenuBarView.h"
#include "desktop/windows/Room.h"
#include "setup/WelcomeWindow.h"

#include <QEvent>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize designSize{810, 300};
constexpr QRect placeOfPages{-1, -1, 566, 303};
constexpr Sheet::Frame frameOfPages{0xffffffff, 0xffb3b3b3};
constexpr Sheet::Frame frameOfTitle{0xfff1f1f1, 0xffcccccc};
constexpr QRgb strongText = 0xff333333;
constexpr QRgb softText = 0xff666666;

/// A place of the window on a page.
QRect OnPage(int left, int top, int width, int height) {
    return QRect(left, top, width, height).translated(-placeOfPages.topLeft());
}

void AddExplanation(Sheet &page, const QString &name, const QString &text, const QRect &place) {
    page.AddText(name, text, place, Qt::AlignTop)->setWordWrap(true);
}

} // namespace

WelcomeWindowView::WelcomeWindowView(WelcomeWindow &window, MenuItem &menuBar,
                                     const UserLocale &locale)
    : window_(window), sheet_(new Sheet(designSize, this)),
      pages_(new PagePanelView(window.PagePanel1, sheet_)) {
    setObjectName(u"WelcomeWindow"_s);
    setWindowTitle(u"Willkommen"_s);
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowCloseButtonHint);
    UseGivenColours(*this, 0xffffffff);
    sheet_->Add(pages_, placeOfPages);
    pages_->AddPage([this] { return Greeting(); });
    pages_->AddPage([this] { return CompanyPage(); });
    pages_->AddPage([this, &locale] { return CashBookPage(locale); });
    AddChoices();
    setMenuBar(new MenuBarView(menuBar, this));
    setCentralWidget(sheet_);
    DarkenFrames(*sheet_);
    new FocusRing(*this);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    UseDesktopFont(*sheet_, designSize);
    PutInTheMiddle(*this, sizeHint());
    connect(&window, &WelcomeWindow::Closed, this, &QWidget::close);
}

bool WelcomeWindowView::event(QEvent *event) {
    if (event->type() == QEvent::ApplicationFontChange) {
        UseDesktopFont(*sheet_, designSize);
    }
    return QMainWindow::event(event);
}

Sheet *WelcomeWindowView::NewPage(const QString &name) {
    auto *page = new Sheet(placeOfPages.size(), pages_);
    page->setObjectName(name);
    page->SetFrame(frameOfPages);
    return page;
}

QWidget *WelcomeWindowView::Greeting() {
    Sheet &page = *NewPage(u"Rectangle1"_s);
    QLabel *welcome = page.AddText(u"Label1"_s, u"Willkomen bei Zolmark"_s, OnPage(27, 9, 510, 36),
                                   Qt::AlignHCenter);
    SetTextColour(*page.SetLetters(welcome, 32, true), strongText);
    QLabel *purpose = page.AddText(u"Label2"_s,
                                   u"Einnahmen und Ausgabenverwaltung für \n"
                                   "Selbstständige und Freiberufler"_s,
                                   OnPage(27, 54, 510, 45), Qt::AlignHCenter);
    purpose->setWordWrap(true);
    SetTextColour(*page.SetLetters(purpose, 16), softText);
    page.AddNamed(u"Bild zur Begrüßung"_s, new CanvasView(window_.Canvas1, &page),
                  OnPage(31, 102, 513, 200));
    return &page;
}

QWidget *WelcomeWindowView::CompanyPage() {
    Sheet &page = *NewPage(u"Rectangle2"_s);
    auto *title = new Sheet({526, 41}, &page);
    title->setObjectName(u"Placard1"_s);
    title->SetFrame(frameOfTitle);
    title->SetLetters(
        title->AddText(u"Label13"_s, u"Firmendaten erfassen"_s, {53, 8, 406, 24}, Qt::AlignHCenter),
        18);
    page.Add(title, OnPage(19, 15, 526, 41));
    // In the order of the Tab key.
    page.AddText(u"Label17"_s, u"Name:"_s, OnPage(39, 77, 82, 20), Qt::AlignRight)
        ->setBuddy(
            page.Add(new TextFieldView(window_.CompanyField, &page), OnPage(136, 76, 300, 22)));
    page.AddNamed(u"Name, zweite Zeile"_s, new TextFieldView(window_.DepartmendField, &page),
                  OnPage(136, 106, 300, 22));
    page.AddText(u"Label3"_s, u"Strasse:"_s, OnPage(41, 138, 80, 20), Qt::AlignRight)
        ->setBuddy(
            page.Add(new TextFieldView(window_.StreetField, &page), OnPage(136, 137, 300, 22)));
    page.AddText(u"Label16"_s, u"Plz, Ort:"_s, OnPage(41, 170, 80, 20), Qt::AlignRight)
        ->setBuddy(page.AddNamed(u"Plz"_s, new TextFieldView(window_.ZipField, &page),
                                 OnPage(136, 169, 51, 22)));
    page.AddNamed(u"Ort"_s, new TextFieldView(window_.CityField, &page), OnPage(192, 169, 244, 22));
    page.AddText(u"Label15"_s, u"Telefon:"_s, OnPage(39, 200, 82, 20), Qt::AlignRight)
        ->setBuddy(
            page.Add(new TextFieldView(window_.PhoneField, &page), OnPage(136, 200, 300, 22)));
    AddExplanation(page, u"Label14"_s,
                   u"Die Firmenangaben können unter dem Menüpunkt Einstellungen jederzeit "
                   "verändert werden."_s,
                   OnPage(136, 232, 293, 53));
    page.AddButton(window_.ForwardButton, OnPage(456, 266, 80, 20));
    return &page;
}

QWidget *WelcomeWindowView::CashBookPage(const UserLocale &locale) {
    Sheet &page = *NewPage(u"Rectangle3"_s);
    // In the order of the Tab key.
    page.AddNamed(u"Kontorahmen"_s, new PopupMenuView(window_.AccountsPopup, &page),
                  OnPage(171, 19, 372, 20));
    AddExplanation(page, u"Label11"_s,
                   u"Wählen Sie den Kontorahmen den Sie in Ihrer Buchhaltung benutzen, oder "
                   "alternativ einen leeren Kontorahmen. Sie können später selbst weitere Konten "
                   "hinzufügen."_s,
                   OnPage(171, 48, 365, 53));
    page.AddText(u"Label20"_s, u"Kontobezeichnung:"_s, OnPage(40, 126, 120, 20), Qt::AlignRight)
        ->setBuddy(page.Add(new TextFieldView(window_.AccountNameField, &page),
                            OnPage(170, 125, 249, 22)));
    auto *account = new TextFieldView(window_.AccountField, &page);
    account->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    page.AddText(u"Label6"_s, u"Konto:"_s, OnPage(433, 126, 45, 20), Qt::AlignRight)
        ->setBuddy(page.Add(account, OnPage(487, 125, 58, 22)));
    AddOpeningBalance(page, locale);
    page.AddButton(window_.BackButton, OnPage(341, 266, 80, 20));
    page.AddButton(window_.SaveButton, OnPage(433, 266, 110, 20));
    return &page;
}

void WelcomeWindowView::AddOpeningBalance(Sheet &page, const UserLocale &locale) {
    page.AddText(u"Label19"_s, u"Eröffnungsbestand:"_s, OnPage(40, 156, 120, 20), Qt::AlignRight)
        ->setBuddy(page.Add(new AmountFieldView(window_.OpeningBalanceField, &page),
                            OnPage(170, 155, 100, 22)));
    page.AddNamed(u"Währung"_s, new PopupMenuView(window_.CurrencyPopup, &page),
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
    // Who only presses Return gets a new book.
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
    const QRect place(565, choice.top, 245, 100);
    auto *view = new CanvasView(canvas, sheet_);
    sheet_->Add(view, place);
    QAbstractButton *button = view->AddButton(choice.title.text, {{0, 0}, place.size()});
    button->setAccessibleDescription(choice.description.text.trimmed());
    const auto add = [this](const Text &text, int height) {
        QLabel *label =
            sheet_->AddText(text.name, text.text, {640, text.top, 162, height}, Qt::AlignTop);
        // The button below answers the mouse.
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
        label->setWordWrap(true);
        return label;
    };
    sheet_->SetLetters(add(choice.title, 20), 0, true)->setBuddy(button);
    QLabel *description = add(choice.description, choice.top + 99 - choice.description.top);
    SetTextColour(*sheet_->SetLetters(description, 12), strongText);
    return button;
}
