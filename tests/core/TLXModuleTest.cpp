#include "core/TLXModule.h"

#include "platform/ComboBox.h"
#include "support/GoogleTest.h"

using namespace Qt::StringLiterals;

namespace {

TEST(TLXModule, ConvertsAmountsAndDatesWithoutCheckingThem) {
    using namespace TLXModule;
    EXPECT_EQ(AmountText2SQL(u"1.234,56,7"_s), u"1.234.56,7"_s);
    EXPECT_EQ(AmountText2Value(u" -12,50 EUR"_s), -12.5);
    EXPECT_EQ(PadAmount8(u"12,50"_s) + PadAmount8(u"1234567,89"_s), u"   12,5034567,89"_s);
    EXPECT_EQ(SQLDateMonth(u"2026-09-30"_s), 9);
    EXPECT_EQ(DateSQL2German(u""_s), u""_s);
    EXPECT_EQ(DateSQL2German(u"2026-09-30 17:14:27"_s), u"30.09.2026 17:14:27"_s);
    EXPECT_EQ(DateSQL2German(u"2026-9-3"_s), u"3.9.2026"_s);
}

TEST(TLXModule, FindsTheFirstRowAndSelectsByItsTextAlone) {
    ComboBox combo(u"TaxCombo"_s);
    EXPECT_EQ(TLXModule::IndexOf(combo, u""_s), -1);
    for (const auto &text : {u"Müll"_s, u"keine"_s, u"Keine"_s}) {
        combo.AddRow(text);
        combo.SetRowTag(combo.ListCount() - 1, u"a%1"_s.arg(combo.ListCount()));
    }
    EXPECT_EQ(TLXModule::IndexOf(combo, u"KEINE"_s), 1);
    EXPECT_EQ(TLXModule::GetRowTag(combo, u"A3"_s), 2);
    EXPECT_EQ(TLXModule::GetRowTag(combo, u"a"_s), -1);
    EXPECT_EQ(TLXModule::IndexOf(combo, u"kein"_s), -1);
    EXPECT_EQ(combo.ListIndex(), 1);
    EXPECT_EQ(TLXModule::IndexOf(combo, u"MÜLL"_s), 0);
}

} // namespace
