#include "desktop/windows/WelcomeWindowView.h"
#include "setup/WelcomeWindow.h"
#include "support/MainWindowTest.h"

#include <QAccessible>

using namespace Qt::StringLiterals;

namespace {

/// Looks at each page of the welcome window and of the main window, each as it shows.
void ForEveryPage(const std::function<void(const QMainWindow &)> &look) {
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

using GeometryTest = MainWindowTest;

TEST_F(GeometryTest, StandsAsDesignedAndFollowsTheEdgesOfTheWindow) {
    // In a window of the design size: left, top, width and height, in points, and the edges that
    // the control keeps its distance to, where these are not the left and the top.
    const QString places =
        u"YearRect 549 15 511 40 TR, CashbookPopup 608 24 140 21 TR, MonthPopup 945 24 105 21 TR, "
        "CancelButton 978 110 82 20 TR, DateField 20 110 108 23, InputField 141 110 60 22, "
        "CategoryCombo 370 110 169 21, NoteField 626 110 277 22 LTR, ErrorLabel 154 135 448 18, "
        "SubmitButton 915 110 145 20 TR, CashList 20 157 1040 533 LTRB, "
        "AmountRect 760 702 300 55 RB, LastAmountLabel 947 729 100 20 RB, "
        "CompanyField 188 57 300 22, PhoneField 643 57 300 22 LTR, CurrencyCombo 643 212 95 20, "
        "CashbookList 20 353 329 340 LTB, CashaccountList 361 353 699 340 LTRB, "
        "CashBookAdd 20 697 60 29 LB, AccountsAdd 361 697 60 29 LB"_s;
    Open();
    view.resize(1100, 900);
    for (const int page : {1, 0}) {
        window.PagePanel1.SetValue(page); // Takes its size when it shows.
        QApplication::processEvents();
    }
    const QSize growth = view.centralWidget()->size() - QSize(1080, 770);
    for (const QString &entry : places.split(u", "_s)) {
        const QStringList words = entry.split(u' ');
        const auto &widget = Find<QWidget>(words[0]);
        const QRect place(words[1].toInt(), words[2].toInt(), words[3].toInt(), words[4].toInt());
        const QString locks = words.value(5, u"LT"_s);
        const int right = locks.contains(u'R') ? growth.width() : 0;
        const int bottom = locks.contains(u'B') ? growth.height() : 0;
        EXPECT_EQ(QRect(widget.mapTo(view.centralWidget(), QPoint()), widget.size()),
                  place.adjusted(locks.contains(u'L') ? 0 : right,
                                 locks.contains(u'T') ? 0 : bottom, right, bottom))
            << qPrintable(entry);
    }
}

TEST(EveryPage, ShowsItsTextsWholeInTheFontsOfTheDesktop) {
    const QFont before = QApplication::font();
    ForEveryPage([](const QMainWindow &window) {
        for (const int points : {8, 11}) {
            QApplication::setFont(QFont(u"DejaVu Sans"_s, points));
            QApplication::processEvents();
            for (const QWidget *widget : window.centralWidget()->findChildren<QWidget *>()) {
                const QString text = widget->property("text").toString();
                const int flags = widget->property("wordWrap").toBool() ? Qt::TextWordWrap : 0;
                const QSize needed =
                    widget->fontMetrics().boundingRect(widget->rect(), flags, text).size();
                // The largest title is higher than its place by what no letter of it needs.
                EXPECT_TRUE(!widget->isVisible() || text.isEmpty() ||
                            (needed.width() <= widget->width() &&
                             needed.height() <= widget->height() + 2 &&
                             widget->fontInfo().pixelSize() >= 11))
                    << qPrintable(text) << points;
            }
        }
    });
    QApplication::setFont(before);
}

TEST(EveryPage, CanBeReadUnderADarkTheme) {
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(0x30, 0x30, 0x30)));
    using enum QPalette::ColorRole;
    constexpr std::pair<QPalette::ColorRole, QPalette::ColorRole> pairs[] = {
        {WindowText, Window}, {Text, Base}, {PlaceholderText, Base}, {ButtonText, Button}};
    ForEveryPage([&pairs](const QWidget &window) {
        for (const QWidget *widget : window.findChildren<QWidget *>()) {
            for (const auto &[text, behind] : pairs) {
                const QPalette &palette = widget->palette();
                const int contrast =
                    qGray(palette.color(text).rgb()) - qGray(palette.color(behind).rgb());
                EXPECT_TRUE(std::abs(contrast) >= 110 || widget->objectName() == u"ErrorLabel"_s)
                    << contrast << qPrintable(widget->objectName()) << text;
            }
        }
    });
    QApplication::setPalette(before);
}

/// What assistive tools call the controls that Tab reaches, in its order.
QString TabOrder(const QWidget &window) {
    QStringList order;
    for (QWidget *each = window.nextInFocusChain(); each != &window;
         each = each->nextInFocusChain()) {
        if (each->isVisible() && each->isEnabled() && !each->focusProxy() &&
            (each->focusPolicy() & Qt::TabFocus)) {
            const QAccessibleInterface *item = QAccessible::queryAccessibleInterface(each);
            // The name of a combo box is its row here, and its caption tells what it is.
            if (item->role() == QAccessible::ComboBox) {
                item = item->relations(QAccessible::Label).value(0).first;
            }
            order.append(item->text(QAccessible::Name));
        }
    }
    return order.join(u", "_s);
}

TEST(EveryPage, TellsAssistiveToolsWhatTheKeysReach) {
    QStringList orders;
    ForEveryPage([&orders](const QWidget &window) { orders.append(TabOrder(window)); });
    EXPECT_EQ(orders.join(u'\n'),
              u"Demo Datenbank, Neue Datenbank, Handbuch\n"
              "Name:, Name, zweite Zeile, Strasse:, Plz, Ort, Telefon:, Weiter, "
              "Demo Datenbank, Neue Datenbank, Handbuch\n"
              "Kontorahmen, Kontobezeichnung:, Konto:, Eröffnungsbestand:, Währung, "
              "Datum des Eröffnungsbestandes:, Zurück, Übernehmen, "
              "Demo Datenbank, Neue Datenbank, Handbuch\n"
              "Datum, Einnahme, Ausgabe, Steuer, Art der Einnahme, Beleg-Nr., Notiz, "
              "Eintragen, Buchungen, Jahr/Monat, Monat, Kasse, "
              "Neu, Drucken, Einstellungen\n"
              "Firma:, Zusatz:, Vorname:, Nachname:, Strasse:, Plz, Ort, Telefon:, "
              "Fax:, E-Mail:, Homepage:, Ust. Nr.:, Kassen, Buchungskonten, "
              "Kasse hinzufügen, Kasse entfernen, Buchungskonto hinzufügen, "
              "Buchungskonto entfernen, Neu, Drucken, Kassenbuch"_s);
}

} // namespace
