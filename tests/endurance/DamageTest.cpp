#include "endurance/Endurance.h"
#include "endurance/Program.h"

#include <QDir>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

/// Copies of a book, each damaged in another way, that the program opens and walks through.
class Damage : public Endurance {
protected:
    QByteArray Bytes() const {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    /// Cuts the bytes, also after a page, writes others over them, or flips one bit.
    QByteArray Damaged(QByteArray bytes) {
        const qsizetype place = Any(int(bytes.size()));
        const QByteArray other(1 + Any(3000), char(Any(256)));
        switch (Any(3)) {
        case 0:
            return bytes.left(Any(2) == 0 ? place : place / 1024 * 1024);
        case 1:
            return bytes.replace(place, other.size(), other);
        default:
            bytes[place] = char(bytes[place] ^ (1 << Any(8)));
            return bytes;
        }
    }
    /// One look at the book, and what was told meanwhile.
    struct Look {
        QString shown;
        QString told;
    };
    /// Opens the book, and looks at every page of it, at paper and at the export.
    std::vector<Look> Looks() {
        Program program(desktop);
        MainWindow &window = *program.window;
        desktop.paper.emplace();
        std::vector<Look> looks;
        for (const auto &word : {u""_s, u"print"_s, u"export"_s, u"preferences"_s, u"cashbook"_s}) {
            window.MenuAction(word);
            looks.push_back({window.journal.CashList.Cell(-1, -1) + desktop.paper->join(u'\n') +
                                 window.accountingExport.ExportList.Cell(-1, -1) +
                                 window.companyProfile.CompanyField.Text() +
                                 window.cashBooks.CashbookList.Cell(-1, -1) +
                                 window.bookingAccounts.CashaccountList.Cell(-1, -1),
                             desktop.TakeMessages()});
        }
        return looks;
    }
    /// With a note of several thousand letters in every other booking: it goes on in pages that
    /// only who reads the note reads.
    void MakeBook(int bookings) {
        Program program(desktop);
        for (int i = 0; i < bookings; ++i) {
            program.Submit(u"R%1"_s.arg(i), QString::number(i), i % 2 * 3000);
        }
    }
    /// No look at a damaged book shows anything else than at the sound one before that is told.
    void Check(const QByteArray &damaged, const std::vector<Look> &sound) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(damaged) == damaged.size());
        file.close();
        QStringList messages;
        const std::vector<Look> looks = Looks();
        for (size_t look = 0; look < looks.size(); ++look) {
            messages += looks[look].told.split(u'|', Qt::SkipEmptyParts);
            EXPECT_TRUE(!messages.empty() || looks[look].shown == sound[look].shown) << look;
        }
        EXPECT_EQ(messages.filter(QRegularExpression(u"^DB (Connection )?Error: ."_s)), messages);
        EXPECT_EQ(Bytes(), damaged);
        EXPECT_EQ(QDir(QFileInfo(path).path()).entryList(QDir::Files).size(), 1);
        ++counts[messages.empty() ? "shown whole" : "told"];
    }

    FakeDesktop desktop;
    const QString path = App(desktop, UserLocale(QLocale())).DefaultDatabaseFile().Path();
};

TEST_F(Damage, IsToldAndMadeNoWorse) {
    MakeBook(30);
    const QByteArray sound = Bytes();
    const std::vector<Look> looks = Looks();
    Run(150, [&] { Check(Damaged(sound), looks); });
}

TEST_F(Damage, OfOneBitInAnyPageIsTold) {
    MakeBook(2);
    const QByteArray sound = Bytes();
    const std::vector<Look> looks = Looks();
    Run(1, [&] {
        for (qsizetype page = 0; page < sound.size(); page += 1024) {
            QByteArray damaged = sound;
            const qsizetype place = page + Any(1024);
            damaged[place] = char(damaged[place] ^ (1 << Any(8)));
            Check(damaged, looks);
        }
    });
}

} // namespace
