#include "desktop/look/WindowPlacement.h"
#include "desktop/windows/Form.h"
#include "desktop/windows/WelcomeWindowView.h"
#include "setup/WelcomeWindow.h"
#include "support/MainWindowTest.h"

#include <QAccessible>

/// Calls a function for each page of the welcome window and of the main window, while it is shown
/// in the size of its design.
static void ForEveryPage(const std::function<void(QMainWindow &)> &check) {
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
    view.show();
    view.resize(view.size() + QSize(1080, 770) - view.centralWidget()->size());
    QApplication::processEvents();
    check(view);
    window.MenuAction("preferences");
    check(view);
}

/// Calls a function for each visible form of a window.
static void ForEveryForm(const QWidget &window, const std::function<void(const Form &)> &check) {
    for (const auto *form : window.findChildren<Form *>()) {
        if (form->isVisible()) {
            check(*form);
        }
    }
}

static QList<QWidget *> VisibleChildren(const Form &form) {
    QList<QWidget *> children;
    for (QWidget *each : form.findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        if (each->isVisible()) {
            children.append(each);
        }
    }
    return children;
}

static void UseFont(int points) {
    QApplication::setFont(QFont("DejaVu Sans", points));
    QApplication::processEvents();
}

class EveryPage : public testing::Test {
protected:
    ~EveryPage() override { QApplication::setFont(fontBefore); }
    Q_DISABLE_COPY_MOVE(EveryPage)
    EveryPage() = default;

    const QFont fontBefore = QApplication::font();
};

TEST_F(EveryPage, KeepsItsControlsApartAndInsideTheirForm) {
    const auto check = [](const Form &form) {
        const QList<QWidget *> controls = VisibleChildren(form);
        for (const QWidget *each : controls) {
            SCOPED_TRACE(each->objectName());
            const QRect rect = each->geometry();
            EXPECT_TRUE(form.rect().adjusted(-1, -1, 1, 2).contains(rect));
            for (const QWidget *other : controls) {
                const QRect common = rect & other->geometry();
                // The texts of the welcome window's buttons lie on them.
                const bool isOneInside = common == rect || common == other->geometry();
                EXPECT_TRUE(common.isEmpty() || isOneInside) << other->objectName();
            }
        }
    };
    ForEveryPage([&check](QMainWindow &window) {
        ForEveryForm(window, check);
        window.resize(1500, 1100);
        QApplication::processEvents();
        ForEveryForm(window, check);
    });
}

/// Returns the margins of a form, and the names of the controls at its right and bottom margins.
static QString MarginsOf(const Form &form) {
    const QRect content = form.childrenRect();
    QString margins = QStringLiteral("%1 right, %2 bottom:")
                          .arg(form.width() - content.right())
                          .arg(form.height() - content.bottom());
    for (const QWidget *each : VisibleChildren(form)) {
        if (each->geometry().right() == content.right() ||
            each->geometry().bottom() == content.bottom()) {
            margins += u' ' + each->objectName();
        }
    }
    return margins;
}

TEST_F(EveryPage, KeepsItsMarginsWhenTheWindowGrows) {
    ForEveryPage([](QMainWindow &window) {
        QStringList before, after;
        ForEveryForm(window, [&](const Form &form) { before.append(MarginsOf(form)); });
        window.resize(window.size() + QSize(200, 150));
        QApplication::processEvents();
        ForEveryForm(window, [&](const Form &form) { after.append(MarginsOf(form)); });
        EXPECT_EQ(after, before);
    });
}

TEST_F(EveryPage, ShowsUncutTextsInEveryFontSize) {
    ForEveryPage([](const QMainWindow &window) {
        for (const int points : {9, 10, 11}) {
            UseFont(points);
            for (const QWidget *each : window.centralWidget()->findChildren<QWidget *>()) {
                const QString text = each->property("text").toString();
                if (text.isEmpty() || !each->isVisible()) {
                    continue;
                }
                SCOPED_TRACE(text);
                const int flags = each->property("wordWrap").toBool() ? Qt::TextWordWrap : 0;
                const QRect needed = each->fontMetrics().boundingRect(each->rect(), flags, text);
                EXPECT_LE(needed.width(), each->width());
                // The font of the title is 2 pixels higher than its label, its characters are not.
                EXPECT_LE(needed.height(), each->height() + 2);
                EXPECT_GE(each->fontInfo().pixelSize(), 11);
            }
        }
    });
}

TEST_F(EveryPage, LimitsItsFontSizeToTheScreen) {
    struct Case {
        QSize minimum, bars = {};
        int pixels;
    };
    QWidget pages;
    UseFont(24); // 32 pixels, 2.18 times the largest font size of the design.
    const QSize available = AvailableSize(pages);
    const QSize half = available / 2;
    const Case cases[] = {
        {.minimum = half / 2, .pixels = 32},
        {.minimum = half, .pixels = 29},
        {.minimum = {available.width(), 9}, .pixels = 14},
        {.minimum = {9, half.height()}, .bars = {0, half.height()}, .pixels = 14},
        {.minimum = available * 2, .pixels = 14},
    };
    for (const Case &each : cases) {
        UseDesktopFont(pages, each.minimum, each.bars);
        EXPECT_EQ(pages.fontInfo().pixelSize(), each.pixels) << each.minimum.width();
    }
}

TEST_F(EveryPage, LimitsALargeDesktopFont) {
    UseFont(40);
    ForEveryPage([](const QMainWindow &window) {
        const QWidget &pages = *window.centralWidget();
        EXPECT_EQ(pages.fontInfo().pixelSize(), 14) << "when the window is created";
        UseFont(9);
        UseFont(40);
        EXPECT_EQ(pages.fontInfo().pixelSize(), 14) << "when the font changes";
    });
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
            EXPECT_NE(item->text(QAccessible::Description), order.last()) << "read twice";
        }
    }
    return order.join(", ");
}

TEST_F(EveryPage, NamesItsControlsForScreenReadersInReadingOrder) {
    QStringList orders;
    ForEveryPage([&orders](const QWidget &window) { orders.append(TabOrder(window)); });
    // A page is created when it is first shown: its controls come last in the focus chain.
    const QStringList expected = {
        "Demo Datenbank, Neue Datenbank, Handbuch",
        "Demo Datenbank, Neue Datenbank, Handbuch, "
        "Name:, Name, zweite Zeile, Strasse:, Plz, Ort, Telefon:, Weiter",
        "Demo Datenbank, Neue Datenbank, Handbuch, "
        "Kontorahmen, Kontobezeichnung:, Konto:, Eröffnungsbestand:, Währung, "
        "Datum des Eröffnungsbestandes:, Zurück, Übernehmen",
        "Datum, Einnahme, Ausgabe, Steuer, Art der Einnahme, Beleg-Nr., Notiz, "
        "Eintragen, Buchungen, Jahr/Monat, Monat, Kasse, Neu, Drucken, Einstellungen",
        "Neu, Drucken, Kassenbuch, "
        "Firma:, Zusatz:, Vorname:, Nachname:, Strasse:, Plz, Ort, Telefon:, "
        "Fax:, E-Mail:, Homepage:, Ust. Nr.:, Kassen, Buchungskonten, "
        "Kasse hinzufügen, Kasse entfernen, Buchungskonto hinzufügen, Buchungskonto entfernen"};
    EXPECT_EQ(orders, expected);
}
