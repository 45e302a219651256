#include "platform/ComboBox.h"

#include "support/GoogleTest.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

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
        EXPECT_EQ(QString::number(combo.ListIndex()) + u' ' + combo.Text(), shown);
    }
    // Each new text once; choosing the row of a text that stands there already is no new text.
    EXPECT_EQ(heard, u"19% USt.|19% ust.|keine||frei|"_s.split(u'|'));
}

} // namespace
