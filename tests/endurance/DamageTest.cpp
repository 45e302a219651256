#include "endurance/Program.h"

#include <QDir>
#include <QRegularExpression>

struct Damage : ProgramTest {
    Damage() {
        Program program(desktop);
        for (int i = 0; i < 30; ++i) {
            // Every other note continues on overflow pages.
            program.Run("new", u"R%1"_s.arg(i), QString::number(1 + i % 2 * 3000));
        }
        EXPECT_TRUE(file.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    }
    QByteArray Bytes() {
        file.seek(0);
        return file.readAll();
    }
    static QByteArray Damaged(QByteArray bytes) {
        int position = RandomBelow(int(bytes.size()));
        if (RandomBelow(2) == 0) {
            bytes[position] = char(bytes[position] ^ (1 << RandomBelow(8)));
            return bytes;
        }
        position &= -RandomBelow(2) * 1023 - 1; // Often at the start of a page.
        return RandomBelow(2) == 0
                   ? bytes.first(position)
                   : bytes.replace(position, 1000, QByteArray(RandomBelow(3000), '\0'));
    }
    /// Shows every page, prints and exports. Returns the contents up to the first message.
    QString ShowPages() {
        desktop.printout.emplace();
        Program program(desktop);
        MainWindow &window = *program.window;
        QString shown;
        messages.clear();
        for (const QString command : {"", "print", "export", "preferences", "cashbook"}) {
            window.MenuAction(command);
            messages += desktop.TakeMessages().split('|', Qt::SkipEmptyParts);
            if (messages.isEmpty()) {
                shown += desktop.printout->join('\n') +
                         window.accountingExport.ExportList.Cell(-1, -1) +
                         window.cashBooks.CashbookList.Cell(-1, -1) +
                         window.bookingAccounts.CashaccountList.Cell(-1, -1) + '\f';
            }
        }
        return shown;
    }

    QStringList messages;
};

TEST_F(Damage, IsReportedAndLeftUnchanged) {
    const QByteArray undamaged = Bytes();
    const QString before = ShowPages();
    Run(170, [&] {
        const QByteArray damaged = Damaged(undamaged);
        file.resize(0);
        file.write(damaged);
        EXPECT_TRUE(before.startsWith(ShowPages()));
        EXPECT_EQ(messages.filter(QRegularExpression("^DB (Connection )?Error: .")), messages);
        EXPECT_EQ(Bytes(), damaged);
        EXPECT_EQ(QFileInfo(file).dir().entryList(QDir::Files), QStringList("Zolmark.sdb"));
        ++counts[messages.empty() ? "unaffected" : "reported"];
    });
}
