#include "support/EveryPage.h"

#include "shell/qt/PopupMenuView.h"

#include <QAccessible>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

void ExpectFits(const QWidget &widget, const QString &text, QSize place, int flags = 0) {
    const QSize needed = widget.fontMetrics().boundingRect(QRect({}, place), flags, text).size();
    // The largest title is higher than its place by what no letter of it needs.
    EXPECT_TRUE(needed.width() <= place.width() && needed.height() <= place.height() + 2)
        << qPrintable(text) << widget.fontInfo().pixelSize();
    EXPECT_GE(widget.fontInfo().pixelSize(), 11) << "hard to read";
}

/// Expects that each given text shows whole.
void ExpectWhole(const QWidget &window) {
    for (const auto *label : window.findChildren<const QLabel *>()) {
        if (!label->isHidden()) {
            ExpectFits(*label, label->text(), label->size(),
                       label->wordWrap() ? Qt::TextWordWrap : 0);
        }
    }
    for (const auto *button : window.findChildren<const QPushButton *>()) {
        ExpectFits(*button, button->text(), button->size());
        EXPECT_LE(button->fontInfo().pixelSize(), QFontInfo(QApplication::font()).pixelSize());
    }
    for (const auto *menu : window.findChildren<const PopupMenuView *>()) {
        for (int row = 0; row < menu->count(); ++row) {
            ExpectFits(*menu, menu->itemText(row), menu->size() - QSize(25, 0)); // The arrow.
        }
    }
    for (const auto *heading : window.findChildren<const QHeaderView *>()) {
        for (int column = 0; heading->isVisible() && column < heading->count(); ++column) {
            ExpectFits(*heading, heading->model()->headerData(column, Qt::Horizontal).toString(),
                       {heading->sectionSize(column) - 4, heading->height()});
        }
    }
}

TEST(EveryPage, ShowsItsTextsWholeInTheFontsOfTheDesktop) {
    const QFont before = QApplication::font();
    const auto use = [](int points) { QApplication::setFont(QFont(u"DejaVu Sans"_s, points)); };
    const std::pair<int, int> fonts[] = {{9, 10}, {10, 9}, {11, 8}, {8, 11}};
    for (const auto &[first, then] : fonts) {
        use(first);
        ForEveryPage([&use, points = first, other = then](const QWidget &window) {
            ExpectWhole(window);
            use(other); // The user chose another for the desktop.
            QApplication::processEvents();
            ExpectWhole(window);
            use(points);
            QApplication::processEvents();
        });
    }
    QApplication::setFont(before);
}

double Luminance(const QColor &colour) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

void ExpectContrast(const QColor &text, const QColor &behind, const QWidget &widget) {
    const double ratio = (Luminance(text) + 0.05) / (Luminance(behind) + 0.05);
    EXPECT_GE(std::max(ratio, 1 / ratio), 4.5)
        << qPrintable(widget.objectName() + text.name() + behind.name());
}

TEST(EveryPage, CanBeReadUnderADarkTheme) {
    const QPalette before = QApplication::palette();
    using enum QPalette::ColorRole;
    constexpr std::pair<QPalette::ColorRole, QPalette::ColorRole> pairs[] = {
        {WindowText, Window},       {Text, Base},         {Text, AlternateBase},
        {PlaceholderText, Base},    {ButtonText, Button}, {HighlightedText, Highlight},
        {ToolTipText, ToolTipBase}, {Link, Base}};
    const auto check = [&pairs](const QWidget &widget, const QPalette &palette) {
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            for (const auto &[text, behind] : pairs) {
                ExpectContrast(palette.color(group, text), palette.color(group, behind), widget);
            }
            // Behind lists and frames.
            for (const QRgb given : {0xffd2edf5, 0xffececec, 0xfff1f1f1}) {
                ExpectContrast(palette.color(group, Text), given, widget);
                ExpectContrast(palette.color(group, WindowText), given, widget);
            }
        }
    };
    QApplication::setPalette(QPalette(QColor(0x30, 0x30, 0x30)));
    ForEveryPage([&](const QWidget &window) {
        check(window, QApplication::palette()); // Menus and tips have it.
        for (const QWidget *widget : window.findChildren<QWidget *>()) {
            if (widget->objectName() != u"ErrorLabel"_s) {
                check(*widget, widget->palette());
            }
        }
    });
    QApplication::setPalette(before);
}

/// What Tab reaches, in its order: the letter of its kind and what assistive tools call it.
QString TabOrder(const QWidget &window) {
    const QHash<QAccessible::Role, QString> kinds = {{QAccessible::EditableText, u"T "_s},
                                                     {QAccessible::ComboBox, u"C "_s},
                                                     {QAccessible::Button, u"B "_s},
                                                     {QAccessible::Table, u"L "_s}};
    QStringList order;
    for (QWidget *each = window.nextInFocusChain(); each != &window;
         each = each->nextInFocusChain()) {
        if (each->isVisible() && each->isEnabled() && !each->focusProxy() &&
            (each->focusPolicy() & Qt::TabFocus)) {
            const QAccessibleInterface *item = QAccessible::queryAccessibleInterface(each);
            const QAccessible::Role role = item->role();
            // The name of a combo box is its row here, and its caption tells what it is.
            for (const auto &[caption, relation] : item->relations(QAccessible::Label)) {
                item = role == QAccessible::ComboBox ? caption : item;
            }
            order.append(kinds.value(role) + item->text(QAccessible::Name));
        }
    }
    return order.join(u", "_s);
}

TEST(EveryPage, TellsAssistiveToolsWhatTheKeysReach) {
    QStringList orders;
    ForEveryPage([&orders](const QWidget &window) { orders.append(TabOrder(window)); });
    EXPECT_EQ(orders.join(u'\n'),
              u"B Demo Datenbank, B Neue Datenbank, B Handbuch\n"
              "T Name:, T Name, zweite Zeile, T Strasse:, T Plz, T Ort, T Telefon:, B Weiter, "
              "B Demo Datenbank, B Neue Datenbank, B Handbuch\n"
              "C Kontorahmen, T Kontobezeichnung:, T Konto:, T Eröffnungsbestand:, C Währung, "
              "T Datum des Eröffnungsbestandes:, B Zurück, B Übernehmen, "
              "B Demo Datenbank, B Neue Datenbank, B Handbuch\n"
              "T Datum, T Einnahme, T Ausgabe, C Steuer, C Art der Einnahme, T Beleg-Nr., T Notiz, "
              "B Eintragen, L Buchungen, C Jahr/Monat, C Monat, C Kasse, "
              "B Neu, B Drucken, B Einstellungen\n"
              "T Datum, T Einnahme, C Steuer, C Art der Einnahme, T Beleg-Nr., T Notiz, "
              "B Abbrechen, B Ändern, L Buchungen, C Jahr/Monat, C Monat, C Kasse, "
              "B Neu, B Drucken, B Einstellungen\n"
              "T Firma:, T Zusatz:, T Vorname:, T Nachname:, T Strasse:, T Plz, T Ort, T Telefon:, "
              "T Fax:, T E-Mail:, T Homepage:, T Ust. Nr.:, L Kassen, L Buchungskonten, "
              "B Kasse hinzufügen, B Kasse entfernen, B Buchungskonto hinzufügen, "
              "B Buchungskonto entfernen, B Neu, B Drucken, B Kassenbuch"_s);
}

} // namespace
