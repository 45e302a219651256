#include "desktop/look/WindowPlacement.h"
#include "desktop/windows/Form.h"
#include "desktop/windows/WelcomeWindowView.h"
#include "setup/WelcomeWindow.h"
#include "support/MainWindowTest.h"

#include <set>
#include <span>

/// Calls a function for each page of the welcome window and of the main window, while the page is
/// shown.
static void ForEveryPage(const std::function<void(const QMainWindow &)> &check) {
    TestEnvironment env;
    WelcomeWindow welcome(env.app);
    MainMenuBar menuBar;
    WelcomeWindowView welcomeView(welcome, menuBar, env.app.Locale());
    welcomeView.show();
    for (const int page : {0, 1, 2}) {
        welcome.PagePanel1.SetValue(page);
        check(welcomeView);
    }
    MainWindow window(env.app);
    MainWindowView view(window, env.app.Locale(), env.app.Resources());
    window.Event_Open();
    view.resize(1100, 900);
    view.show();
    check(view);
    window.MenuAction("preferences");
    check(view);
}

/// The geometry of a control in a window of the design size, in points; its look: the beginning of
/// its text, = and the buddy of a label, > for right-aligned, | for centred, ^ for top-aligned, ~
/// for word wrap, ! for bold; and the edges to which it keeps its distance when the window is
/// resized.
struct ExpectedControl {
    const char *name;
    QRect geometry;
    const char16_t *look = u"";
    Qt::Edges locks = LT;
};

static QString Look(const QWidget &widget) {
    QString look = widget.property("text").toString().left(6).trimmed();
    look += widget.property("placeholderText").toString();
    const auto *label = qobject_cast<const QLabel *>(&widget);
    if (label && label->buddy()) {
        look += u'=' + label->buddy()->objectName();
    }
    const auto alignment = Qt::Alignment::fromInt(widget.property("alignment").toInt());
    look += alignment & Qt::AlignRight ? ">" : alignment & Qt::AlignHCenter ? "|" : QString();
    look += (alignment & Qt::AlignTop ? "^" : QString()) +
            (widget.property("wordWrap").toBool() ? "~" : QString());
    return look + (widget.font().bold() ? "!" : QString());
}
// Two or three controls per line.
// clang-format off
constexpr ExpectedControl mainControls[] = {
    {"AmountLabel(1)", {805, 707, 130, 20}, u"Anfang=OpeningBalanceLabel>", RB}, {"CategoryCombo", {370, 110, 169, 21}},
    {"AmountLabel(0)", {805, 729, 130, 20}, u"Aktuel=LastAmountLabel>", RB}, {"FaxField", {643, 87, 300, 22}, u"", LTR},
    {"Prefs(0)", {521, 246, 110, 20}, u"Konten=AccountFrameCombo>"}, {"LastAmountLabel", {947, 729, 100, 20}, u">", RB},
    {"CategoryLabel", {370, 86, 148, 20}, u"Art de=CategoryCombo"}, {"Prefs(5)", {521, 87, 110, 20}, u"Fax:=FaxField>"},
    {"CashLabel(1)", {552, 86, 60, 20}, u"Beleg-=SaleNumberField"}, {"ChangeButton", {915, 110, 59, 20}, u"Ändern", TR},
    {"Prefs(12)", {66, 87, 110, 20}, u"Zusatz=DepartmentField>"}, {"Prefs(8)", {66, 212, 110, 20}, u"Plz, O=ZipField>"},
    {"Prefs(11)", {66, 117, 110, 20}, u"Vornam=FirstnameField>"}, {"SubmitButton", {915, 110, 145, 20}, u"Eintra", TR},
    {"OpeningBalanceLabel", {947, 707, 100, 20}, u"100,00>", RB}, {"CashaccountList", {361, 353, 699, 340}, u"", LTRB},
    {"Prefs(10)", {66, 148, 110, 20}, u"Nachna=LastnameField>"}, {"Label2", {783, 24, 74, 20}, u"Jahr/M=YearPopup", TR},
    {"Prefs(3)", {521, 148, 110, 20}, u"Homepa=HomepageField>"}, {"CashLabel(6)", {20, 86, 80, 20}, u"Datum=DateField"},
    {"Prefs(1)", {521, 212, 110, 20}, u"Währun=CurrencyCombo>"}, {"Prefs(2)", {521, 180, 110, 20}, u"Ust. N=UIDField>"},
    {"CashLabel(4)", {211, 86, 58, 20}, u"Ausgab=OutputField"}, {"Prefs(6)", {521, 57, 110, 20}, u"Telefo=PhoneField>"},
    {"Label1", {560, 24, 46, 20}, u"Kasse=CashbookPopup", TR}, {"CashLabel(0)", {626, 86, 137, 20}, u"Notiz=NoteField"},
    {"Prefs(13)", {66, 57, 110, 20}, u"Firma:=CompanyField>"}, {"Prefs(4)", {521, 117, 110, 20}, u"E-Mail=EMailField>"},
    {"CashLabel(5)", {141, 86, 62, 20}, u"Einnah=InputField"}, {"Prefs(9)", {66, 180, 110, 20}, u"Strass=StreetField>"},
    {"CashLabel(3)", {281, 86, 58, 20}, u"Steuer=TaxCombo"}, {"CancelButton", {978, 110, 82, 20}, u"Abbrec", TR},
    {"HomepageField", {643, 148, 300, 22}, u"", LTR}, {"CashbookList", {20, 353, 329, 340}, u"", LTB},
    {"CashbookPopup", {608, 24, 140, 21}, u"", TR}, {"OutputField", {211, 110, 60, 22}, u"in €>"},
    {"EMailField", {643, 117, 300, 22}, u"", LTR}, {"CashList", {20, 157, 1040, 533}, u"", LTRB},
    {"PhoneField", {643, 57, 300, 22}, u"", LTR}, {"DateField", {20, 110, 108, 23}, u"15.03."},
    {"InputField", {141, 110, 60, 22}, u"in €>"}, {"NoteField", {626, 110, 277, 22}, u"", LTR},
    {"AccountsAdd", {361, 697, 60, 29}, u"", LB}, {"AmountRect", {760, 702, 300, 55}, u"", RB},
    {"MonthPopup", {945, 24, 105, 21}, u"", TR}, {"UIDField", {643, 180, 300, 22}, u"", LTR},
    {"CashBookAdd", {20, 697, 60, 29}, u"", LB}, {"YearRect", {549, 15, 511, 40}, u"", TR},
    {"YearPopup", {865, 24, 70, 21}, u"", TR}, {"AccountFrameCombo", {643, 246, 95, 20}},
    {"DepartmentField", {188, 87, 300, 22}}, {"SaleNumberField", {552, 110, 60, 22}}, {"TaxCombo", {281, 110, 80, 21}},
    {"FirstnameField", {188, 117, 300, 22}}, {"LastnameField", {188, 148, 300, 22}}, {"ErrorRect", {141, 135, 471, 20}},
    {"CurrencyCombo", {643, 212, 95, 20}}, {"CompanyField", {188, 57, 300, 22}, u"Muster"}, {"StreetField", {188, 180, 300, 22}},
    {"CityField", {247, 212, 241, 22}}, {"ZipField", {188, 212, 51, 22}}};

constexpr ExpectedControl welcomeControls[] = {
    {"Label19", {40, 156, 120, 20}, u"Eröffn=OpeningBalanceField>"}, {"ForwardButton", {456, 266, 80, 20}, u"Weiter"},
    {"Label20", {40, 126, 120, 20}, u"Kontob=AccountNameField>"}, {"Label17", {39, 77, 82, 20}, u"Name:=CompanyField>"},
    {"Label6", {433, 126, 45, 20}, u"Konto:=AccountField>"}, {"Label18", {19, 180, 141, 60}, u"Datum=OpeningDate>~"},
    {"Label3", {41, 138, 80, 20}, u"Strass=StreetField>"}, {"OpeningBalanceField", {170, 155, 100, 22}, u"0,00"},
    {"Label15", {39, 200, 82, 20}, u"Telefo=PhoneField>"}, {"AccountNameField", {170, 125, 249, 22}, u"Kasse"},
    {"Label16", {41, 170, 80, 20}, u"Plz, O=ZipField>"}, {"OpeningDate", {171, 188, 100, 23}, u"01.01."},
    {"Label5", {640, 111, 162, 20}, u"Neue D=^~!"}, {"AccountField", {487, 125, 58, 22}, u"1000>"},
    {"Label8", {640, 211, 162, 20}, u"Handbu=^~!"}, {"SaveButton", {433, 266, 110, 20}, u"Überne"},
    {"Label4", {640, 12, 162, 20}, u"Demo D=^~!"}, {"Label10", {640, 134, 162, 65}, u"Erstel^~"},
    {"Label14", {136, 232, 293, 53}, u"Die Fi^~"}, {"Label12", {640, 235, 162, 64}, u"Versch^~"},
    {"BackButton", {341, 266, 80, 20}, u"Zurück"}, {"Label11", {171, 48, 365, 53}, u"Wählen^~"},
    {"Label21", {171, 223, 373, 34}, u"Geben^~"}, {"Label9", {640, 35, 162, 64}, u"Testen^~"},
    {"Label13", {72, 23, 406, 24}, u"Firmen|"}, {"Label2", {27, 54, 510, 45}, u"Einnah|~"},
    {"Label1", {27, 9, 510, 36}, u"Willko|!"}, {"DepartmendField", {136, 106, 300, 22}},
    {"ManualCanvas", {565, 200, 245, 100}}, {"AccountsPopup", {171, 19, 372, 20}}, {"CompanyField", {136, 76, 300, 22}},
    {"CurrencyPopup", {282, 155, 80, 20}}, {"StreetField", {136, 137, 300, 22}}, {"NewCanvas", {565, 100, 245, 100}},
    {"PhoneField", {136, 200, 300, 22}}, {"DemoCanvas", {565, 0, 245, 100}}, {"CityField", {192, 169, 244, 22}},
    {"Canvas1", {31, 102, 513, 200}}, {"ZipField", {136, 169, 51, 22}}, {"Placard1", {19, 15, 526, 41}}};
// clang-format on

TEST(EveryPage, ScalesItsLayoutWithTheWindowAndTheFont) {
    std::set<const ExpectedControl *> seen;
    ForEveryPage([&seen](const QMainWindow &window) {
        QWidget &pages = *window.centralWidget();
        const bool isMain = window.objectName() == "MainWindow";
        for (const int factor : {1, 2}) {
            pages.setFont(
                QFont("DejaVu Sans", 11 * factor)); // 11 is the largest font size of the design.
            QApplication::processEvents();
            const QSize extraSize = isMain ? pages.size() - QSize(1080, 770) * factor : QSize(0, 0);
            for (const ExpectedControl &each :
                 isMain ? std::span<const ExpectedControl>(mainControls) : welcomeControls) {
                const auto *found = window.findChild<QWidget *>(QLatin1String(each.name));
                // A page is created and resized when it is shown.
                if (!found || !found->parentWidget()->isVisible() ||
                    (factor == 2 && (each.locks != LT || found->isHidden()))) {
                    continue;
                }
                const QWidget &widget = *found;
                const int right = each.locks & Qt::RightEdge ? extraSize.width() : 0;
                const int bottom = each.locks & Qt::BottomEdge ? extraSize.height() : 0;
                const QRect geometry(each.geometry.topLeft() * factor,
                                     each.geometry.size() * factor);
                EXPECT_EQ(QRect(widget.mapTo(&pages, QPoint()), widget.size()),
                          geometry.adjusted(each.locks & Qt::LeftEdge ? 0 : right,
                                            each.locks & Qt::TopEdge ? 0 : bottom, right, bottom))
                    << each.name << factor;
                EXPECT_EQ(Look(widget), QStringView(each.look)) << each.name;
                seen.insert(&each);
            }
            for (const QTableView *list : window.findChildren<QTableView *>()) {
                EXPECT_EQ(list->verticalHeader()->defaultSectionSize(), 18 * factor);
                EXPECT_TRUE(list->columnWidth(0) == 115 * factor ||
                            list->objectName() != "CashList");
            }
        }
    });
    EXPECT_EQ(seen.size(), std::size(mainControls) + std::size(welcomeControls));
}

TEST(EveryPage, LooksTheSameWithPixelAndPointSizes) {
    const QFont before = QApplication::font();
    QStringList looks[2];
    for (QStringList &look : looks) {
        QFont font("DejaVu Sans", 18);
        if (&look == &looks[1]) {
            font.setPixelSize(24);
        } // The same size at 96 dpi.
        QApplication::setFont(font);
        ForEveryPage([&look, &font](const QMainWindow &window) {
            window.centralWidget()->setFont(font); // The tests' screen is too small for this size.
            QApplication::processEvents();
            for (const QWidget *each : window.centralWidget()->findChildren<QWidget *>()) {
                look.append(u"%1 %2 %3 of %4"_s.arg(each->objectName())
                                .arg(each->width())
                                .arg(each->height())
                                .arg(each->fontInfo().pixelSize()));
            }
        });
    }
    QApplication::setFont(before);
    EXPECT_EQ(looks[0], looks[1]);
}

TEST(EveryPage, LimitsItsFontSizeToTheScreen) {
    struct Case {
        QSize minimum, bars;
        int pixels;
    };
    QWidget pages;
    const QFont before = QApplication::font();
    QApplication::setFont(
        QFont("DejaVu Sans", 24)); // 32 pixels, 2.18 times the largest font size of the design.
    const QSize available = AvailableSize(pages), half = available / 2;
    for (const Case &each :
         {Case{half / 2, {}, 32}, Case{half, {}, 29}, Case{{available.width(), 9}, {}, 14},
          Case{{9, half.height()}, {0, half.height()}, 14}, Case{available * 2, {}, 14}}) {
        UseDesktopFont(pages, each.minimum, each.bars);
        EXPECT_EQ(pages.fontInfo().pixelSize(), each.pixels) << each.minimum.width();
    }
    QApplication::setFont(before);
}

TEST(EveryPage, ShowsUncutTextsInEveryFontSize) {
    const QFont before = QApplication::font();
    ForEveryPage([](const QMainWindow &window) {
        for (const int points : {8, 11}) {
            QApplication::setFont(QFont("DejaVu Sans", points));
            QApplication::processEvents();
            for (const QWidget *each : window.centralWidget()->findChildren<QWidget *>()) {
                const QString text = each->property("text").toString();
                const int flags = each->property("wordWrap").toBool() ? Qt::TextWordWrap : 0;
                const QSize needed =
                    each->fontMetrics().boundingRect(each->rect(), flags, text).size();
                // The font of the largest title is 2 pixels higher than the label, its characters
                // are not.
                const QRect area = QRect(QPoint(), each->size()).adjusted(0, 0, 0, 2);
                EXPECT_TRUE(!each->isVisible() || text.isEmpty() ||
                            (area.contains(QRect(QPoint(), needed)) &&
                             each->fontInfo().pixelSize() >= 11 &&
                             (each->font().stretch() == 0 || each->font().stretch() >= 85)))
                    << text << points;
            }
        }
    });
    QApplication::setFont(before);
}

/// Returns the accessible names of the controls in tab order.
static QString TabOrder(const QWidget &window) {
    QStringList order;
    for (QWidget *each = window.nextInFocusChain(); each != &window;
         each = each->nextInFocusChain()) {
        if (each->isVisible() && each->isEnabled() && !each->focusProxy() &&
            (each->focusPolicy() & Qt::TabFocus)) {
            const QAccessibleInterface *item = QAccessible::queryAccessibleInterface(each);
            // The accessible name of a combo box is its current row; its label describes it.
            if (item->role() == QAccessible::ComboBox) {
                item = item->relations(QAccessible::Label).value(0).first;
            }
            order.append(item->text(QAccessible::Name));
            EXPECT_NE(item->text(QAccessible::Description), order.last())
                << "the description repeats the name";
        }
    }
    return order.join(", ");
}

TEST(EveryPage, NamesItsControlsInTabOrder) {
    QStringList orders;
    ForEveryPage([&orders](const QWidget &window) { orders.append(TabOrder(window)); });
    // A page is created when it is first shown: its controls come last in the focus chain.
    EXPECT_EQ(orders.join(u'\n'),
              "Demo Datenbank, Neue Datenbank, Handbuch\n"
              "Demo Datenbank, Neue Datenbank, Handbuch, "
              "Name:, Name, zweite Zeile, Strasse:, Plz, Ort, Telefon:, Weiter\n"
              "Demo Datenbank, Neue Datenbank, Handbuch, "
              "Kontorahmen, Kontobezeichnung:, Konto:, Eröffnungsbestand:, Währung, "
              "Datum des Eröffnungsbestandes:, Zurück, Übernehmen\n"
              "Datum, Einnahme, Ausgabe, Steuer, Art der Einnahme, Beleg-Nr., Notiz, "
              "Eintragen, Buchungen, Jahr/Monat, Monat, Kasse, Neu, Drucken, Einstellungen\n"
              "Neu, Drucken, Kassenbuch, "
              "Firma:, Zusatz:, Vorname:, Nachname:, Strasse:, Plz, Ort, Telefon:, "
              "Fax:, E-Mail:, Homepage:, Ust. Nr.:, Kassen, Buchungskonten, "
              "Kasse hinzufügen, Kasse entfernen, Buchungskonto hinzufügen, "
              "Buchungskonto entfernen");
}
