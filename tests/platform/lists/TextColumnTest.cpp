#include "platform/lists/TextColumn.h"

#include "support/GoogleTest.h"

#include <QStringList>

TEST(TextColumn, KeepsTheOtherTextsWhenOneChanges) {
    struct Case {
        const char *name;
        void (*change)(TextColumn &texts);
        QStringList expected;
    };
    const Case cases[] = {
        {"nothing", [](TextColumn &) {}, {"a", "", "ccc"}},
        {"longer", [](TextColumn &texts) { texts.Set(0, u"Größe"); }, {"Größe", "", "ccc"}},
        {"shorter", [](TextColumn &texts) { texts.Set(2, u""); }, {"a", "", ""}},
        {"empty", [](TextColumn &texts) { texts.Set(1, u"b"); }, {"a", "b", "ccc"}},
        {"more", [](TextColumn &texts) { texts.SetCount(4); }, {"a", "", "ccc", ""}},
        {"fewer", [](TextColumn &texts) { texts.SetCount(1), texts.Add(u"d"); }, {"a", "d"}},
        {"none", [](TextColumn &texts) { texts.SetCount(0), texts.Add(u"d"); }, {"d"}}};
    for (const Case &each : cases) {
        TextColumn texts = {u"a", u"", u"ccc"};
        each.change(texts);
        QStringList found;
        for (int index = 0; index < texts.Count(); ++index) {
            found.append(texts.At(index).toString());
        }
        EXPECT_EQ(found, each.expected) << each.name;
        EXPECT_EQ(texts.LengthOf(1, texts.Count()), each.expected.mid(1).join("").size())
            << each.name;
    }
}
