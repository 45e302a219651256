#include "support/TestEnvironment.h"

#include <QFile>

const QByteArray headings("Belegdatum;Buchungsbetrag;Steuerschl\xFCssel;Steuer;Buchungstext;"
                          "Belegnummer;Sollkonto;Habenkonto;W\xE4hrung;Notiz;Intern\r\n");

class ExportTest : public EnvironmentTest {
protected:
    ExportTest() { env.desktop.fileToSave = FolderItem(path); }

    QByteArray Export() {
        window.MenuAction("export");
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    const QString path = env.desktop.Path("export.txt");
};

TEST_F(ExportTest, WritesTheYearOfTheSelectedCashBook) {
    env.Run("INSERT INTO cash_book (id, name, account) VALUES ('7', 'Laden', '1010')");
    env.Run("INSERT INTO cash_journal (vdate, type, amount, tax, category, salesnumber, note, "
            "cashbookID, account) VALUES "
            "('2026-12-31', 'A', 0.5, '0', 'Bürobedarf', '', 'a;b\tc\nd\re\r\nf', 1, '4930'), "
            "('2026-03-15', 'e', 119, '3', 'Erlöse', '17', '5 € „Łódź“ ⅔ Жук 🎉 Mu\u0308ller', 1, "
            "'8400'), ('2026-04-01', 'A', -3, '77', '', '', '', 1, ''), "
            "('2025-03-15', 'E', 1, '3', '', '', '', 1, ''), ('2026-05-01', 'E', 2, '3', '', '', "
            "NULL, 7, NULL)");
    window.Event_Open();
    window.selectors.MonthPopup.SetListIndex(3);
    EXPECT_EQ(Export(),
              headings + "15.03.2026;119,00;3;19% USt.;Erl\xF6se;17;1000;8400;EUR;5 \x80 \x84L\xF3"
                         "dz\x93  2/3 Zuk ? M\xFCller;\r\n31.12.2026;0,50;0;keine;B\xFCrobedarf;;"
                         "4930;1000;EUR;a;b;c\r\nd\r\ne\r\nf;");
    window.selectors.CashbookPopup.SetListIndex(1);
    EXPECT_EQ(Export(), headings + "01.05.2026;2,00;3;19% USt.;;;1010;;EUR;;");
}

TEST(Export, RejectsTheOpenDatabaseAsItsFile) {
    TestEnvironment env(TestEnvironment::Storage::File);
    MainWindow window(env.app);
    window.Event_Open();
    const QString databasePath = env.app.DefaultDatabaseFile().Path();
    const QString link = env.desktop.Path("link.txt");
    ASSERT_TRUE(QFile::link(databasePath, link));
    for (const QString &path : {databasePath, link}) {
        env.desktop.fileToSave = FolderItem(path);
        window.MenuAction("export");
        EXPECT_EQ(
            env.desktop.TakeMessages(),
            u"Die Datei %1 konnte nicht geschrieben werden: Sie ist das geöffnete Kassenbuch."_s
                .arg(path));
    }
    EXPECT_EQ(ReadWithShell(env.app, "SELECT company FROM core_company"), "Muster");
    window.MenuAction("print");
    EXPECT_TRUE(env.desktop.protectedFile && env.desktop.protectedFile->Path() == databasePath);
}
