#include "platform/values/Text.h"

#include "platform/values/Encodings.h"
#include "support/GoogleTest.h"

TEST(Text, ReadsTheLeadingNumber) {
    EXPECT_EQ(Val(u"inf"), 0);
    EXPECT_EQ(Val(u"1e999"), 0);
    EXPECT_EQ(Val(u"-.5"), -0.5);
    EXPECT_EQ(Val(u"+0.1"), 0.1);
    EXPECT_EQ(Val(u" 9 EUR"), 9);
    EXPECT_EQ(Val(u"1\u0661"), 1) << "an Arabic digit ends the number";
}

TEST(Text, SplitsReplacesAndComparesTexts) {
    EXPECT_EQ(NthField(u"a--b", '-', 3), "b");
    EXPECT_EQ(Replace(",2,3", ',', '.'), ".2,3");
    EXPECT_EQ(ReplaceLineEndings("a\r\nb\rc\n\rd\n", "|"), "a|b|c||d|");
    EXPECT_EQ(OneLine(u"a\r\n\tb\u2028\u2029c\u0000d"_s), "a b c d");
    EXPECT_EQ(CompareTexts("ÖL", "öl"), 0);
    EXPECT_LT(CompareTexts("öl", "Zins"), 0);
}

TEST(Encodings, WriteCodePage1252) {
    const auto ansi = Encodings::WindowsANSI;
    EXPECT_EQ(ansi("€“Ž"), "\x80\x93\x8E");
    EXPECT_EQ(ansi("\u0080"), "?");
    EXPECT_EQ(ansi("o\u0308 \u2126"), "\xF6 O");
    EXPECT_EQ(ansi(u"Łódź "_s.repeated(20)), "L\363dz "_ba.repeated(20));
    EXPECT_EQ(ansi(QString(63, 'a') + "γγ"), QByteArray(63, 'a') + "ng") << "words stay whole";
}
