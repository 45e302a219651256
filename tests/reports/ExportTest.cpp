#include "core/TLXModule.h"
#include "support/TestEnvironment.h"

#include <QFile>

class ExportTest : public EnvironmentTest {
protected:
    ExportTest() : EnvironmentTest(TestEnvironment::Storage::File) {
        env.desktop.fileToSave = FolderItem(path);
    }
    QByteArray Export() {
        window.MenuAction("export");
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    const QString path = env.desktop.Path("export.txt");
};

TEST_F(ExportTest, WritesTheYearOfTheSelectedCashBook) {
    env.Run("INSERT INTO cash_book (id, name, account) VALUES (7, 'Laden', '1010')");
    env.Add({"2026-12-31", "A", "0.5", "0", "Büro", "1", "4930", "", "a;b\tc\nd\re\r\nf"});
    env.Add({"2026-03-15 10:00", "e", "119", "3", "Erlöse", "1", "8400", "17", "5 €"});
    env.Add({"2025-03-15"});
    env.Add({"2026-05-01", "E", "2", "3", "", "7", ""});
    window.Event_Open();
    window.selectors.MonthPopup.SetListIndex(3);
    EXPECT_EQ(Export(), "Belegdatum;Buchungsbetrag;Steuerschl\xFCssel;Steuer;Buchungstext;"
                        "Belegnummer;Sollkonto;Habenkonto;W\xE4hrung;Notiz;Intern\r\n"
                        "15.03.2026 10:00;119,00;3;19% USt.;Erl\xF6se;17;1000;8400;EUR;5 \x80;\r\n"
                        "31.12.2026;0,50;0;keine;B\xFCro;;4930;1000;EUR;a;b;c\r\nd\r\ne\r\nf;");
    window.selectors.CashbookPopup.SetListIndex(1);
    EXPECT_TRUE(Export().endsWith("Intern\r\n01.05.2026;2,00;3;19% USt.;;;1010;;EUR;;"));
    EXPECT_EQ(TLXModule::DateSQL2German({}), "");
}

TEST_F(ExportTest, WritesNoPartOfAYearThatCannotBeRead) {
    // With the index SQLite returns the first booking before it reads the second one.
    env.Run("CREATE INDEX dates ON cash_journal (vdate)");
    env.Add({});
    env.Add({});
    window.Event_Open();
    env.Break("cash_journal");
    EXPECT_EQ(Export(), "Belegdatum;Buchungsbetrag;Steuerschl\xFCssel;Buchungstext;Belegnummer;"
                        "Sollkonto;Habenkonto;W\xE4hrung;Notiz;Leer;\r\n");
    EXPECT_EQ(env.desktop.TakeMessages(), "DB Error: integer overflow");
}

TEST_F(ExportTest, RejectsTheOpenDatabaseAsItsFile) {
    ASSERT_TRUE(QFile::link(env.app.DefaultDatabaseFile().Path(), path));
    window.MenuAction("export");
    EXPECT_TRUE(env.desktop.TakeMessages().endsWith(": Sie ist das geöffnete Kassenbuch."));
    EXPECT_EQ(ReadWithShell(env.app, "SELECT company FROM core_company"), "Muster");
    window.MenuAction("print");
    EXPECT_EQ(env.desktop.protectedFile.value().Path(), QFile::symLinkTarget(path));
}
