#include "platform/lists/TextColumn.h"

#include "support/GoogleTest.h"

TEST(TextColumn, KeepsTheOtherTextsWhenOneChanges) {
    TextColumn texts = {u"a", u"b", u"ccc"};
    texts.Set(1, u"Größe");
    EXPECT_EQ(texts.At(1), u"Größe");
    EXPECT_EQ(texts.At(2), u"ccc");
    EXPECT_EQ(texts.LengthOf(1, 3), 8);
    texts.SetCount(2);
    texts.Add(u"d");
    EXPECT_EQ(texts.At(2), u"d");
}
