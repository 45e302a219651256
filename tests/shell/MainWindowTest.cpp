#include "support/BookTest.h"

using namespace Qt::StringLiterals;

namespace {

using CommandTableTest = BookTest;

TEST_F(CommandTableTest, TakesAWordInAnyLettersAndNoOther) {
    window.MenuAction(u"ABOUT"_s);
    window.MenuAction(u"nothing"_s);
    EXPECT_EQ(book.desktop.opened, QStringList(u"about"_s));
}

TEST_F(CommandTableTest, EndsTheProgramForAnEntryThatIsMissing) {
    EXPECT_DEATH(window.menuBar.DataMenu().Child(u"Fehlt"), "Fehlt");
}

} // namespace
