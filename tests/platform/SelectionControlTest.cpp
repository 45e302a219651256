#include "platform/ComboBox.h"
#include "platform/PopupMenu.h"
#include "support/GoogleTest.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

QString Shown(const SelectionControl &control) {
    return QString::number(control.ListIndex()) + u' ' + control.Text();
}

TEST(PopupMenu, FiresChangeInsideTheWriteAndOnlyOnAChange) {
    PopupMenu menu(u"YearPopup"_s);
    QStringList heard;
    QObject::connect(&menu, &PopupMenu::Change, &menu, [&] { heard.append(Shown(menu)); });
    menu.SetListIndex(0); // There is no such row yet.
    for (int filling = 0; filling < 2; ++filling) {
        menu.DeleteAllRows();
        EXPECT_EQ(Shown(menu), u"-1 "_s);
        menu.AddRow(u"2026"_s);
        menu.AddRow(u"2025"_s);
        menu.SetListIndex(1);
        menu.SetListIndex(1);
    }
    menu.SetListIndex(2);
    EXPECT_EQ(heard, QStringList({u"1 2025"_s, u"1 2025"_s, u"-1 "_s}));
}

TEST(ComboBox, SelectsARowOnlyWhileItShowsItsText) {
    ComboBox combo(u"TaxCombo"_s);
    QStringList heard;
    QObject::connect(&combo, &ComboBox::TextChanged, &combo, [&] { heard.append(combo.Text()); });
    combo.AddRow(u"keine"_s);
    combo.AddRow(u"19% USt."_s);
    const std::pair<std::function<void()>, QString> steps[] = {
        {[&] { combo.SetListIndex(1); }, u"1 19% USt."_s},
        {[&] { combo.SetText(u"19% ust."_s); }, u"-1 19% ust."_s},
        {[&] { combo.SetText(u"keine"_s); }, u"-1 keine"_s},
        {[&] { combo.SetListIndex(0); }, u"0 keine"_s},
        {[&] { combo.SetListIndex(-1); }, u"-1 "_s},
        {[&] { combo.SetText(u"frei"_s); }, u"-1 frei"_s},
        {[&] { combo.DeleteAllRows(); }, u"-1 "_s}};
    for (const auto &[write, shown] : steps) {
        write();
        EXPECT_EQ(Shown(combo), shown);
    }
    // Each new text once; choosing the row of a text that stands there already is no new text.
    EXPECT_EQ(heard, u"19% USt.|19% ust.|keine||frei|"_s.split(u'|'));
}

} // namespace
