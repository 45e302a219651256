#include "endurance/Program.h"

#include <QDir>
#include <QRegularExpression>

class Damage : public ProgramTest {
protected:
    Damage() {
        Program program(desktop);
        for (int i = 0; i < 30; ++i) {
            // A long note continues on overflow pages, which are read only with the note.
            program.Run("new", u"R%1"_s.arg(i), QString::number(1 + i % 2 * 3000));
        }
        EXPECT_TRUE(file.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    }
    QByteArray Bytes() {
        file.seek(0);
        return file.readAll();
    }
    static QByteArray Damaged(QByteArray bytes) {
        const int position = RandomBelow(int(bytes.size()));
        switch (RandomBelow(4)) {
        case 0:
            return bytes.first(RandomBelow(2) == 0 ? position : position / 1024 * 1024);
        case 1:
            return bytes.replace(position, 1000,
                                 QByteArray(RandomBelow(3000), char(RandomBelow(256))));
        default:
            bytes[position] = char(bytes[position] ^ (1 << RandomBelow(8)));
            return bytes;
        }
    }
    /// Opens the file, shows every page, prints and exports. Returns the contents of each step up
    /// to the first message.
    QStringList ShowPages() {
        desktop.printout.emplace();
        Program program(desktop);
        MainWindow &window = *program.window;
        messages.clear();
        QStringList pages;
        for (const QString command : {"", "print", "export", "preferences", "cashbook"}) {
            window.MenuAction(command);
            messages += desktop.TakeMessages().split('|', Qt::SkipEmptyParts);
            if (messages.isEmpty()) {
                pages.append(desktop.printout->join('\n') + window.journal.CashList.Cell(-1, -1) +
                             window.accountingExport.ExportList.Cell(-1, -1) +
                             window.cashBooks.CashbookList.Cell(-1, -1) +
                             window.bookingAccounts.CashaccountList.Cell(-1, -1));
            }
        }
        return pages;
    }

    QStringList messages;
};

TEST_F(Damage, IsReportedAndLeftUnchanged) {
    const QByteArray undamaged = Bytes();
    const QStringList before = ShowPages();
    Run(170, [&] {
        const QByteArray damaged = Damaged(undamaged);
        file.resize(0);
        file.seek(0);
        file.write(damaged);
        const QStringList pages = ShowPages();
        EXPECT_EQ(pages, before.first(pages.size()));
        EXPECT_EQ(messages.filter(QRegularExpression("^DB (Connection )?Error: .")), messages);
        EXPECT_EQ(Bytes(), damaged);
        EXPECT_EQ(QFileInfo(file).dir().entryList(QDir::Files), QStringList("Zolmark.sdb"));
        ++counts[messages.empty() ? "unaffected" : "reported"];
    });
}
