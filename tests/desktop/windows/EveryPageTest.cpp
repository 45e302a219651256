#include "desktop/windows/LockLayout.h"
#include "desktop/windows/Room.h"
#include "desktop/windows/WelcomeWindowView.h"
#include "setup/WelcomeWindow.h"
#include "support/MainWindowTest.h"

#include <QAccessible>
#include <QHeaderView>
#include <QLabel>

#include <span>

/// Looks at each page of the welcome window and of the main window, each as it shows.
static void ForEveryPage(const std::function<void(const QMainWindow &)> &look) {
    Book book;
    WelcomeWindow welcome(book.app);
    MainMenuBar menuBar;
    WelcomeWindowView greeting(welcome, menuBar, book.app.Locale());
    greeting.show();
    for (const int page : {0, 1, 2}) {
        welcome.PagePanel1.SetValue(page);
        look(greeting);
    }
    MainWindow window(book.app);
    MainWindowView view(window, book.app);
    window.Event_Open();
    view.resize(1100, 900);
    view.show();
    look(view);
    window.MenuAction(u"preferences"_s);
    look(view);
}

/// Where a control stands in a window of the design size, in points, and the edges that it keeps its distance to when
/// the window grows.
struct Place {
    const char *name;
    QRect place;
    Qt::Edges locks = LT;
};

constexpr Place mainPlaces[] = {
    {"YearRect", {549, 15, 511, 40}, TR},        {"CashbookPopup", {608, 24, 140, 21}, TR},
    {"MonthPopup", {945, 24, 105, 21}, TR},      {"CancelButton", {978, 110, 82, 20}, TR},
    {"DateField", {20, 110, 108, 23}},           {"InputField", {141, 110, 60, 22}},
    {"CategoryCombo", {370, 110, 169, 21}},      {"NoteField", {626, 110, 277, 22}, LTR},
    {"ErrorLabel", {154, 135, 448, 18}},         {"SubmitButton", {915, 110, 145, 20}, TR},
    {"CashList", {20, 157, 1040, 533}, LTRB},    {"AmountRect", {760, 702, 300, 55}, RB},
    {"AmountLabel(0)", {805, 729, 130, 20}, RB}, {"LastAmountLabel", {947, 729, 100, 20}, RB},
    {"CompanyField", {188, 57, 300, 22}},        {"Prefs(9)", {66, 180, 110, 20}},
    {"PhoneField", {643, 57, 300, 22}, LTR},     {"CurrencyCombo", {643, 212, 95, 20}},
    {"CashbookList", {20, 353, 329, 340}, LTB},  {"CashaccountList", {361, 353, 699, 340}, LTRB},
    {"CashBookAdd", {20, 697, 60, 29}, LB},      {"AccountsAdd", {361, 697, 60, 29}, LB}};

constexpr Place welcomePlaces[] = {
    {"Label2", {27, 54, 510, 45}},        {"Canvas1", {31, 102, 513, 200}},       {"Placard1", {19, 15, 526, 41}},
    {"CompanyField", {136, 76, 300, 22}}, {"Label14", {136, 232, 293, 53}},       {"OpeningDate", {171, 188, 100, 23}},
    {"SaveButton", {433, 266, 110, 20}},  {"ManualCanvas", {565, 200, 245, 100}}, {"Label12", {640, 235, 162, 64}}};

TEST(EveryPage, StandsAsDesignedWithItsCaptionsAndFollowsTheEdgesOfTheWindow) {
    QStringList captions;
    ForEveryPage([&captions](const QMainWindow &window) {
        for (const QLabel *each : window.centralWidget()->findChildren<QLabel *>()) {
            if (each->isVisible() && !each->inherits("LabelView")) {
                const QString named = each->buddy() ? u'=' + each->buddy()->objectName() : QString();
                captions.append(each->text().left(12).simplified() + named);
            }
        }
        if (!window.findChild<QWidget *>(u"CompanyField"_s)->isVisible()) {
            return; // A page takes its size when it shows.
        }
        const bool isMain = window.objectName() == u"MainWindow"_s;
        for (const int times : {1, 2}) {
            window.centralWidget()->setFont(QFont(u"DejaVu Sans"_s, 11 * times)); // 11 is the largest of the design.
            QApplication::processEvents();
            const QSize size = window.centralWidget()->size();
            const QSize growth = isMain ? size - QSize(1080, 770) * times : QSize(0, 0);
            for (const Place &each : isMain ? std::span<const Place>(mainPlaces) : welcomePlaces) {
                const auto &widget = *window.findChild<QWidget *>(QLatin1String(each.name));
                const int right = each.locks & Qt::RightEdge ? growth.width() : 0;
                const int bottom = each.locks & Qt::BottomEdge ? growth.height() : 0;
                const QRect place(each.place.topLeft() * times, each.place.size() * times);
                EXPECT_TRUE(QRect(widget.mapTo(window.centralWidget(), QPoint()), widget.size()) ==
                                place.adjusted(each.locks & Qt::LeftEdge ? 0 : right,
                                               each.locks & Qt::TopEdge ? 0 : bottom, right, bottom) ||
                            (times == 2 && (!widget.isVisible() || each.locks != LT)))
                    << each.name << times;
            }
            for (const QTableView *list : window.findChildren<QTableView *>()) {
                EXPECT_EQ(list->verticalHeader()->defaultSectionSize(), 18 * times);
                EXPECT_TRUE(list->columnWidth(0) == 115 * times || list->objectName() != u"CashList"_s);
            }
        }
    });
    captions.removeDuplicates();
    const auto expected =
        u"Willkomen be, Einnahmen un, Demo Datenba=, Testen Sie Z, Neue Datenba=, Erstellen Si, Handbuch=, "
        "Verschaffen, Firmendaten, Name:=CompanyField, Strasse:=StreetField, Plz, Ort:=ZipField, "
        "Telefon:=PhoneField, Die Firmenan, Wählen Sie d, Kontobezeich=AccountNameField, Konto:=AccountField, "
        "Eröffnungsbe=OpeningBalanceField, Datum des Er=OpeningDate, Geben Sie hi, Datum=DateField, "
        "Einnahme=InputField, Ausgabe=OutputField, Steuer=TaxCombo, Beleg-Nr.=SaleNumberField, Notiz=NoteField, "
        "Jahr/Monat=YearPopup, Kasse=CashbookPopup, Anfangsbesta=OpeningBalanceLabel, "
        "Aktueller Be=LastAmountLabel, Firma:=CompanyField, Zusatz:=DepartmentField, Vorname:=FirstnameField, "
        "Nachname:=LastnameField, Fax:=FaxField, E-Mail:=EMailField, "
        "Homepage:=HomepageField, Ust. Nr.:=UIDField, Kontenrahmen=AccountFrameCombo, Währung:=CurrencyCombo"_s;
    EXPECT_EQ(captions.join(u", "_s), expected);
}

TEST(EveryPage, GrowsNoFurtherThanTheScreenLetsIt) {
    struct Case {
        QSize least, beside;
        int pixels;
    };
    QWidget pages;
    const QFont before = QApplication::font();
    QApplication::setFont(QFont(u"DejaVu Sans"_s, 24)); // 32 pixels, 2.18 times the largest of the design.
    const QSize room = Room(pages);
    const QSize half = room / 2;
    for (const Case &each : {Case{half / 2, {}, 32}, Case{half, {}, 29}, Case{{room.width(), 9}, {}, 14},
                             Case{{9, half.height()}, {0, half.height()}, 14}, Case{room * 2, {}, 14}}) {
        UseDesktopFont(pages, each.least, each.beside);
        EXPECT_EQ(pages.fontInfo().pixelSize(), each.pixels) << each.least.width();
    }
    QApplication::setFont(before);
}

TEST(EveryPage, ShowsItsTextsWholeInTheFontsOfTheDesktop) {
    const QFont before = QApplication::font();
    ForEveryPage([](const QMainWindow &window) {
        for (const int points : {8, 11}) {
            QApplication::setFont(QFont(u"DejaVu Sans"_s, points));
            QApplication::processEvents();
            for (const QWidget *each : window.centralWidget()->findChildren<QWidget *>()) {
                const QString text = each->property("text").toString();
                const int flags = each->property("wordWrap").toBool() ? Qt::TextWordWrap : 0;
                const auto needed = [&](const QFont &font) {
                    return QRect(QPoint(), QFontMetrics(font).boundingRect(each->rect(), flags, text).size());
                };
                // The largest title is higher than its place by what no letter of it needs.
                const QRect place = QRect(QPoint(), each->size()).adjusted(0, 0, 0, 2);
                if (each->isVisible() && !text.isEmpty()) {
                    EXPECT_TRUE(place.contains(needed(each->font()))) << qPrintable(text) << points;
                    EXPECT_GE(each->fontInfo().pixelSize(),
                              std::min(QFontInfo(each->parentWidget()->font()).pixelSize(), 12));
                    EXPECT_TRUE(each->font().stretch() == 0 || each->font().stretch() >= 85) << qPrintable(text);
                }
            }
        }
    });
    QApplication::setFont(before);
}

/// What assistive tools call the controls that Tab reaches, in its order.
static QString TabOrder(const QWidget &window) {
    QStringList order;
    for (QWidget *each = window.nextInFocusChain(); each != &window; each = each->nextInFocusChain()) {
        if (each->isVisible() && each->isEnabled() && !each->focusProxy() && (each->focusPolicy() & Qt::TabFocus)) {
            const QAccessibleInterface *item = QAccessible::queryAccessibleInterface(each);
            // The name of a combo box is its row here, and its caption tells what it is.
            if (item->role() == QAccessible::ComboBox) { item = item->relations(QAccessible::Label).value(0).first; }
            order.append(item->text(QAccessible::Name));
            EXPECT_NE(item->text(QAccessible::Description), order.last()) << "told twice";
        }
    }
    return order.join(u", "_s);
}

TEST(EveryPage, TellsAssistiveToolsWhatTheKeysReach) {
    QStringList orders;
    ForEveryPage([&orders](const QWidget &window) { orders.append(TabOrder(window)); });
    EXPECT_EQ(orders.join(u'\n'), u"Demo Datenbank, Neue Datenbank, Handbuch\n"
                                  "Name:, Name, zweite Zeile, Strasse:, Plz, Ort, Telefon:, Weiter, "
                                  "Demo Datenbank, Neue Datenbank, Handbuch\n"
                                  "Kontorahmen, Kontobezeichnung:, Konto:, Eröffnungsbestand:, Währung, "
                                  "Datum des Eröffnungsbestandes:, Zurück, Übernehmen, "
                                  "Demo Datenbank, Neue Datenbank, Handbuch\n"
                                  "Datum, Einnahme, Ausgabe, Steuer, Art der Einnahme, Beleg-Nr., Notiz, "
                                  "Eintragen, Buchungen, Jahr/Monat, Monat, Kasse, Neu, Drucken, Einstellungen\n"
                                  "Firma:, Zusatz:, Vorname:, Nachname:, Strasse:, Plz, Ort, Telefon:, "
                                  "Fax:, E-Mail:, Homepage:, Ust. Nr.:, Kassen, Buchungskonten, "
                                  "Kasse hinzufügen, Kasse entfernen, Buchungskonto hinzufügen, "
                                  "Buchungskonto entfernen, Neu, Drucken, Kassenbuch"_s);
}
