#include "endurance/Endurance.h"
#include "endurance/Program.h"

#include <QDir>
#include <QRegularExpression>

/// Copies of a book, each damaged in another way, that the program opens and walks through.
class Damage : public Endurance {
protected:
    QByteArray Bytes() const {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QByteArray Damaged(QByteArray bytes) {
        const qsizetype place = Any(int(bytes.size()));
        switch (Any(4)) {
        case 0:
            return bytes.left(Any(2) == 0 ? place : place / 1024 * 1024);
        case 1:
            return bytes.replace(place, 1000, QByteArray(1 + Any(3000), char(Any(256))));
        default:
            bytes[place] = char(bytes[place] ^ (1 << Any(8)));
            return bytes;
        }
    }
    struct Look {
        QString shown, told;
    };
    /// Opens the book, and looks at every page of it, at paper and at the export; and what was told meanwhile.
    std::vector<Look> Looks() {
        Program program(desktop);
        MainWindow &window = *program.window;
        desktop.paper.emplace();
        std::vector<Look> looks;
        for (const auto &word : {u""_s, u"print"_s, u"export"_s, u"preferences"_s, u"cashbook"_s}) {
            window.MenuAction(word);
            QString shown = desktop.paper->join(u'\n') + window.companyProfile.CompanyField.Text();
            for (const Listbox *list : {&window.journal.CashList, &window.accountingExport.ExportList,
                                        &window.cashBooks.CashbookList, &window.bookingAccounts.CashaccountList}) {
                shown += list->Cell(-1, -1);
            }
            looks.push_back({shown, desktop.TakeMessages()});
        }
        return looks;
    }

    FakeDesktop desktop;
    const QString path = App(desktop, UserLocale(QLocale())).DefaultDatabaseFile().Path();
};

TEST_F(Damage, IsToldBeforeAnythingElseIsShownAndMadeNoWorse) {
    for (int i = 0; i < 30; ++i) {
        // A long note goes on in pages that only who reads the note reads.
        Program(desktop).Submit(u"R%1"_s.arg(i), QString::number(i), i % 2 * 3000);
    }
    const QByteArray sound = Bytes();
    const std::vector<Look> before = Looks();
    Run(170, [&] {
        const QByteArray damaged = Damaged(sound);
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(damaged) == damaged.size());
        file.close();
        QStringList messages;
        const std::vector<Look> looks = Looks();
        for (size_t look = 0; look < looks.size(); ++look) {
            messages += looks[look].told.split(u'|', Qt::SkipEmptyParts);
            EXPECT_TRUE(!messages.empty() || looks[look].shown == before[look].shown) << look;
        }
        EXPECT_EQ(messages.filter(QRegularExpression(u"^DB (Connection )?Error: ."_s)), messages);
        EXPECT_EQ(Bytes(), damaged);
        EXPECT_EQ(QDir(QFileInfo(path).path()).entryList(QDir::Files).size(), 1);
        ++counts[messages.empty() ? "shown whole" : "told"];
    });
}
