#include "platform/controls/Texts.h"

#include "support/GoogleTest.h"

#include <QStringList>

TEST(Texts, StandWhereTheyStandWhateverBecomesOfOthers) {
    struct Case {
        const char *what;
        void (*change)(Texts &texts);
        QStringList expected;
    };
    const Case cases[] = {{"nothing", [](Texts &) {}, {u"a"_s, u""_s, u"ccc"_s}},
                          {"longer", [](Texts &texts) { texts.Set(0, u"Größe"); }, {u"Größe"_s, u""_s, u"ccc"_s}},
                          {"shorter", [](Texts &texts) { texts.Set(2, u""); }, {u"a"_s, u""_s, u""_s}},
                          {"empty", [](Texts &texts) { texts.Set(1, u"b"); }, {u"a"_s, u"b"_s, u"ccc"_s}},
                          {"more", [](Texts &texts) { texts.SetCount(4); }, {u"a"_s, u""_s, u"ccc"_s, u""_s}},
                          {"fewer", [](Texts &texts) { texts.SetCount(1), texts.Add(u"d"); }, {u"a"_s, u"d"_s}},
                          {"none", [](Texts &texts) { texts.SetCount(0), texts.Add(u"d"); }, {u"d"_s}}};
    for (const Case &each : cases) {
        Texts texts = {u"a", u"", u"ccc"};
        each.change(texts);
        QStringList found;
        for (int place = 0; place < texts.Count(); ++place) { found.append(texts.At(place).toString()); }
        EXPECT_EQ(found, each.expected) << each.what;
        EXPECT_EQ(texts.LengthOf(1, texts.Count()), each.expected.mid(1).join(u""_s).size()) << each.what;
    }
}
