#include "platform/lists/TextColumn.h"

#include "support/GoogleTest.h"

#include <QStringList>

TEST(TextColumn, KeepsTheOtherTextsWhenOneChanges) {
    struct Case {
        const char *name;
        void (*change)(TextColumn &texts);
        QStringList expected;
    };
    const Case cases[] = {{"nothing", [](TextColumn &) {}, {u"a"_s, u""_s, u"ccc"_s}},
                          {"longer", [](TextColumn &texts) { texts.Set(0, u"Größe"); }, {u"Größe"_s, u""_s, u"ccc"_s}},
                          {"shorter", [](TextColumn &texts) { texts.Set(2, u""); }, {u"a"_s, u""_s, u""_s}},
                          {"empty", [](TextColumn &texts) { texts.Set(1, u"b"); }, {u"a"_s, u"b"_s, u"ccc"_s}},
                          {"more", [](TextColumn &texts) { texts.SetCount(4); }, {u"a"_s, u""_s, u"ccc"_s, u""_s}},
                          {"fewer", [](TextColumn &texts) { texts.SetCount(1), texts.Add(u"d"); }, {u"a"_s, u"d"_s}},
                          {"none", [](TextColumn &texts) { texts.SetCount(0), texts.Add(u"d"); }, {u"d"_s}}};
    for (const Case &each : cases) {
        TextColumn texts = {u"a", u"", u"ccc"};
        each.change(texts);
        QStringList found;
        for (int index = 0; index < texts.Count(); ++index) { found.append(texts.At(index).toString()); }
        EXPECT_EQ(found, each.expected) << each.name;
        EXPECT_EQ(texts.LengthOf(1, texts.Count()), each.expected.mid(1).join(u""_s).size()) << each.name;
    }
}
