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
    /// Cuts the bytes, writes others behind or over them, or flips one bit.
    QByteArray Damaged(QByteArray bytes) {
        const qsizetype place = Any(int(bytes.size()));
        const QByteArray other(1 + Any(3000), char(Any(256)));
        switch (Any(5)) {
        case 0:
            return bytes.left(place);
        case 1:
            return bytes.left(place / 1024 * 1024); // Behind a page.
        case 2:
            return bytes + other;
        case 3:
            return bytes.replace(place, Any(2) == 0 ? other.size() : Any(3000), other);
        default:
            bytes[place] = char(bytes[place] ^ (1 << Any(8)));
            return bytes;
        }
    }
    /// All that the program shows of the book, on every page, on paper and in the export.
    QString Shown() {
        Program program(desktop);
        MainWindow &window = *program.window;
        QString shown;
        for (int year = 0; year < window.selectors.YearPopup.ListCount(); ++year) {
            window.selectors.YearPopup.SetListIndex(year);
            shown += window.journal.CashList.Cell(-1, -1);
            desktop.paper.emplace();
            window.MenuAction(u"print"_s);
            window.MenuAction(u"export"_s);
            shown += desktop.paper->join(u'\n') + window.accountingExport.ExportList.Cell(-1, -1);
        }
        window.MenuAction(u"preferences"_s);
        shown += window.companyProfile.CompanyField.Text() +
                 window.cashBooks.CashbookList.Cell(-1, -1) +
                 window.bookingAccounts.CashaccountList.Cell(-1, -1);
        window.MenuAction(u"cashbook"_s);
        window.Event_Close();
        return shown;
    }

    FakeDesktop desktop;
    const QString path = App(desktop, UserLocale(QLocale())).DefaultDatabaseFile().Path();
};

TEST_F(Damage, IsToldAndMadeNoWorse) {
    {
        Program program(desktop);
        for (int i = 0; i < 30; ++i) {
            program.window->entryRow.DateField.SetDateValue(Date(QDate(2026 + i % 2, 1, 1)));
            program.Submit(u"R%1"_s.arg(i), QString::number(i));
        }
    }
    const QByteArray sound = Bytes();
    const QString whole = Shown();
    ASSERT_EQ(desktop.TakeMessages(), QString());
    Run(200, [&] {
        const QByteArray damaged = Damaged(sound);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(damaged) == damaged.size());
        file.close();
        const QString shown = Shown();
        const QStringList messages = desktop.TakeMessages().split(u'|', Qt::SkipEmptyParts);
        EXPECT_TRUE(!messages.empty() || shown == whole) << "hidden: " << qPrintable(shown);
        EXPECT_EQ(messages.filter(QRegularExpression(u"^DB (Connection )?Error: ."_s)), messages);
        EXPECT_EQ(Bytes(), damaged);
        EXPECT_EQ(QDir(QFileInfo(path).path()).entryList(QDir::Files).size(), 1);
        ++counts[messages.empty() ? "shown whole" : "told"];
    });
}

} // namespace
