#include "endurance/Endurance.h"
#include "endurance/Program.h"

#include <QDir>
#include <QRegularExpression>

/// Opens randomly damaged copies of a database file and shows all pages.
class Damage : public Endurance {
protected:
    QByteArray Bytes() const {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QByteArray Damaged(QByteArray bytes) {
        const qsizetype position = RandomBelow(int(bytes.size()));
        switch (RandomBelow(4)) {
        case 0:
            return bytes.left(RandomBelow(2) == 0 ? position : position / 1024 * 1024);
        case 1:
            return bytes.replace(position, 1000,
                                 QByteArray(1 + RandomBelow(3000), char(RandomBelow(256))));
        default:
            bytes[position] = char(bytes[position] ^ (1 << RandomBelow(8)));
            return bytes;
        }
    }
    struct Page {
        QString shown, messages;
    };
    /// Opens the file, shows every page, prints and exports, and returns the contents and messages
    /// of each step.
    std::vector<Page> ShowPages() {
        Program program(desktop);
        MainWindow &window = *program.window;
        desktop.printout.emplace();
        std::vector<Page> pages;
        for (const QString command : {"", "print", "export", "preferences", "cashbook"}) {
            window.MenuAction(command);
            QString shown =
                desktop.printout->join(u'\n') + window.companyProfile.CompanyField.Text();
            for (const Listbox *list :
                 {&window.journal.CashList, &window.accountingExport.ExportList,
                  &window.cashBooks.CashbookList, &window.bookingAccounts.CashaccountList}) {
                shown += list->Cell(-1, -1);
            }
            pages.push_back({shown, desktop.TakeMessages()});
        }
        return pages;
    }

    FakeDesktop desktop;
    const QString path = App(desktop, UserLocale(QLocale())).DefaultDatabaseFile().Path();
};

TEST_F(Damage, IsReportedAndLeftUnchanged) {
    for (int i = 0; i < 30; ++i) {
        // A long note continues on overflow pages, which are read only with the note.
        Program(desktop).Submit(u"R%1"_s.arg(i), QString::number(i), i % 2 * 3000);
    }
    const QByteArray undamaged = Bytes();
    const std::vector<Page> before = ShowPages();
    Run(170, [&] {
        const QByteArray damaged = Damaged(undamaged);
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(damaged) == damaged.size());
        file.close();
        QStringList messages;
        const std::vector<Page> pages = ShowPages();
        for (size_t page = 0; page < pages.size(); ++page) {
            messages += pages[page].messages.split(u'|', Qt::SkipEmptyParts);
            EXPECT_TRUE(!messages.empty() || pages[page].shown == before[page].shown) << page;
        }
        EXPECT_EQ(messages.filter(QRegularExpression("^DB (Connection )?Error: .")), messages);
        EXPECT_EQ(Bytes(), damaged);
        EXPECT_EQ(QDir(QFileInfo(path).path()).entryList(QDir::Files).size(), 1);
        ++counts[messages.empty() ? "unaffected" : "reported"];
    });
}
